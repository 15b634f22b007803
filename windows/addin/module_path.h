#pragma once

#include <string>

namespace addin {

/// The file of a loaded module, and the folder that it lies in, without a separator at the end.
std::wstring modulePath(void* module);
std::wstring moduleFolder(void* module);

}  // namespace addin
