#pragma once

#include "desk/geometry/vector.h"
#include "desk/jobs/options.h"

#include <optional>
#include <string>
#include <vector>

namespace jobs {

/// The value of attribute `from` goes to attribute `to` of the new block.
struct AttributePair {
    std::string from;
    std::string to;
    bool required = true;  ///< a pair of the command line, not of an office's file
};

/// What the verb replace is asked for.
struct ReplaceOptions {
    std::string from;
    std::string to;
    std::vector<AttributePair> pairs;
    bool pairEqual = false;
    std::vector<std::string> zones;
    std::optional<double> rotation;  ///< radians
    std::optional<geometry::Vector3> scale;
    std::optional<bool> visible;
    std::string keep;  ///< as the variable VNKEEP takes it
};

/// Raises UsageError.
ReplaceOptions readReplaceOptions(const Arguments& arguments);

/// "LEFT=RIGHT" taken apart at its first equals sign. Raises UsageError, naming the option, where there is
/// none or nothing in front of it.
std::pair<std::string, std::string> readPair(const std::string& option, const std::string& text);

}  // namespace jobs
