#include "basic/error.h"

namespace basic {

const char* standardDescription(ErrorNumber number) {
    switch (number) {
        case kInvalidCall:
            return "Invalid procedure call or argument";
        case kOverflow:
            return "Overflow";
        case kOutOfMemory:
            return "Out of memory";
        case kSubscript:
            return "Subscript out of range";
        case kTypeMismatch:
            return "Type mismatch";
        case kOutOfStringSpace:
            return "Out of string space";
        case kOutOfStackSpace:
            return "Out of stack space";
        case kInternalError:
            return "Internal error";
        case kBadFileName:
            return "Bad file name or number";
        case kFileNotFound:
            return "File not found";
        case kDeviceError:
            return "Device I/O error";
        case kDiskFull:
            return "Disk full";
        case kInputPastEnd:
            return "Input past end of file";
        case kPermissionDenied:
            return "Permission denied";
        case kPathFileAccess:
            return "Path/File access error";
        case kPathNotFound:
            return "Path not found";
        case kObjectNotSet:
            return "Object variable not set";
        case kInvalidProperty:
            return "Invalid property value";
        case kReadOnlyText:
            return "'Text' property is read-only";
        case kObjectRequired:
            return "Object required";
        case kNoSuchMember:
            return "Object doesn't support this property or method";
        case kDuplicateKey:
            return "This key is already associated with an element of this collection";
    }
    return "Application-defined or object-defined error";
}

Error::Error(ErrorNumber number) : Error(number, standardDescription(number)) {}

}  // namespace basic
