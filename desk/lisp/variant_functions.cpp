// Variants and safe arrays, automation's wrapping of values.

#include "basic/numbers.h"
#include "desk/lisp/call.h"
#include "desk/lisp/conversion.h"

namespace lisp {

namespace {

Value box(std::int32_t type, Value content) {
    return Value(std::make_shared<const VariantBox>(VariantBox{type, std::move(content)}));
}

/// A whole number of the width that `type` has.
Value wholeNumber(double number, std::int32_t type) {
    return type == kVtInteger ? Value(std::int32_t{basic::toInt16(number)}) : Value(basic::toInt32(number));
}

/// The content of a variant of type `type`, made from a value of Lisp.
Value coerced(const Value& value, std::int32_t type) {
    if (const VariantBox* variant = value.variant()) return coerced(variant->content, type);
    switch (type) {
        case kVtEmpty:
        case kVtNull:
            if (value.isNil()) return value;
            break;
        case kVtInteger:
        case kVtLong:
            if (value.isNumber()) return wholeNumber(value.number(), type);
            if (value.text())
                return wholeNumber(basic::toDouble(*value.text(), basic::Regional::english()), type);
            break;
        case kVtSingle:
        case kVtDouble:
            if (value.isNumber()) return value.number();
            if (value.text()) return basic::toDouble(*value.text(), basic::Regional::english());
            break;
        case kVtString:
            if (value.text()) return value;
            if (value.isNumber()) {
                const basic::Variant number = toHost(value, Lists::AsArrays);
                return basic::toText(number, basic::Regional::english());
            }
            break;
        case kVtObject:
            if (value.object() || value.isNil()) return value;
            break;
        case kVtBoolean:
            if (value.symbol() && value.symbol()->name.starts_with(":VLAX-")) return value;
            break;
        case kVtVariant:
            return makeVariant(value);
        default:
            break;
    }
    throw badArgumentType("variant of type " + std::to_string(type), value);
}

/// (vlax-make-variant [value [type]])
Value makeVariantFunction(Call& call) {
    if (!call.has(1) || call[1].isNil()) return makeVariant(call.has(0) ? call[0] : Value());
    const std::int32_t type = call.integer(1);
    if (call[0].safeArray() && type == (kVtArray | call[0].safeArray()->type)) return makeVariant(call[0]);
    return type == kVtVariant ? makeVariant(call[0]) : box(type, coerced(call[0], type));
}

Value variantType(Call& call) { return call.variant(0).type; }
Value variantValue(Call& call) { return call.variant(0).content; }

Value initialElement(std::int32_t type) {
    switch (type) {
        case kVtInteger:
        case kVtLong:
            return Value(0);
        case kVtSingle:
        case kVtDouble:
            return Value(0.0);
        case kVtString:
            return Value(std::string());
        case kVtVariant:
            return makeVariant({});
        case kVtObject:
            return {};
        default:
            throw badArgumentValue("array type", Value(type));
    }
}

/// (vlax-make-safearray type '(lower . upper)): of one dimension.
Value makeSafeArray(Call& call) {
    if (call.size() > 2) throw LispError("safe arrays have one dimension here");
    const Cons* bounds = call[1].cons();
    if (bounds == nullptr || !bounds->first.integer() || !bounds->rest.integer()) {
        throw badArgumentType("dimension", call[1]);
    }
    constexpr std::int64_t kMost = 100'000'000;
    const std::int64_t size = std::int64_t{*bounds->rest.integer()} - *bounds->first.integer() + 1;
    if (size < 0 || size > kMost) throw badArgumentValue("dimension", call[1]);
    auto array = std::make_shared<SafeArray>();
    array->type = call.integer(0);
    array->lower = *bounds->first.integer();
    array->elements.assign(static_cast<std::size_t>(size), initialElement(array->type));
    return array;
}

/// (vlax-safearray-fill array list): as many elements as the array has, or fewer.
Value fill(Call& call) {
    SafeArray& array = call.safeArray(0);
    const std::vector<Value> items = call.list(1);
    if (items.size() > array.elements.size()) throw badArgumentValue("array size", call[1]);
    std::vector<Value> elements = array.elements;
    for (std::size_t i = 0; i < items.size(); ++i) elements[i] = coerced(items[i], array.type);
    array.elements = std::move(elements);
    return call[0];
}

Value toList(Call& call) { return makeList(call.safeArray(0).elements); }

}  // namespace

SubrTable variantFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"VLAX-MAKE-VARIANT", 0, 2, makeVariantFunction},
        {"VLAX-VARIANT-TYPE", 1, 1, variantType},
        {"VLAX-VARIANT-VALUE", 1, 1, variantValue},
        {"VLAX-MAKE-SAFEARRAY", 2, -1, makeSafeArray},
        {"VLAX-SAFEARRAY-FILL", 2, 2, fill},
        {"VLAX-SAFEARRAY->LIST", 1, 1, toList},
    };
    return kTable;
}

}  // namespace lisp
