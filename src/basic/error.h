#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace basic {

/// Numbers of the run-time failures that the logic itself raises or tells apart. A host's failures carry
/// numbers of their own.
enum ErrorNumber : std::int32_t {
    kInvalidCall = 5,        ///< a call that can't be done now, such as focus on a hidden control
    kOverflow = 6,           ///< a number beyond its type, 16-bit counters above all
    kOutOfMemory = 7,        ///< no memory left for what was asked
    kSubscript = 9,          ///< an index outside its array or collection
    kTypeMismatch = 13,      ///< a text that isn't a number, a value of the wrong kind
    kOutOfStringSpace = 14,  ///< a text longer than any that is read
    kOutOfStackSpace = 28,   ///< something nested deeper than it may
    kInternalError = 51,     ///< a failure of our own, met at a border
    kBadFileName = 52,       ///< an empty or impossible file name
    kFileNotFound = 53,      ///< no file of that name
    kDeviceError = 57,       ///< reading or writing failed half-way
    kDiskFull = 61,          ///< no room left for what was written
    kInputPastEnd = 62,      ///< a line read behind the last one
    kPermissionDenied = 70,  ///< the file is there but may not be used so
    kPathFileAccess = 75,    ///< a folder where a file was wanted
    kPathNotFound = 76,      ///< no folder of that name
    kObjectNotSet = 91,      ///< a member of nothing was asked for
    kInvalidProperty = 380,  ///< a value that the property doesn't take
    kReadOnlyText = 383,     ///< a text that a drop-down list doesn't hold
    kObjectRequired = 424,   ///< a member of a value that is no object
    kNoSuchMember = 438,     ///< the object has no such property or method
    kDuplicateKey = 457,     ///< the key is in the collection already
};

/// The one failure that operations raise: a number and a description, as an automation host gives them.
class Error : public std::exception {
  public:
    Error(std::int32_t number, std::string description)
        : number_(number), description_(std::move(description)) {}
    /// With the standard description of `number`.
    explicit Error(ErrorNumber number);

    std::int32_t number() const { return number_; }
    const std::string& description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    std::int32_t number_;
    std::string description_;
};

/// The standard description of a number of `ErrorNumber`, in English.
const char* standardDescription(ErrorNumber number);

}  // namespace basic
