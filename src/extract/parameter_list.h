#pragma once

#include "basic/error_state.h"
#include "forms/list_view.h"
#include "forms/lists.h"
#include "host/entities.h"

#include <string>

namespace extract {

/// The parameters of a re-insertion, each with its mapping, and the table of rows that they draw on, as two
/// list views hold them. A mapping is one text: the header of a column of the table, or a constant. Which of
/// the two it is shows only when a value is asked for.
class ParameterList {
  public:
    ParameterList(forms::ListView& parameters, forms::ListView& table)
        : parameters_(parameters), table_(table) {}

    /// Adds the ten fixed parameters, with empty mappings.
    void addFixedParameters();
    /// The fixed parameters and one for each attribute of `reference`, errors being ignored. Unless the table
    /// has the columns of a file, it gets placeholder columns, one a parameter, which are added to
    /// `candidates` too; what stands there already stays, so placeholders pile up in it.
    void ResetParameterRows(const host::BlockReference& reference, bool ColumnsLoaded,
                            forms::ComboBox& candidates, basic::ErrorState& errors);
    /// The mapping by position, in the layout of an extraction's file: coordinates, scales and rotation from
    /// the second column on, deltas "0", attributes from the ninth column on. Where a column is missing the
    /// mapping stays; errors are ignored.
    void ApplyDefaultMapping(basic::ErrorState& errors);

    /// The mapping of a parameter by its row, from 1.
    const std::string& mapping(int row) const;

    /// The value of the first parameter of exactly that name for a row of the table, from 1: that row's cell
    /// under the first column headed by the mapping, or the mapping itself where no column is. So a constant
    /// that equals a header counts as that column. Raises kSubscript for a name that isn't in the list or a
    /// row that isn't in the table.
    const std::string& GetParameterValue(const std::string& name, int row) const;

  private:
    void useAsMapping(int row, int column);

    forms::ListView& parameters_;
    forms::ListView& table_;
};

/// The rows of the leader line's deltas among the fixed parameters.
inline constexpr int kDeltaRows[] = {8, 9, 10};

}  // namespace extract
