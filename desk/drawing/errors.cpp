#include "desk/drawing/errors.h"

#include <string>

namespace drawing {

namespace {

const char* describe(HostError number) {
    switch (number) {
        case kInvalidInput:
            return "Invalid input";
        case kKeyNotFound:
            return "Key not found";
        case kObjectErased:
            return "Object was erased";
        case kLockedLayer:
            return "Object on locked layer";
        case kNotApplicable:
            return "Not applicable";
    }
    return "Failure of the drawing";
}

}  // namespace

void raise(HostError number, const std::string& subject) {
    throw basic::Error(number, subject.empty() ? describe(number) : describe(number) + (": " + subject));
}

}  // namespace drawing
