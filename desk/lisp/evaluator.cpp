// The evaluator: Interpreter's evaluation, calls and bindings. Binding is dynamic: a call puts its arguments
// into the symbols themselves and puts the former values back when it ends.

#include "desk/lisp/call.h"
#include "desk/lisp/interpreter.h"
#include "desk/lisp/printer.h"

#include <utility>

namespace lisp {

namespace {

void checkCount(std::size_t count, int least, int most) {
    if (count < static_cast<std::size_t>(least)) throw LispError("too few arguments");
    if (most >= 0 && count > static_cast<std::size_t>(most)) throw LispError("too many arguments");
}

LispError noFunction(const Value& designator) {
    const std::string shown = printed(designator, Style::Readable, 200);
    return LispError((designator.symbol() ? "no function definition: " : "bad function: ") + shown);
}

}  // namespace

/// Sets the stack's guard for as long as the outermost evaluation runs.
class Interpreter::Entry {
  public:
    explicit Entry(Interpreter& lisp) : lisp_(lisp), isOutermost_(!lisp.guard_) {
        if (isOutermost_) lisp_.guard_.emplace(StackGuard::kEvaluation);
    }
    ~Entry() {
        if (isOutermost_) lisp_.guard_.reset();
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

  private:
    Interpreter& lisp_;
    bool isOutermost_;
};

/// The bindings of one call, undone at its end, also by a failure, in the reverse order.
class Interpreter::Bindings {
  public:
    explicit Bindings(std::size_t count) { saved_.reserve(count); }
    ~Bindings() {
        for (auto binding = saved_.rbegin(); binding != saved_.rend(); ++binding) {
            std::swap(binding->first->value, binding->second);
        }
    }
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

    void bind(const SymbolPtr& symbol, Value value) {
        saved_.emplace_back(symbol, std::exchange(symbol->value, std::move(value)));
    }

  private:
    std::vector<std::pair<SymbolPtr, Value>> saved_;
};

Value Interpreter::evaluate(const Value& form) {
    if (const Symbol* symbol = form.symbol()) return symbol->value;
    const Cons* cell = form.cons();
    if (cell == nullptr) return form;
    const Entry entry(*this);
    guard_->check();
    step();

    // A form can change the symbol that holds it: the function and the form are kept while the call runs.
    const Value kept = form;  // NOLINT(performance-unnecessary-copy-initialization)
    const Value function = functionOf(cell->first);
    if (const Subr* subr = function.subr(); subr != nullptr && subr->form != nullptr) {
        return subr->form(*this, cell->rest);
    }
    std::vector<Value> arguments;
    const Value* rest = &cell->rest;
    while (const Cons* argument = rest->cons()) {
        arguments.push_back(evaluate(argument->first));
        rest = &argument->rest;
    }
    if (rest->isTrue()) throw LispError("bad argument list");
    return call(function, cell->first, std::move(arguments));
}

Value Interpreter::evaluateAll(const Value& forms) {
    const Value kept = forms;  // NOLINT(performance-unnecessary-copy-initialization): as above
    const Value* rest = &kept;
    Value value;
    while (const Cons* cell = rest->cons()) {
        value = evaluate(cell->first);
        rest = &cell->rest;
    }
    return value;
}

Value Interpreter::functionOf(const Value& designator) {
    if (designator.symbol() != nullptr) {
        const Value& value = designator.symbol()->value;
        return value.isNil() ? vlaFunction(designator.symbolPtr()) : value.cons() ? functionOf(value) : value;
    }
    const Cons* cell = designator.cons();
    if (cell == nullptr) return designator;
    if (cell->first.symbol() == symbols_.lambda().get()) return makeFunction("LAMBDA", cell->rest);
    // A list that is itself a definition, (parameters form...), as the value of a symbol.
    if (cell->first.isNil() || cell->first.cons() != nullptr) return makeFunction("LAMBDA", designator);
    return {};
}

Value Interpreter::vlaFunction(const SymbolPtr& symbol) {
    if (!symbol->name.starts_with("VLA-") || symbol->name.size() == 4) return {};
    symbol->value = Value(std::make_shared<const Subr>(
        Subr{.name = symbol->name, .least = 1, .most = -1, .function = callVlaMember}));
    return symbol->value;
}

Value Interpreter::apply(const Value& function, std::vector<Value> arguments) {
    const Entry entry(*this);
    guard_->check();
    return call(functionOf(function), function, std::move(arguments));
}

Value Interpreter::call(const Value& function, const Value& designator, std::vector<Value> arguments) {
    if (const Subr* subr = function.subr(); subr != nullptr && subr->function != nullptr) {
        return callSubr(*subr, arguments);
    }
    if (const Usubr* usubr = function.usubr()) return callUsubr(*usubr, std::move(arguments));
    throw noFunction(designator);
}

Value Interpreter::callSubr(const Subr& subr, const std::vector<Value>& arguments) {
    checkCount(arguments.size(), subr.least, subr.most);
    Call call{*this, subr, arguments};
    return subr.function(call);
}

Value Interpreter::callUsubr(const Usubr& usubr, std::vector<Value> arguments) {
    const int count = static_cast<int>(usubr.parameters.size());
    checkCount(arguments.size(), count, count);
    Bindings bindings(usubr.parameters.size() + usubr.locals.size());
    for (std::size_t i = 0; i < arguments.size(); ++i)
        bindings.bind(usubr.parameters[i], std::move(arguments[i]));
    for (const SymbolPtr& local : usubr.locals) bindings.bind(local, {});
    return evaluateAll(usubr.body);
}

Value Interpreter::makeFunction(std::string name, const Value& definition) {
    const Cons* cell = definition.cons();
    if (cell == nullptr) throw LispError("syntax error in " + name);
    auto usubr = std::make_shared<Usubr>();
    usubr->name = std::move(name);
    usubr->body = cell->rest;
    bool isLocal = false;
    for (const Value& parameter : listItems(cell->first)) {
        if (parameter.symbol() == nullptr) throw badArgumentType("symbolp", parameter);
        if (parameter.symbol() == symbols_.slash().get()) {
            isLocal = true;
        } else if (parameter.symbol()->isConstant) {
            throw LispError("assignment to protected symbol: " + parameter.symbol()->name);
        } else {
            (isLocal ? usubr->locals : usubr->parameters).push_back(parameter.symbolPtr());
        }
    }
    return Value(std::shared_ptr<const Usubr>(std::move(usubr)));
}

const Value& Forms::take() {
    const Cons* cell = rest_->cons();
    if (cell == nullptr) throw LispError("too few arguments");
    rest_ = &cell->rest;
    return cell->first;
}

}  // namespace lisp
