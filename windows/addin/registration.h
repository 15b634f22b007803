#pragma once

#include "windows/com/ole.h"

namespace addin {

/// Registers the class and the install folder, which is the module's own: for all users, or where that isn't
/// allowed for the current one.
HRESULT registerServer(HMODULE module);
/// Takes out what registering put in, for all users and the current one.
HRESULT unregisterServer();

}  // namespace addin
