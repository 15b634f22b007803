#include "forms/reading_order.h"

#include "forms/form.h"

#include <algorithm>
#include <utility>

namespace forms {

namespace {

std::vector<Control*> placedIn(const Form& form, const Control* container) {
    std::vector<Control*> inside;
    for (Control* control : form.controls())
        if (control->has(Property::Bounds) && control->container() == container) inside.push_back(control);
    std::stable_sort(inside.begin(), inside.end(), [](const Control* a, const Control* b) {
        return std::pair(a->top(), a->left()) < std::pair(b->top(), b->left());
    });
    return inside;
}

void readIn(const Form& form, const Control* container, std::vector<Control*>& order) {
    std::vector<Control*> rest = placedIn(form, container);
    for (auto row = rest.begin(); row != rest.end();) {
        const Twips bottom = (*row)->top() + (*row)->height();
        const auto next = std::stable_partition(row, rest.end(), [&](const Control* control) {
            return control->top() + control->height() / 2 < bottom;
        });
        std::stable_sort(row, next, [](const Control* a, const Control* b) { return a->left() < b->left(); });
        // A control without a height is a row of its own.
        const auto end = next == row ? row + 1 : next;
        for (; row != end; ++row) {
            order.push_back(*row);
            readIn(form, *row, order);
        }
    }
}

}  // namespace

std::vector<Control*> readingOrder(const Form& form) {
    std::vector<Control*> order;
    readIn(form, nullptr, order);
    return order;
}

}  // namespace forms
