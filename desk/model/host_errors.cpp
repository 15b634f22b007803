#include "desk/model/host_errors.h"

#include "basic/error.h"

namespace model {

namespace {

std::string describe(HostError number, const std::string& subject) {
    switch (number) {
        case kArgumentCount:
            return "Wrong number of arguments: " + subject;
        case kPromptFailed:
            return "Method failed: " + subject;
        case kSelectionSetExists:
            return "The named selection set exists: " + subject;
        case kFileError:
            return "File error: " + subject;
        case kUnknownProgId:
            return "Problem in loading application: " + subject;
        case kSelfReference:
            return "A layout's block can't be inserted: " + subject;
    }
    return subject;
}

}  // namespace

void raise(HostError number, const std::string& subject) {
    throw basic::Error(number, describe(number, subject));
}

}  // namespace model
