#pragma once

#include "forms/controls.h"

#include <gtest/gtest.h>

/// Expects the visible controls of a form to lie within their containers, and none over another of its
/// container.
inline void expectTidy(const forms::Form& form) {
    const auto isPlaced = [](const forms::Control* control) {
        return control->has(forms::Property::Bounds) && control->visible();
    };
    for (const forms::Control* a : form.controls()) {
        if (!isPlaced(a)) continue;
        const forms::Control* box = a->container();
        const auto right = a->left() + a->width();
        const auto bottom = a->top() + a->height();
        EXPECT_GT(a->width() * a->height(), 0) << a->name();
        EXPECT_LE(right, box ? box->width() : form.width() - forms::Form::kFrameWidth)
            << form.name() << " " << a->name();
        EXPECT_LE(bottom, box ? box->height() : form.height() - forms::Form::kFrameHeight)
            << form.name() << " " << a->name();
        for (const forms::Control* b : form.controls()) {
            if (a == b || !isPlaced(b) || b->container() != box) continue;
            const bool isApart = right <= b->left() || b->left() + b->width() <= a->left() ||
                                 bottom <= b->top() || b->top() + b->height() <= a->top();
            EXPECT_TRUE(isApart) << form.name() << ": " << a->name() << " lies over " << b->name();
        }
    }
}
