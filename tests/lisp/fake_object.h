#pragma once

#include "basic/error.h"
#include "basic/text.h"
#include "host/object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// An object of the host with methods made of functions, properties that can be set, and elements.
class FakeObject : public host::Object {
  public:
    using Variant = basic::Variant;
    std::map<std::string, std::function<Variant(host::Arguments&)>> members;  ///< methods
    std::map<std::string, Variant, std::less<>> properties;                   ///< by name in capitals
    std::vector<Variant> elements;

    Variant get(std::string_view member) override {
        const auto found = properties.find(basic::toUpper(member));
        host::Arguments none;
        return found != properties.end() ? found->second : call(member, none);
    }
    void set(std::string_view member, const Variant& value) override {
        properties[basic::toUpper(member)] = value;
    }
    Variant call(std::string_view member, host::Arguments& arguments) override {
        for (const auto& [name, function] : members)
            if (basic::equalIgnoringCase(name, member)) return function(arguments);
        throw basic::Error(basic::kNoSuchMember);
    }
    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (const Variant& element : elements) {
            if (!visit(element)) return;
        }
    }
};
