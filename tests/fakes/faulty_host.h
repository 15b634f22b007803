#pragma once

#include "host/object.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fakes {

/// Stands before any host object, and before every object that comes out of it, counts the accesses and
/// raises an error at the chosen one instead of making it. Accesses are told as "get Count", "set Rotation",
/// "call Delete", "walk".
///
///     FaultyHost host(document);
///     session.AcadDoc = host.root();
///     host.failAt("call InsertBlock", 2);
class FaultyHost {
  public:
    explicit FaultyHost(const host::ObjectPtr& object) : state_(std::make_shared<State>()) {
        root_ = std::make_shared<Proxy>(object, state_);
    }

    const host::ObjectPtr& root() const { return root_; }

    /// Forgets the counts, the log and the failure that was ordered.
    void reset() { *state_ = State{}; }
    /// The nth access of all from now on fails, n from 1.
    void failAtCall(int n) { failAt({}, n); }
    /// The nth access of this kind fails, n from 1: a kind and a member as in the log, or a member alone.
    void failAt(std::string access, int n = 1) {
        state_->target = std::move(access);
        state_->countdown = n;
        state_->failed = false;
    }
    /// Whether the ordered failure has been raised.
    bool failed() const { return state_->failed; }
    int calls() const { return static_cast<int>(state_->log.size()); }
    const std::vector<std::string>& log() const { return state_->log; }
    /// How many entries of the log are this access or this member.
    int count(std::string_view access) const {
        int found = 0;
        for (const std::string& entry : state_->log) found += matches(entry, access) ? 1 : 0;
        return found;
    }

    static basic::Error standardFailure() { return {-2147467259, "The host refused."}; }

    /// The object behind a proxy; another object as it is.
    static host::ObjectPtr behind(const host::ObjectPtr& object) {
        const auto proxy = std::dynamic_pointer_cast<Proxy>(object);
        return proxy != nullptr ? proxy->object() : object;
    }

  private:
    struct State {
        std::vector<std::string> log;
        std::string target;
        int countdown = 0;  ///< 0: no failure is ordered
        bool failed = false;
    };
    using StatePtr = std::shared_ptr<State>;

    class Proxy : public host::Object {
      public:
        Proxy(host::ObjectPtr object, StatePtr state)
            : object_(std::move(object)), state_(std::move(state)) {}
        const host::ObjectPtr& object() const { return object_; }

        basic::Variant get(std::string_view member) override {
            pass("get", member);
            return wrap(object_->get(member));
        }
        void set(std::string_view member, const basic::Variant& value) override {
            pass("set", member);
            object_->set(member, unwrap(value));
        }
        basic::Variant call(std::string_view member, host::Arguments& arguments) override {
            pass("call", member);
            for (basic::Variant& argument : arguments) argument = unwrap(argument);
            basic::Variant result = wrap(object_->call(member, arguments));
            for (basic::Variant& argument : arguments) argument = wrap(argument);
            return result;
        }
        void enumerate(const std::function<bool(const basic::Variant&)>& visit) override {
            pass("walk", {});
            object_->enumerate([&](const basic::Variant& element) { return visit(wrap(element)); });
        }

      private:
        void pass(std::string_view kind, std::string_view member) {
            State& state = *state_;
            std::string access(kind);
            if (!member.empty()) access.append(" ").append(member);
            const bool hit = state.countdown > 0 && (state.target.empty() || matches(access, state.target)) &&
                             --state.countdown == 0;
            state.log.push_back(std::move(access));
            if (!hit) return;
            state.failed = true;
            throw standardFailure();
        }
        basic::Variant wrap(const basic::Variant& value) const {
            if (value.is(basic::Variant::Kind::Object)) {
                auto inner = std::dynamic_pointer_cast<host::Object>(value.object());
                if (inner == nullptr) return value;
                return basic::Variant(std::make_shared<Proxy>(std::move(inner), state_));
            }
            if (value.is(basic::Variant::Kind::VariantArray)) {
                basic::Array wrapped;
                for (const basic::Variant& element : value.array()) wrapped.push_back(wrap(element));
                return basic::Variant(std::move(wrapped));
            }
            return value;
        }
        static basic::Variant unwrap(const basic::Variant& value) {
            if (!value.is(basic::Variant::Kind::Object)) return value;
            const auto proxy = std::dynamic_pointer_cast<Proxy>(value.object());
            return proxy != nullptr ? basic::Variant(proxy->object()) : value;
        }

        host::ObjectPtr object_;
        StatePtr state_;
    };

    static bool matches(std::string_view entry, std::string_view access) {
        if (entry == access) return true;
        const std::size_t blank = entry.find(' ');
        return blank != std::string_view::npos && entry.substr(blank + 1) == access;
    }
    StatePtr state_;
    host::ObjectPtr root_;
};

}  // namespace fakes
