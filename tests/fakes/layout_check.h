#pragma once

#include "forms/controls.h"

#include <gtest/gtest.h>

namespace fakes {

/// Expects the visible controls of a form to lie within their containers, and none over another of its
/// container. The dialog's frame takes a part of its size where the layout counts it in.
inline void expectTidy(const forms::Form& form, forms::Twips frameWidth = 120,
                       forms::Twips frameHeight = 405) {
    const auto isPlaced = [](const forms::Control* control) {
        return control->has(forms::Property::Bounds) && control->visible();
    };
    for (const forms::Control* a : form.controls()) {
        if (!isPlaced(a)) continue;
        const forms::Control* box = a->container();
        const auto right = a->left() + a->width();
        const auto bottom = a->top() + a->height();
        EXPECT_GT(a->width() * a->height(), 0) << a->name();
        EXPECT_LE(right, box ? box->width() : form.width() - frameWidth) << form.name() << " " << a->name();
        EXPECT_LE(bottom, box ? box->height() : form.height() - frameHeight)
            << form.name() << " " << a->name();
        for (const forms::Control* b : form.controls()) {
            if (a == b || !isPlaced(b) || b->container() != box) continue;
            const bool isApart = right <= b->left() || b->left() + b->width() <= a->left() ||
                                 bottom <= b->top() || b->top() + b->height() <= a->top();
            EXPECT_TRUE(isApart) << form.name() << ": " << a->name() << " lies over " << b->name();
        }
    }
}

}  // namespace fakes
