#pragma once

// Automation's declarations, which need the system's before them.
#ifndef NOMINMAX
#define NOMINMAX
#endif
// clang-format off
#include <windows.h>
#include <oleauto.h>
// clang-format on
