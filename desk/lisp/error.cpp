#include "desk/lisp/error.h"

#include "desk/lisp/printer.h"

namespace lisp {

namespace {

/// A value in a message: a long one is cut, and a damaged message must not hide the failure it tells of.
std::string shown(const Value& value) {
    constexpr std::size_t kLongest = 200;
    std::string text = printed(value, Style::Readable, kLongest);
    return text;
}

}  // namespace

LispError badArgumentType(std::string_view wanted, const Value& found) {
    return LispError("bad argument type: " + std::string(wanted) + ": " + shown(found));
}

LispError badArgumentValue(std::string_view wanted, const Value& found) {
    return LispError("bad argument value: " + std::string(wanted) + ": " + shown(found));
}

std::string errorMessage(const basic::Error& error) {
    if (dynamic_cast<const LispError*>(&error) != nullptr) return error.description();
    return "Automation Error. " + error.description();
}

}  // namespace lisp
