// Functions that take functions.

#include "desk/lisp/call.h"

namespace lisp {

namespace {

Value apply(Call& call) { return call.lisp.apply(call[0], call.list(1)); }

/// (mapcar f list...): as far as the shortest list goes.
Value mapcar(Call& call) {
    std::vector<const Value*> rests;
    for (std::size_t i = 1; i < call.size(); ++i) {
        if (call[i].isTrue() && call[i].cons() == nullptr) throw badArgumentType("listp", call[i]);
        rests.push_back(&call[i]);
    }
    ListBuilder results;
    while (true) {
        std::vector<Value> arguments;
        for (const Value*& rest : rests) {
            const Cons* cell = rest->cons();
            if (cell == nullptr) return results.take();
            arguments.push_back(cell->first);
            rest = &cell->rest;
        }
        results.add(call.lisp.apply(call[0], std::move(arguments)));
    }
}

/// The elements whose test has the wanted outcome.
Value keepWhere(Call& call, bool wanted) {
    ListBuilder kept;
    for (const Value& item : call.list(1)) {
        if (call.lisp.apply(call[0], {item}).isTrue() == wanted) kept.add(item);
    }
    return kept.take();
}

Value removeIf(Call& call) { return keepWhere(call, false); }
Value removeIfNot(Call& call) { return keepWhere(call, true); }

}  // namespace

SubrTable mappingFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"APPLY", 2, 2, apply},
        {"MAPCAR", 2, -1, mapcar},
        {"VL-REMOVE-IF", 2, 2, removeIf},
        {"VL-REMOVE-IF-NOT", 2, 2, removeIfNot},
    };
    return kTable;
}

}  // namespace lisp
