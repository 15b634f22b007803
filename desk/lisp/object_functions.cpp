// The host's objects: their properties and methods by name.

#include "desk/lisp/call.h"
#include "desk/lisp/conversion.h"

namespace lisp {

namespace {

/// A member's name, as a symbol or a string.
const std::string& memberName(Call& call) {
    return call[1].symbol() != nullptr ? call[1].symbol()->name : call.text(1);
}

Value getProperty(Call& call, std::string_view member, Shape shape) {
    return fromHost(call.lisp, call.object(0).get(member), shape);
}

Value putProperty(Call& call, std::string_view member, const Value& value) {
    call.object(0).set(member, toHost(value, Lists::AsArrays));
    return {};
}

/// A quoted symbol as an argument receives what the method gives back in its place.
bool isOutArgument(const Value& argument) {
    return argument.symbol() != nullptr && !argument.symbol()->isConstant;
}

/// Calls a method with the arguments from `from` on; nil stands for one left out.
Value invokeMethod(Call& call, std::string_view member, std::size_t from, Shape shape) {
    host::Arguments arguments;
    for (std::size_t i = from; i < call.size(); ++i) {
        if (call[i].isNil()) {
            arguments.emplace_back(basic::Missing{});
        } else {
            arguments.push_back(isOutArgument(call[i]) ? basic::Variant() : toHost(call[i], Lists::AsArrays));
        }
    }
    call.object(0);
    const host::ObjectPtr object = call[0].object()->object;  // kept, since the method may release it
    Value result = fromHost(call.lisp, object->call(member, arguments), shape);
    for (std::size_t i = from; i < call.size(); ++i) {
        if (!isOutArgument(call[i])) continue;
        call.lisp.assign(*call[i].symbol(), fromHost(call.lisp, arguments[i - from], shape));
    }
    return result;
}

Value getWrapped(Call& call) {
    return call.size() == 2 ? getProperty(call, memberName(call), Shape::Wrapped)
                            : invokeMethod(call, memberName(call), 2, Shape::Wrapped);
}
Value getPlain(Call& call) {
    return call.size() == 2 ? getProperty(call, memberName(call), Shape::Plain)
                            : invokeMethod(call, memberName(call), 2, Shape::Plain);
}
Value put(Call& call) { return putProperty(call, memberName(call), call[2]); }
Value invokeWrapped(Call& call) { return invokeMethod(call, memberName(call), 2, Shape::Wrapped); }
Value invokePlain(Call& call) { return invokeMethod(call, memberName(call), 2, Shape::Plain); }

Value acadObject(Call& call) {
    if (!call.lisp.acadObject()) throw LispError("no application");
    return fromHost(call.lisp, call.lisp.acadObject(), Shape::Wrapped);
}

/// (vlax-create-object name): nil for a class that isn't there.
Value createObject(Call& call) {
    return fromHost(call.lisp, call.lisp.createObject(call.text(0)), Shape::Wrapped);
}

/// (vlax-release-object object): the object goes if nothing else holds it; nothing can be asked of it here
/// again.
Value releaseObject(Call& call) {
    call.object(0);
    call[0].object()->object.reset();
    return Value(0);
}

}  // namespace

Value callVlaMember(Call& call) {
    const std::string_view name = call.subr.name;
    constexpr std::string_view kGet = "VLA-GET-";
    constexpr std::string_view kPut = "VLA-PUT-";
    if (name.starts_with(kGet)) {
        const std::string_view member = name.substr(kGet.size());
        return call.size() == 1 ? getProperty(call, member, Shape::Wrapped)
                                : invokeMethod(call, member, 1, Shape::Wrapped);
    }
    if (name.starts_with(kPut)) {
        if (call.size() != 2) throw LispError(call.size() < 2 ? "too few arguments" : "too many arguments");
        return putProperty(call, name.substr(kPut.size()), call[1]);
    }
    return invokeMethod(call, name.substr(4), 1, Shape::Wrapped);
}

SubrTable objectFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"VLAX-GET-ACAD-OBJECT", 0, 0, acadObject},
        {"VLAX-CREATE-OBJECT", 1, 1, createObject},
        {"VLAX-RELEASE-OBJECT", 1, 1, releaseObject},
        {"VLAX-GET-PROPERTY", 2, -1, getWrapped},
        {"VLAX-GET", 2, -1, getPlain},
        {"VLAX-PUT-PROPERTY", 3, 3, put},
        {"VLAX-PUT", 3, 3, put},
        {"VLAX-INVOKE-METHOD", 2, -1, invokeWrapped},
        {"VLAX-INVOKE", 2, -1, invokePlain},
    };
    return kTable;
}

}  // namespace lisp
