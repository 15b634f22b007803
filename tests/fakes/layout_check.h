#pragma once

#include "forms/controls.h"

#include <gtest/gtest.h>

/// Expects the visible controls of a form to lie within their containers, and none over another of its
/// container. `sides` and `title` are what the dialog's frame takes of its size, in twips.
inline void expectTidy(const forms::Form& form, forms::Twips sides = 0, forms::Twips title = 0) {
    const auto isPlaced = [](const forms::Control* control) {
        return control->has(forms::Property::Bounds) && control->visible();
    };
    for (const forms::Control* a : form.controls()) {
        if (!isPlaced(a)) continue;
        const forms::Control* box = a->container();
        const auto right = a->left() + a->width();
        const auto bottom = a->top() + a->height();
        EXPECT_GT(a->width() * a->height(), 0) << a->name();
        EXPECT_LE(right, box ? box->width() : form.width() - sides) << form.name() << " " << a->name();
        EXPECT_LE(bottom, box ? box->height() : form.height() - title) << form.name() << " " << a->name();
        for (const forms::Control* b : form.controls()) {
            if (a == b || !isPlaced(b) || b->container() != box) continue;
            const bool isApart = right <= b->left() || b->left() + b->width() <= a->left() ||
                                 bottom <= b->top() || b->top() + b->height() <= a->top();
            EXPECT_TRUE(isApart) << form.name() << ": " << a->name() << " lies over " << b->name();
        }
    }
}
