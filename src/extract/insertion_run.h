#pragma once

#include "extract/parameter_list.h"
#include "forms/screen.h"
#include "session/session.h"

#include <optional>
#include <string>
#include <utility>

namespace extract {

/// The insertion of all rows of a table in one pass. Each row stands alone: what fails abandons its row at
/// that point, nothing is taken back, and the run goes on with the next row. No layer or colour is set.
class InsertionRun {
  public:
    /// `addLeader`: moves each reference by the deltas and draws a line from the row's own position to where
    /// it lands, also one of no length. Without it the deltas aren't read at all.
    InsertionRun(const session::Session& session, const ParameterList& parameters, std::string blockName,
                 bool addLeader);

    /// Inserts the rows 1 to `count`. Raises nothing but what the messages of a failed row raise.
    void insertRows(int count);

    /// The success first, then a line for each row of which a text was no number; other failures leave none.
    const std::string& report() const { return report_; }
    /// Information, or exclamation once the report names a row.
    forms::MessageDialog::Icon icon() const { return icon_; }

  private:
    void insertRow(int row) const;
    double number(const char* parameter, int row) const;
    void reportRow(int row);

    const session::Session& session_;
    const ParameterList& parameters_;
    std::string blockName_;
    bool addLeader_;
    std::string report_;
    /// What stands before and behind a row's number, looked up at the first row that fails.
    std::optional<std::pair<std::string, std::string>> rowTexts_;
    forms::MessageDialog::Icon icon_ = forms::MessageDialog::Icon::Information;
};

}  // namespace extract
