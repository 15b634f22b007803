#pragma once

#include "tests/fakes/fake_lisp.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// An object of the host with methods made of functions, properties that can be set, and elements.
class FakeObject : public fakes::FakeMembers {
  public:
    using Variant = basic::Variant;
    std::map<std::string, Variant, std::less<>> properties;  ///< by name in capitals
    std::vector<Variant> elements;

    Variant get(std::string_view member) override {
        const auto found = properties.find(basic::toUpper(member));
        return found != properties.end() ? found->second : FakeMembers::get(member);
    }
    void set(std::string_view member, const Variant& value) override {
        properties[basic::toUpper(member)] = value;
    }
    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (const Variant& element : elements) {
            if (!visit(element)) return;
        }
    }
};
