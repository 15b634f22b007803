// Special forms: what gets its arguments unevaluated.

#include "desk/lisp/call.h"
#include "desk/lisp/conversion.h"

namespace lisp {

namespace {

Value quote(Interpreter&, const Value& arguments) {
    Forms forms(arguments);
    return forms.take();
}

/// (function f): as quote, but a lambda list becomes the function at once.
Value function(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value& designator = forms.take();
    return designator.cons() ? lisp.functionOf(designator) : designator;
}

Value setq(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    Value value;
    while (!forms.atEnd()) {
        const Value& target = forms.take();
        if (target.symbol() == nullptr) throw badArgumentType("symbolp", target);
        value = lisp.evaluate(forms.take());
        lisp.assign(*target.symbol(), value);
    }
    return value;
}

/// (defun name (parameters / locals) form...): the name's symbol.
Value defun(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value& name = forms.take();
    if (name.symbol() == nullptr) throw badArgumentType("symbolp", name);
    lisp.assign(*name.symbol(), lisp.makeFunction(name.symbol()->name, forms.rest()));
    return name;
}

Value lambda(Interpreter& lisp, const Value& arguments) { return lisp.makeFunction("LAMBDA", arguments); }

Value progn(Interpreter& lisp, const Value& arguments) { return lisp.evaluateAll(arguments); }

Value ifForm(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const bool isTrue = lisp.evaluate(forms.take()).isTrue();
    const Value& then = forms.take();
    if (isTrue) return lisp.evaluate(then);
    const Value otherwise = forms.atEnd() ? Value() : forms.take();
    if (!forms.atEnd()) throw LispError("too many arguments");
    return lisp.evaluate(otherwise);
}

/// (cond (test form...)...): a clause without forms gives its test's value.
Value cond(Interpreter& lisp, const Value& arguments) {
    for (Forms clauses(arguments); !clauses.atEnd();) {
        const Value& clause = clauses.take();
        if (clause.cons() == nullptr) throw badArgumentType("consp", clause);
        Forms forms(clause);
        const Value test = lisp.evaluate(forms.take());
        if (test.isTrue()) return forms.atEnd() ? test : lisp.evaluateAll(forms.rest());
    }
    return {};
}

Value andForm(Interpreter& lisp, const Value& arguments) {
    for (Forms forms(arguments); !forms.atEnd();) {
        if (lisp.evaluate(forms.take()).isNil()) return {};
    }
    return lisp.truth();
}

/// (or form...): T, not the value that was true.
Value orForm(Interpreter& lisp, const Value& arguments) {
    for (Forms forms(arguments); !forms.atEnd();) {
        if (lisp.evaluate(forms.take()).isTrue()) return lisp.truth();
    }
    return {};
}

Value whileForm(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value& test = forms.take();
    Value value;
    while (lisp.evaluate(test).isTrue()) {
        lisp.step();
        value = lisp.evaluateAll(forms.rest());
    }
    return value;
}

Value repeat(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value count = lisp.evaluate(forms.take());
    if (count.integer() == nullptr) throw badArgumentType("fixnump", count);
    Value value;
    for (std::int32_t i = 0; i < *count.integer(); ++i) {
        lisp.step();
        value = lisp.evaluateAll(forms.rest());
    }
    return value;
}

/// A loop's variable, which has its former value again after the loop.
class LoopVariable {
  public:
    explicit LoopVariable(const Value& name) {
        if (name.symbol() == nullptr) throw badArgumentType("symbolp", name);
        symbol_ = name.symbolPtr();
        saved_ = symbol_->value;
    }
    ~LoopVariable() { std::swap(symbol_->value, saved_); }
    LoopVariable(const LoopVariable&) = delete;
    LoopVariable& operator=(const LoopVariable&) = delete;

    void set(Interpreter& lisp, Value value) const { lisp.assign(*symbol_, std::move(value)); }

  private:
    SymbolPtr symbol_;
    Value saved_;
};

Value forEach(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value& name = forms.take();
    const Value list = lisp.evaluate(forms.take());
    const LoopVariable variable(name);
    Value value;
    for (const Value& item : listItems(list)) {
        variable.set(lisp, item);
        value = lisp.evaluateAll(forms.rest());
    }
    return value;
}

/// (vlax-for name collection form...): the objects of a collection of the host.
Value vlaxFor(Interpreter& lisp, const Value& arguments) {
    Forms forms(arguments);
    const Value& name = forms.take();
    const Value collection = lisp.evaluate(forms.take());
    if (collection.object() == nullptr) throw badArgumentType("VLA-OBJECT", collection);
    const host::ObjectPtr object = collection.object()->object;
    if (!object) throw LispError("object was released: VLAX-FOR");
    const LoopVariable variable(name);
    Value value;
    object->enumerate([&](const basic::Variant& item) {
        variable.set(lisp, fromHost(lisp, item, Shape::Wrapped));
        value = lisp.evaluateAll(forms.rest());
        return true;
    });
    return value;
}

}  // namespace

std::span<const FormEntry> specialForms() {
    static constexpr FormEntry kTable[] = {
        {"QUOTE", quote},     {"FUNCTION", function}, {"SETQ", setq},       {"DEFUN", defun},
        {"LAMBDA", lambda},   {"PROGN", progn},       {"IF", ifForm},       {"COND", cond},
        {"AND", andForm},     {"OR", orForm},         {"WHILE", whileForm}, {"REPEAT", repeat},
        {"FOREACH", forEach}, {"VLAX-FOR", vlaxFor},
    };
    return kTable;
}

}  // namespace lisp
