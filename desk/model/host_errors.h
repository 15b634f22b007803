#pragma once

#include "desk/drawing/errors.h"

#include <cstdint>
#include <string>

namespace model {

/// The host's failures besides those of the drawing (desk/drawing/errors.h) and the automation layer's own,
/// which carry the numbers of basic::ErrorNumber: 13 a value of the wrong kind, 438 a member that isn't
/// there, 450 a wrong count of arguments.
enum HostError : std::int32_t {
    kArgumentCount = 450,
    kPromptFailed = -2147352567,  ///< the user broke off, or answered with nothing
    kSelectionSetExists = -2145320851,
    kFileError = -2145386445,      ///< a file to insert that isn't there or can't be read
    kUnknownProgId = -2145386404,  ///< no object of that program identifier
    kSelfReference = -2145386475,  ///< a space as a block
};

[[noreturn]] void raise(HostError number, const std::string& subject = {});

}  // namespace model
