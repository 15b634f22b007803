#include "desk/lisp/conversion.h"

#include "desk/lisp/error.h"

#include <algorithm>

namespace lisp {

namespace {

using basic::Variant;

/// A value of Lisp on its way through automation, which can do nothing with it but hand it back.
class LispObject : public host::Object {
  public:
    explicit LispObject(Value value) : value_(std::move(value)) {}
    const Value& value() const { return value_; }

    Variant get(std::string_view) override { throw basic::Error(basic::kNoSuchMember); }
    void set(std::string_view, const Variant&) override { throw basic::Error(basic::kNoSuchMember); }
    Variant call(std::string_view, host::Arguments&) override { throw basic::Error(basic::kNoSuchMember); }
    void enumerate(const std::function<bool(const Variant&)>&) override {
        throw basic::Error(basic::kNoSuchMember);
    }

  private:
    Value value_;
};

Value wrap(std::int32_t type, Value content) {
    return Value(std::make_shared<const VariantBox>(VariantBox{type, std::move(content)}));
}

Value objectFrom(const Variant& value) {
    if (value.isNothing()) return {};
    if (const auto lisp = std::dynamic_pointer_cast<LispObject>(value.object())) return lisp->value();
    return Value(std::make_shared<ObjectBox>(ObjectBox{host::asObject(value)}));
}

/// Arrays and lists on their way to the host nest no deeper than this, so that their copies need no more
/// stack than there is.
constexpr int kDeepest = 100;

/// A copy that shares no array with the original, so that an array put into itself makes no circle.
Value copyOf(const SafeArray& array, int depth = 0) {
    if (depth > kDeepest) throw LispError("safe arrays nested too deep");
    auto copy = std::make_shared<SafeArray>(array);
    for (Value& element : copy->elements) {
        const VariantBox* box = element.variant();
        if (box != nullptr && box->content.safeArray() != nullptr) {
            element = wrap(box->type, copyOf(*box->content.safeArray(), depth + 1));
        }
    }
    return copy;
}

/// An element of an array of variants: a variant itself, an array within too.
Value elementFrom(Interpreter& lisp, const Variant& element) {
    if (element.is(Variant::Kind::Int16)) return wrap(kVtInteger, Value(std::int32_t{element.integer()}));
    Value value = fromHost(lisp, element, Shape::Bridged);
    if (value.cons() || value.symbol() || value.subr() || value.usubr())
        return value;  // back from automation
    return value.variant() ? value : makeVariant(value);
}

Value arrayFrom(Interpreter& lisp, const Variant& value) {
    auto array = std::make_shared<SafeArray>();
    if (value.is(Variant::Kind::DoubleArray)) {
        array->type = kVtDouble;
        for (const double item : value.doubles()) array->elements.emplace_back(item);
    } else if (value.is(Variant::Kind::ShortArray)) {
        array->type = kVtInteger;
        for (const std::int16_t item : value.shorts()) array->elements.emplace_back(std::int32_t{item});
    } else {
        for (const Variant& item : value.array()) array->elements.push_back(elementFrom(lisp, item));
    }
    const std::int32_t type = kVtArray + array->type;
    return wrap(type, Value(std::move(array)));
}

Value listFrom(Interpreter& lisp, const Variant& value) {
    ListBuilder list;
    if (value.is(Variant::Kind::DoubleArray)) {
        for (const double item : value.doubles()) list.add(item);
    } else if (value.is(Variant::Kind::ShortArray)) {
        for (const std::int16_t item : value.shorts()) list.add(std::int32_t{item});
    } else {
        for (const Variant& item : value.array()) list.add(fromHost(lisp, item, Shape::Plain));
    }
    return list.take();
}

Variant toHost(const Value& value, Lists lists, int depth);

Variant arrayTo(const SafeArray& array, Lists lists, int depth) {
    if (array.type == kVtDouble || array.type == kVtSingle) {
        basic::Doubles doubles;
        for (const Value& item : array.elements) doubles.push_back(item.number());
        return doubles;
    }
    if (array.type == kVtInteger) {
        basic::Shorts shorts;
        for (const Value& item : array.elements) shorts.push_back(static_cast<std::int16_t>(*item.integer()));
        return shorts;
    }
    basic::Array variants;
    for (const Value& item : array.elements) variants.push_back(toHost(item, lists, depth + 1));
    return variants;
}

Variant listTo(const Value& list, int depth) {
    const std::vector<Value> items = listItems(list);
    if (std::all_of(items.begin(), items.end(), [](const Value& item) { return item.isNumber(); })) {
        basic::Doubles doubles;
        for (const Value& item : items) doubles.push_back(item.number());
        return doubles;
    }
    basic::Array variants;
    for (const Value& item : items) variants.push_back(toHost(item, Lists::AsArrays, depth + 1));
    return variants;
}

Variant symbolTo(const Value& value, Lists lists) {
    const Symbol& symbol = *value.symbol();
    if (symbol.isConstant) return symbol.name != ":VLAX-FALSE";
    if (lists == Lists::AsArrays) throw badArgumentType("variantp", value);
    return std::make_shared<LispObject>(value);
}

Variant toHost(const Value& value, Lists lists, int depth) {
    if (depth > kDeepest) throw LispError("lists nested too deep for the host");
    switch (value.kind()) {
        case Value::Kind::Nil:
            return {};
        case Value::Kind::Integer:
            return *value.integer();
        case Value::Kind::Real:
            return *value.real();
        case Value::Kind::Text:
            return *value.text();
        case Value::Kind::Symbol:
            return symbolTo(value, lists);
        case Value::Kind::Variant: {
            const VariantBox& box = *value.variant();
            if (box.type == kVtInteger) return static_cast<std::int16_t>(*box.content.integer());
            return toHost(box.content, lists, depth + 1);
        }
        case Value::Kind::SafeArray:
            return arrayTo(*value.safeArray(), lists, depth);
        case Value::Kind::Object:
            if (!value.object()->object) throw LispError("object was released");
            return value.object()->object;
        default:
            break;
    }
    if (lists == Lists::AsObjects) return std::make_shared<LispObject>(value);
    if (value.cons() != nullptr) return listTo(value, depth);
    throw badArgumentType("variantp", value);
}

}  // namespace

Value fromHost(Interpreter& lisp, const Variant& value, Shape shape) {
    switch (value.kind()) {
        case Variant::Kind::Empty:
        case Variant::Kind::Missing:
            return {};
        case Variant::Kind::Boolean: {
            if (shape == Shape::Plain) return Value(std::int32_t{value.boolean() ? -1 : 0});
            const SymbolTable& symbols = lisp.symbols();
            Value truth(value.boolean() ? symbols.vlaTrue() : symbols.vlaFalse());
            return shape == Shape::Bridged ? wrap(kVtBoolean, std::move(truth)) : truth;
        }
        case Variant::Kind::Int16:
        case Variant::Kind::Int32:
            return Value(value.integer());
        case Variant::Kind::Double:
            return Value(value.number());
        case Variant::Kind::Text:
            return Value(value.text());
        case Variant::Kind::Object:
            return objectFrom(value);
        case Variant::Kind::VariantArray:
        case Variant::Kind::DoubleArray:
        case Variant::Kind::ShortArray:
            return shape == Shape::Plain ? listFrom(lisp, value) : arrayFrom(lisp, value);
    }
    return {};
}

Variant toHost(const Value& value, Lists lists) { return toHost(value, lists, 0); }

Value makeVariant(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Nil:
            return wrap(kVtEmpty, {});
        case Value::Kind::Integer:
            return wrap(kVtLong, value);
        case Value::Kind::Real:
            return wrap(kVtDouble, value);
        case Value::Kind::Text:
            return wrap(kVtString, value);
        case Value::Kind::Object:
            return wrap(kVtObject, value);
        case Value::Kind::Variant:
            return value;
        case Value::Kind::SafeArray:
            return wrap(kVtArray + value.safeArray()->type, copyOf(*value.safeArray()));
        case Value::Kind::Symbol:
            if (value.symbol()->name.starts_with(":VLAX-")) return wrap(kVtBoolean, value);
            break;
        default:
            break;
    }
    throw badArgumentType("variantp", value);
}

}  // namespace lisp
