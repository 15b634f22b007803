#pragma once

#include "basic/variant.h"

#include <string>

namespace session {

/// A language of the list: the name that its file gives it, and the file's full path.
struct LngRecord {
    std::string Name;
    std::string File;

    bool operator==(const LngRecord&) const = default;
};

/// One set of the parameters of a block reference. No command fills or reads it.
struct CBlockReference {
    double XScaleFactor = 0;
    double YScaleFactor = 0;
    double ZScaleFactor = 0;
    double Rotation = 0;  ///< radians
    bool Visible = false;
    basic::Variant InsertionPoint;  ///< a point: three 64-bit floats
};

}  // namespace session
