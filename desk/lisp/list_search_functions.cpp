// Finding, replacing and ordering the elements of lists.

#include "desk/lisp/call.h"
#include "desk/lisp/comparison.h"

#include <algorithm>

namespace lisp {

namespace {

void checkList(const Value& list) {
    if (list.isTrue() && list.cons() == nullptr) throw badArgumentType("listp", list);
}

/// (member item list): the list from the first equal element on.
Value member(Call& call) {
    checkList(call[1]);
    for (const Value* rest = &call[1]; rest->cons() != nullptr; rest = &rest->cons()->rest) {
        if (isEqual(rest->cons()->first, call[0])) return *rest;
    }
    return {};
}

/// (assoc key list): the first element that is a list beginning with the key.
Value assoc(Call& call) {
    checkList(call[1]);
    for (const Value* rest = &call[1]; rest->cons() != nullptr; rest = &rest->cons()->rest) {
        const Value& pair = rest->cons()->first;
        if (pair.cons() == nullptr) throw badArgumentType("consp", pair);
        if (isEqual(pair.cons()->first, call[0])) return pair;
    }
    return {};
}

/// (subst new old list): on the list's own level only.
Value subst(Call& call) {
    ListBuilder items;
    for (const Value& item : call.list(2)) items.add(isEqual(item, call[1]) ? call[0] : item);
    return items.take();
}

Value remove(Call& call) {
    ListBuilder items;
    for (Value& item : call.list(1)) {
        if (!isEqual(item, call[0])) items.add(std::move(item));
    }
    return items.take();
}

Value position(Call& call) {
    std::int32_t index = 0;
    for (const Value& item : call.list(1)) {
        if (isEqual(item, call[0])) return index;
        ++index;
    }
    return {};
}

/// Merge sort, since the order comes from the user's own function and may contradict itself: each comparison
/// is made on two elements that are there, whatever it answers.
template <typename Before>
void mergeSort(std::vector<Value>& items, Before before) {
    std::vector<Value> merged(items.size());
    for (std::size_t width = 1; width < items.size(); width *= 2) {
        for (std::size_t start = 0; start < items.size(); start += 2 * width) {
            const std::size_t middle = std::min(start + width, items.size());
            const std::size_t end = std::min(start + 2 * width, items.size());
            std::size_t left = start;
            std::size_t right = middle;
            for (std::size_t out = start; out < end; ++out) {
                const bool takesRight = left == middle || (right < end && before(items[right], items[left]));
                merged[out] = items[takesRight ? right++ : left++];
            }
        }
        items.swap(merged);
    }
}

/// (vl-sort list less?): equal elements stay, in their order.
Value sort(Call& call) {
    std::vector<Value> items = call.list(0);
    mergeSort(items, [&call](const Value& left, const Value& right) {
        return call.lisp.apply(call[1], {left, right}).isTrue();
    });
    return makeList(std::move(items));
}

}  // namespace

SubrTable listSearchFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"MEMBER", 2, 2, member},    {"ASSOC", 2, 2, assoc},          {"SUBST", 3, 3, subst},
        {"VL-REMOVE", 2, 2, remove}, {"VL-POSITION", 2, 2, position}, {"VL-SORT", 2, 2, sort},
    };
    return kTable;
}

}  // namespace lisp
