#include "desk/lisp/automation.h"

#include "basic/text.h"
#include "desk/lisp/conversion.h"
#include "desk/lisp/error.h"
#include "desk/lisp/interpreter.h"

namespace lisp {

namespace {

using basic::Variant;
using InterpreterRef = std::weak_ptr<Interpreter>;

std::shared_ptr<Interpreter> locked(const InterpreterRef& interpreter) {
    auto lisp = interpreter.lock();
    if (!lisp) throw LispError("Lisp is no longer available");
    return lisp;
}

/// An object with neither settable properties nor elements; a property can be asked for by either road.
class BridgeObject : public host::Object {
  public:
    explicit BridgeObject(InterpreterRef interpreter) : interpreter_(std::move(interpreter)) {}

    Variant get(std::string_view member) override {
        host::Arguments none;
        return call(member, none);
    }
    void set(std::string_view, const Variant&) override { throw basic::Error(basic::kNoSuchMember); }
    void enumerate(const std::function<bool(const Variant&)>&) override {
        throw basic::Error(basic::kNoSuchMember);
    }

  protected:
    static void expect(std::string_view member, std::string_view name) {
        if (!basic::equalIgnoringCase(member, name)) throw basic::Error(basic::kNoSuchMember);
    }

    InterpreterRef interpreter_;
};

/// A function of Lisp by its name; what the name means is looked up at each call.
class FunctionObject : public BridgeObject {
  public:
    FunctionObject(InterpreterRef interpreter, SymbolPtr symbol)
        : BridgeObject(std::move(interpreter)), symbol_(std::move(symbol)) {}

    Variant call(std::string_view member, host::Arguments& arguments) override {
        expect(member, "funcall");
        const auto lisp = locked(interpreter_);
        std::size_t count = arguments.size();
        while (count > 0 && arguments[count - 1].isMissing()) --count;
        std::vector<Value> values;
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(fromHost(*lisp, arguments[i], Shape::Bridged));
        return toHost(lisp->apply(Value(symbol_), std::move(values)), Lists::AsObjects);
    }

  private:
    SymbolPtr symbol_;
};

class FunctionsObject : public BridgeObject {
  public:
    using BridgeObject::BridgeObject;

    Variant call(std::string_view member, host::Arguments& arguments) override {
        expect(member, "Item");
        if (arguments.size() != 1) throw basic::Error(basic::kInvalidCall);
        const auto lisp = locked(interpreter_);
        const SymbolPtr symbol = lisp->symbols().intern(arguments[0].text());
        const Value function = lisp->functionOf(Value(symbol));
        const bool isCallable = function.usubr() || (function.subr() && function.subr()->function);
        if (!isCallable) throw LispError("no function definition: " + symbol->name);
        return std::make_shared<FunctionObject>(interpreter_, symbol);
    }
};

class LispDocument : public BridgeObject {
  public:
    using BridgeObject::BridgeObject;

    Variant call(std::string_view member, host::Arguments&) override {
        expect(member, "Functions");
        return std::make_shared<FunctionsObject>(interpreter_);
    }
};

class LispApplication : public BridgeObject {
  public:
    using BridgeObject::BridgeObject;

    Variant call(std::string_view member, host::Arguments&) override {
        expect(member, "ActiveDocument");
        return std::make_shared<LispDocument>(interpreter_);
    }
};

}  // namespace

host::ObjectPtr makeLispApplication(std::weak_ptr<Interpreter> interpreter) {
    return std::make_shared<LispApplication>(std::move(interpreter));
}

}  // namespace lisp
