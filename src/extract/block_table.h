#pragma once

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "forms/list_view.h"
#include "host/document.h"
#include "host/entities.h"

#include <utility>

namespace extract {

/// The regime of a routine that skips its failures up to a point and lets them out from there on, also where
/// a loop brings it back to statements before that point.
class SkipAtFirst {
  public:
    template <typename Statement>
    void run(Statement&& statement) {
        if (skipping_) {
            errors_.skip(std::forward<Statement>(statement));
        } else {
            std::forward<Statement>(statement)();
        }
    }
    template <typename Condition>
    bool test(Condition&& condition) {
        return skipping_ ? errors_.test(std::forward<Condition>(condition))
                         : std::forward<Condition>(condition)();
    }
    void stopSkipping() { skipping_ = false; }
    basic::ErrorState& errors() { return errors_; }

  private:
    basic::ErrorState errors_;
    bool skipping_ = true;
};

// The table of a block's references lives in a list view and nowhere else; every cell is text from the start.

/// Gives the empty `table` the columns for references like `model`: number, insertion point, scales,
/// rotation, a column for each attribute of `model`, layer, colour. The headers are the same in every
/// language.
void addColumns(forms::ListView& table, const host::BlockReference& model, SkipAtFirst& regime);

/// Adds a row for each reference of `set`, numbered from 1, in the set's own order. Attributes go under the
/// columns by position, whatever their tags: layer and colour follow the row's last one, so they stand under
/// attribute columns in a row with fewer attributes than `model` has. In a row with more the write behind the
/// last column fails. Nothing is guarded: the row in hand stays as far as it got.
void addRows(forms::ListView& table, const host::SelectionSet& set, const host::BlockReference& model,
             const basic::Regional& regional);

}  // namespace extract
