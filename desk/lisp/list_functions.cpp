// Building lists and taking them apart.

#include "desk/lisp/call.h"

namespace lisp {

namespace {

const Value& firstOf(const Value& list) {
    static const Value kNil;
    if (list.isNil()) return kNil;
    if (list.cons() == nullptr) throw badArgumentType("consp", list);
    return list.cons()->first;
}

const Value& restOf(const Value& list) {
    static const Value kNil;
    if (list.isNil()) return kNil;
    if (list.cons() == nullptr) throw badArgumentType("consp", list);
    return list.cons()->rest;
}

/// CAR, CDR and their compositions up to four letters: the path is the function's own name, read from its
/// end.
Value takePath(Call& call) {
    const Value* value = &call[0];
    const std::string& name = call.subr.name;
    for (std::size_t i = name.size() - 2; i > 0; --i)
        value = name[i] == 'A' ? &firstOf(*value) : &restOf(*value);
    return *value;
}

Value consFunction(Call& call) { return cons(call[0], call[1]); }

Value list(Call& call) { return makeList({call.args.begin(), call.args.end()}); }

Value append(Call& call) {
    if (call.size() == 0) return {};
    ListBuilder items;
    for (std::size_t i = 0; i + 1 < call.size(); ++i) {
        for (Value& item : call.list(i)) items.add(std::move(item));
    }
    return items.take(call.args.back());
}

Value reverse(Call& call) {
    Value reversed;
    for (Value& item : call.list(0)) reversed = cons(std::move(item), std::move(reversed));
    return reversed;
}

Value length(Call& call) {
    std::int32_t count = 0;
    const Value* rest = &call[0];
    for (; rest->cons() != nullptr; rest = &rest->cons()->rest) ++count;
    if (rest->isTrue()) throw badArgumentType("listp", call[0]);
    return count;
}

/// (nth n list): nil behind the end.
Value nth(Call& call) {
    std::int32_t index = call.integer(0);
    if (index < 0) throw badArgumentValue("positive", call[0]);
    if (call[1].isTrue() && call[1].cons() == nullptr) throw badArgumentType("listp", call[1]);
    const Value* rest = &call[1];
    while (index > 0 && rest->cons() != nullptr) {
        rest = &rest->cons()->rest;
        --index;
    }
    return rest->cons() ? rest->cons()->first : Value();
}

Value last(Call& call) {
    if (call[0].isTrue() && call[0].cons() == nullptr) throw badArgumentType("listp", call[0]);
    const Cons* final = call[0].cons();
    while (final != nullptr && final->rest.cons() != nullptr) final = final->rest.cons();
    return final ? final->first : Value();
}

Value atom(Call& call) { return call.truth(call[0].cons() == nullptr); }
Value listp(Call& call) { return call.truth(call[0].isNil() || call[0].cons() != nullptr); }
Value isNull(Call& call) { return call.truth(call[0].isNil()); }

}  // namespace

SubrTable listFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"CAR", 1, 1, takePath},   {"CDR", 1, 1, takePath},    {"CAAR", 1, 1, takePath},
        {"CADR", 1, 1, takePath},  {"CDAR", 1, 1, takePath},   {"CDDR", 1, 1, takePath},
        {"CADDR", 1, 1, takePath}, {"CADDDR", 1, 1, takePath}, {"CONS", 2, 2, consFunction},
        {"LIST", 0, -1, list},     {"APPEND", 0, -1, append},  {"REVERSE", 1, 1, reverse},
        {"LENGTH", 1, 1, length},  {"NTH", 2, 2, nth},         {"LAST", 1, 1, last},
        {"ATOM", 1, 1, atom},      {"LISTP", 1, 1, listp},     {"NULL", 1, 1, isNull},
        {"NOT", 1, 1, isNull},
    };
    return kTable;
}

}  // namespace lisp
