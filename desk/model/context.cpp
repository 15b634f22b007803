#include "desk/model/context.h"

#include "desk/model/host_errors.h"

namespace model {

using basic::Variant;

double toNumber(const Context& context, const Variant& value) {
    return basic::toDouble(value, context.environment->regional);
}

geometry::Point3 toPoint(const Context& context, const Variant& value) {
    if (value.is(Variant::Kind::DoubleArray) && value.doubles().size() == 3) {
        const basic::Doubles& xyz = value.doubles();
        return {xyz[0], xyz[1], xyz[2]};
    }
    if (value.is(Variant::Kind::VariantArray) && value.array().size() == 3) {
        const basic::Array& xyz = value.array();
        return {toNumber(context, xyz[0]), toNumber(context, xyz[1]), toNumber(context, xyz[2])};
    }
    throw basic::Error(basic::kTypeMismatch);
}

bool toBoolean(const Context& context, const Variant& value) {
    if (value.is(Variant::Kind::Boolean)) return value.boolean();
    if (value.is(Variant::Kind::Text) && value.text() == "True") return true;
    if (value.is(Variant::Kind::Text) && value.text() == "False") return false;
    return toNumber(context, value) != 0;
}

Variant fromPoint(const geometry::Point3& point) { return basic::Doubles{point.x, point.y, point.z}; }

void requireCount(const host::Arguments& arguments, std::size_t least, std::size_t most, const char* member) {
    if (arguments.size() < least || arguments.size() > most) raise(kArgumentCount, member);
}

}  // namespace model
