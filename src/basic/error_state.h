#pragma once

#include "basic/border.h"
#include "basic/error.h"

#include <string>
#include <utility>

namespace basic {

/// The error state of one routine, which gives its failure regime a vocabulary:
///
///   - errors are ignored: each statement stands in `skip`, each condition in `test`;
///   - a guard that jumps to a handler: a plain `try` with `catch (const Error&)`;
///   - nothing is guarded: no state, no `try`.
///
/// The number stays set until `clear`: a statement that succeeds later doesn't reset it.
class ErrorState {
  public:
    /// Runs one statement. A failure is noted and the caller goes on with the next statement.
    /// Returns whether the statement ran to its end.
    template <typename Statement>
    bool skip(Statement&& statement) {
        try {
            acrossBorder(std::forward<Statement>(statement));
            return true;
        } catch (const Error& error) {
            note(error);
            return false;
        }
    }

    /// Evaluates a condition. One that fails counts as true, so its branch is entered.
    template <typename Condition>
    bool test(Condition&& condition) {
        try {
            return acrossBorder(std::forward<Condition>(condition));
        } catch (const Error& error) {
            note(error);
            return true;
        }
    }

    void note(const Error& error) {
        number_ = error.number();
        description_ = error.description();
    }
    void clear() {
        number_ = 0;
        description_.clear();
    }

    std::int32_t number() const { return number_; }
    const std::string& description() const { return description_; }
    bool failed() const { return number_ != 0; }

  private:
    std::int32_t number_ = 0;
    std::string description_;
};

}  // namespace basic
