#pragma once

#include "basic/error.h"
#include "desk/lisp/value.h"

#include <string>
#include <string_view>

namespace lisp {

/// The number of a failure inside Lisp as automation sees it: the callee raised an exception of its own.
inline constexpr std::int32_t kLispFailure = -2147352567;

/// A failure inside Lisp. Failures of the host's objects pass through Lisp with their own numbers.
class LispError : public basic::Error {
  public:
    explicit LispError(std::string message) : basic::Error(kLispFailure, std::move(message)) {}
};

/// The text to read ended inside a list, a string or a comment: more lines may complete it.
class IncompleteInput : public LispError {
  public:
    using LispError::LispError;
};

/// "bad argument type: numberp: nil": what was wanted, as the name of a predicate, and what was there.
LispError badArgumentType(std::string_view wanted, const Value& found);
/// "bad argument value: positive: -1".
LispError badArgumentValue(std::string_view wanted, const Value& found);

/// A failure's text as Lisp shows it: a failure of the host's objects begins with "Automation Error. ".
std::string errorMessage(const basic::Error& error);

}  // namespace lisp
