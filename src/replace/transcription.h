#pragma once

#include "host/entities.h"

#include <functional>
#include <string>

namespace replace {

/// Which attribute of the old block feeds which of the new one. Row n, from 1, stands for position n - 1 in
/// the old reference's array of attributes.
class TranscriptionTable {
  public:
    virtual ~TranscriptionTable() = default;
    virtual int rowCount() const = 0;
    /// Tag of the attribute that the row feeds; empty for none.
    virtual const std::string& destination(int row) const = 0;
};

/// Gives the attributes of `reference` the values that the table finds in `old`: by position, whatever the
/// tag there. Of several rows with one destination the first counts; several attributes with one tag get the
/// same value; an attribute that no row names keeps its own. `table` is asked for each attribute. Raises
/// kSubscript when `old` has fewer attributes than a row asks for, and what the host raises.
void transcribe(const host::BlockReference& old, const host::BlockReference& reference,
                const std::function<const TranscriptionTable&()>& table);

}  // namespace replace
