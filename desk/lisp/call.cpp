#include "desk/lisp/call.h"

namespace lisp {

std::int32_t Call::integer(std::size_t index) const {
    const std::int32_t* value = args[index].integer();
    if (value == nullptr) throw badArgumentType("fixnump", args[index]);
    return *value;
}

double Call::number(std::size_t index) const {
    if (!args[index].isNumber()) throw badArgumentType("numberp", args[index]);
    return args[index].number();
}

const std::string& Call::text(std::size_t index) const {
    const std::string* value = args[index].text();
    if (value == nullptr) throw badArgumentType("stringp", args[index]);
    return *value;
}

const SymbolPtr& Call::symbol(std::size_t index) const {
    if (args[index].symbol() == nullptr) throw badArgumentType("symbolp", args[index]);
    return args[index].symbolPtr();
}

std::array<double, 3> Call::point(std::size_t index) const {
    const Value& value = args[index];
    const Value* rest = &value;
    std::array<double, 3> point{};
    std::size_t count = 0;
    for (const Cons* cell = rest->cons(); cell != nullptr; cell = rest->cons()) {
        if (count == point.size() || !cell->first.isNumber()) throw badArgumentType("point", value);
        point[count++] = cell->first.number();
        rest = &cell->rest;
    }
    if (count < 2 || rest->isTrue()) throw badArgumentType("point", value);
    return point;
}

const VariantBox& Call::variant(std::size_t index) const {
    const VariantBox* box = args[index].variant();
    if (box == nullptr) throw badArgumentType("variantp", args[index]);
    return *box;
}

SafeArray& Call::safeArray(std::size_t index) const {
    SafeArray* array = args[index].safeArray();
    if (array == nullptr) throw badArgumentType("safearrayp", args[index]);
    return *array;
}

host::Object& Call::object(std::size_t index) const {
    ObjectBox* box = args[index].object();
    if (box == nullptr) throw badArgumentType("VLA-OBJECT", args[index]);
    if (!box->object) throw LispError("object was released: " + subr.name);
    return *box->object;
}

}  // namespace lisp
