#pragma once

#include "basic/error.h"
#include "windows/com/ole.h"

#include <string_view>

namespace com {

inline constexpr std::int32_t kArgumentNotOptional = 449;
inline constexpr std::int32_t kArgumentCount = 450;
inline constexpr std::int32_t kNoSuchClass = 429;  ///< the object couldn't be created

/// What an automation call that failed says as the logic's error. An exception of the object brings its own
/// number (the low word of a code 0x800Axxxx, any other code as it is) and description; of the automation
/// layer's own failures the well-known ones have their classic numbers.
/// `info` is emptied; its deferred filling is done.
[[noreturn]] void raiseOle(HRESULT result, EXCEPINFO& info, std::string_view member);

/// A failure of ours as what Invoke returns, with `info` (may be null) filled where the result says so.
HRESULT fillException(const basic::Error& error, EXCEPINFO* info);

}  // namespace com
