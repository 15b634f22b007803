#pragma once

#include "basic/error.h"
#include "basic/text.h"
#include "host/object.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace fakes {

/// An object of the host made of functions, one a member; a property is a function without arguments.
class FakeMembers : public host::Object {
  public:
    using Member = std::function<host::Variant(host::Arguments&)>;
    std::map<std::string, Member> members;

    host::Variant get(std::string_view member) override {
        host::Arguments none;
        return call(member, none);
    }
    void set(std::string_view, const host::Variant&) override { throw basic::Error(basic::kNoSuchMember); }
    host::Variant call(std::string_view member, host::Arguments& arguments) override {
        for (const auto& [name, function] : members)
            if (basic::equalIgnoringCase(name, member)) return function(arguments);
        throw basic::Error(basic::kNoSuchMember);
    }
    void enumerate(const std::function<bool(const host::Variant&)>&) override {
        throw basic::Error(basic::kNoSuchMember);
    }
};

/// A document whose application gives a Lisp of symbols alone: "read" gives the text back, "eval" a symbol's
/// value. All requests are logged.
class FakeLisp {
  public:
    static constexpr int kLispError = -2147467259;

    std::set<std::string> available{"VL.Application"};  ///< names under which the application gives Lisp
    std::map<std::string, host::Variant> symbols;
    std::vector<std::string> requested;  ///< names asked of the application
    std::vector<std::string> called;     ///< Lisp functions called, with their first argument if it is a text
    std::string failing;                 ///< a Lisp function that raises an error

    FakeLisp() : document_(std::make_shared<FakeMembers>()) {
        auto functions = object({{"Item", [this](host::Arguments& a) { return function(a.at(0).text()); }}});
        auto active = object({{"Functions", [functions](auto&) { return functions; }}});
        auto lisp = object({{"ActiveDocument", [active](auto&) { return active; }}});
        auto application = object({{"GetInterfaceObject", [this, lisp](host::Arguments& a) {
                                        requested.push_back(a.at(0).text());
                                        if (!available.contains(requested.back()))
                                            throw basic::Error(429, "no such class");
                                        return lisp;
                                    }}});
        document_->members["Application"] = [application](auto&) { return application; };
    }
    const std::shared_ptr<FakeMembers>& document() { return document_; }

  private:
    static host::Variant object(std::map<std::string, FakeMembers::Member> members) {
        auto made = std::make_shared<FakeMembers>();
        made->members = std::move(members);
        return host::Variant(std::move(made));
    }
    host::Variant function(const std::string& name) {
        return object({{"funcall", [this, name](host::Arguments& a) { return evaluate(name, a); }}});
    }
    host::Variant evaluate(const std::string& name, host::Arguments& arguments) {
        const bool text = !arguments.empty() && arguments[0].is(basic::Variant::Kind::Text);
        called.push_back(text ? name + " " + arguments[0].text() : name);
        if (name == failing) throw basic::Error(kLispError, "error in " + name);
        if (name == "read") return arguments.at(0);
        if (name == "eval") return symbols[arguments.at(0).text()];
        throw basic::Error(kLispError, "no function " + name);
    }

    std::shared_ptr<FakeMembers> document_;
};

}  // namespace fakes
