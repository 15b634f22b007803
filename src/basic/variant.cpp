#include "basic/variant.h"

#include "basic/numbers.h"

namespace basic {

bool Variant::isNothing() const {
    const ObjectRef* object = std::get_if<ObjectRef>(&value_);
    return object != nullptr ? *object == nullptr : isEmpty();
}

bool Variant::isNumber() const { return is(Kind::Int16) || is(Kind::Int32) || is(Kind::Double); }

bool Variant::boolean() const { return as<bool>(); }

const std::string& Variant::text() const { return as<std::string>(); }

const ObjectRef& Variant::object() const {
    const ObjectRef* object = std::get_if<ObjectRef>(&value_);
    if (object == nullptr) throw Error(kObjectRequired);
    return *object;
}

const Array& Variant::array() const { return *as<std::shared_ptr<const Array>>(); }

const Doubles& Variant::doubles() const { return *as<std::shared_ptr<const Doubles>>(); }

const Shorts& Variant::shorts() const { return *as<std::shared_ptr<const Shorts>>(); }

double Variant::number() const {
    switch (kind()) {
        case Kind::Double:
            return std::get<double>(value_);
        case Kind::Int16:
            return std::get<std::int16_t>(value_);
        case Kind::Int32:
            return std::get<std::int32_t>(value_);
        case Kind::Boolean:
            return std::get<bool>(value_) ? -1 : 0;
        case Kind::Empty:
            return 0;
        default:
            throw Error(kTypeMismatch);
    }
}

std::int32_t Variant::integer() const { return toInt32(number()); }

const char* kindName(Variant::Kind kind) {
    switch (kind) {
        case Variant::Kind::Empty:
            return "empty";
        case Variant::Kind::Missing:
            return "missing";
        case Variant::Kind::Boolean:
            return "Boolean";
        case Variant::Kind::Int16:
            return "16-bit integer";
        case Variant::Kind::Int32:
            return "32-bit integer";
        case Variant::Kind::Double:
            return "number";
        case Variant::Kind::Text:
            return "text";
        case Variant::Kind::Object:
            return "object";
        case Variant::Kind::VariantArray:
            return "array";
        case Variant::Kind::DoubleArray:
            return "array of numbers";
        case Variant::Kind::ShortArray:
            return "array of 16-bit integers";
    }
    return "unknown";
}

}  // namespace basic
