#include "desk/lisp/value.h"

#include "desk/lisp/error.h"

#include <new>

namespace lisp {

bool Value::isSoleOwner() const {
    const auto* cell = std::get_if<std::shared_ptr<const Cons>>(&data_);
    const auto* function = std::get_if<std::shared_ptr<const Usubr>>(&data_);
    return (cell != nullptr && cell->use_count() == 1) || (function != nullptr && function->use_count() == 1);
}

namespace {

/// Values that die with the one that held them. They are emptied before they go, so that no destructor calls
/// another in depth.
class Dying {
  public:
    /// Where memory lacks for the list, a value dies in depth after all.
    void take(Value& value) {
        if (!value.isSoleOwner()) return;
        try {
            values_.push_back(std::move(value));
        } catch (const std::bad_alloc&) {
        }
    }
    void free() {
        while (!values_.empty()) {
            const Value value = std::move(values_.back());
            values_.pop_back();
            if (const Cons* cell = value.cons()) {
                take(cell->first);
                take(cell->rest);
            } else {
                take(value.usubr()->body);
            }
        }
    }

  private:
    std::vector<Value> values_;
};

}  // namespace

Cons::~Cons() {
    Dying dying;
    dying.take(first);
    dying.take(rest);
    dying.free();
}

Usubr::~Usubr() {
    Dying dying;
    dying.take(body);
    dying.free();
}

Value cons(Value first, Value rest) {
    return Value(std::make_shared<const Cons>(std::move(first), std::move(rest)));
}

Value makeList(std::vector<Value> items, Value tail) {
    Value list = std::move(tail);
    for (auto item = items.rbegin(); item != items.rend(); ++item)
        list = cons(std::move(*item), std::move(list));
    return list;
}

std::vector<Value> listItems(const Value& list) {
    std::vector<Value> items;
    const Value* rest = &list;
    while (const Cons* cell = rest->cons()) {
        items.push_back(cell->first);
        rest = &cell->rest;
    }
    if (rest->isTrue()) throw badArgumentType("listp", list);
    return items;
}

const char* typeName(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Nil:
            return "";
        case Value::Kind::Integer:
            return "INT";
        case Value::Kind::Real:
            return "REAL";
        case Value::Kind::Text:
            return "STR";
        case Value::Kind::Symbol:
            return "SYM";
        case Value::Kind::Cons:
            return "LIST";
        case Value::Kind::Subr:
            return "SUBR";
        case Value::Kind::Usubr:
            return "USUBR";
        case Value::Kind::Variant:
            return "VARIANT";
        case Value::Kind::SafeArray:
            return "SAFEARRAY";
        case Value::Kind::Object:
            return "VLA-OBJECT";
        case Value::Kind::Caught:
            return "VL-CATCH-ALL-APPLY-ERROR";
    }
    return "";
}

}  // namespace lisp
