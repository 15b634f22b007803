#pragma once

#include "basic/error.h"

#include <stdexcept>
#include <utility>

namespace basic {

/// Ends a whole session's business rather than one operation: an act that no user could do, the end of a
/// script in the middle of a dialog. It is no failure of the logic, so it passes every regime and border.
class Interruption : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The exception in hand as the one that may cross a border: raises an Error or an Interruption as it stands,
/// any other (a lack of memory, the standard library's own) as an Error with number and description. Called
/// in a catch block.
[[noreturn]] void rethrowAcrossBorder();

/// How often memory has run out at a border. A regime may go on over it; whoever began the work can tell by
/// this that a part of it may be missing.
int memoryShortages();

/// Runs `operation` at a border between rooms or programs, so that no other exception than Error and
/// Interruption gets further. Gives what it gives.
template <typename Operation>
decltype(auto) acrossBorder(Operation&& operation) {
    try {
        return std::forward<Operation>(operation)();
    } catch (...) {
        rethrowAcrossBorder();
    }
}

/// The border of a destructor: what `operation` raises, whatever it is, ends here without a word.
template <typename Operation>
void inDestructor(Operation&& operation) noexcept {
    try {
        std::forward<Operation>(operation)();
    } catch (...) {  // nobody is left to be told
    }
}

}  // namespace basic
