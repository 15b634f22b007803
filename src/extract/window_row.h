#pragma once

#include "forms/form.h"
#include "session/session.h"

#include <optional>

namespace extract {

/// The row of `VTable` that remembers a dialog's window: width, height, left and top in twips, each as the
/// text of a 32-bit float.
class WindowRow {
  public:
    WindowRow(session::Session& session, int row) : session_(session), row_(row) {}

    /// Gives the form the size and then the place of the row; an empty cell counts as 0. A number that no
    /// window can have, as a damaged settings file holds it, is left aside.
    void apply(forms::Form& form) const;

    void keepWidth(const forms::Form& form) { keep(0, form.width()); }
    void keepHeight(const forms::Form& form) { keep(1, form.height()); }
    void keepPlace(const forms::Form& form) {
        keep(2, form.left());
        keep(3, form.top());
    }

  private:
    std::optional<forms::Twips> cell(int column, forms::Twips least) const;
    void keep(int column, forms::Twips value);

    session::Session& session_;
    int row_;
};

/// How much a length exceeds another, rounded to a whole number of twips.
int excess(forms::Twips length, int least);

}  // namespace extract
