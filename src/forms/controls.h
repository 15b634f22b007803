#pragma once

// All kinds of controls, for a dialog's header.
#include "forms/buttons.h"
#include "forms/containers.h"
#include "forms/file_dialog.h"
#include "forms/form.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "forms/text_box.h"
