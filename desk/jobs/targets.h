#pragma once

#include "desk/jobs/options.h"

#include <string>
#include <vector>

namespace jobs {

/// A drawing of the call and where its result goes.
struct Target {
    std::string drawing;
    std::string output;  ///< empty where nothing is written for this drawing alone
};

struct Targets {
    std::vector<Target> all;
    std::string tableOfAll;  ///< the one table that all extractions go into; empty for none
};

/// Whether a verb changes drawings.
bool changesDrawings(Verb verb);

/// Settles where each result goes before anything is done, and makes the folder. Raises UsageError: no
/// drawing, no place for the results, two results of one name, a result that is there already without
/// --force.
Targets findTargets(const Arguments& arguments);

/// Copies a file beside itself, under its name with ".bak" behind, or ".bak2" and so on where that is taken:
/// no earlier copy is overwritten. Raises basic::Error.
void keepCopy(const std::string& path);

}  // namespace jobs
