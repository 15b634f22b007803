#pragma once

#include "basic/numbers.h"
#include "desk/drawing/placement.h"

#include <QString>
#include <map>
#include <utility>
#include <vector>

namespace forms {
class Form;
}

namespace window {

/// What the dialog of an insertion would insert as it stands.
struct InsertionPlan {
    QString block;
    int rows = 0;
    std::vector<drawing::Placement> places;  ///< of the rows whose numbers can be read
    /// The other rows, from 1: why they fail, and where they would stand if that can be read.
    struct Fault {
        QString reason;
        std::vector<geometry::Point3> at;  ///< one or none
    };
    std::map<int, Fault> faults;
    /// Of two plans with the same key the same comes to be.
    QString key;
};

/// Reads it from the tables of fmReInsert, by the rules of the insertion's own run: numbers as in the
/// regional settings, a mapping that names no column for a constant, the rotation in radians.
InsertionPlan insertionPlan(forms::Form& form, const basic::Regional& regional);

/// The rows that the report of a run names, a line each behind its first.
std::vector<int> reportedRows(const std::string& report);

}  // namespace window
