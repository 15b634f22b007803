#include "session/session.h"

#include "basic/error.h"
#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace session {

bool Session::NameLess::operator()(std::string_view left, std::string_view right) const {
    const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                                      [&](char a, char b) { return a == b || small(a) == small(b); });
    return r != right.end() && (l == left.end() || small(*l) < small(*r));
}

Session::Session(platform::Platform& platform, forms::Screen& screen)
    : platform_(platform), screen_(screen), entryFiles_(platform) {}

Session::~Session() = default;

void Session::registerForm(std::string_view name, FormFactory factory) {
    factories_.insert_or_assign(std::string(name), std::move(factory));
}

forms::Form& Session::form(std::string_view name) {
    if (const auto made = forms_.find(name); made != forms_.end()) return *made->second;
    const auto factory = factories_.find(name);
    if (factory == factories_.end())
        throw basic::Error(basic::kObjectNotSet, "There is no dialog " + std::string(name));
    forms::Form& form = *forms_.emplace(factory->first, factory->second(*this)).first->second;
    try {
        form.initialize();
    } catch (...) {
        dropForm(name);
        throw;
    }
    return form;
}

void Session::dropForm(std::string_view name) {
    const auto found = forms_.find(name);
    if (found == forms_.end()) return;
    // Out of the table first: what the dialog's end still asks for finds the variable empty.
    const auto dropped = std::move(found->second);
    forms_.erase(found);
}

}  // namespace session
