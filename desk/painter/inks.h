#pragma once

#include "desk/picture/color.h"

#include <QColor>
#include <unordered_map>

namespace painter {

/// Contrast of two colours as WCAG 2 defines it, 1 to 21.
double contrast(const QColor& a, const QColor& b);
/// `color` mixed toward white or black, whichever is farther from the ground, until it stands out by `least`.
QColor standingOut(const QColor& color, const QColor& ground, double least);

/// How a drawing's colours are shown on a ground. In a file they are what the drawing says, and colour 7 is
/// black or white by the ground. On a screen white and black count as 7 where they would vanish, and a colour
/// that hardly shows is lightened or darkened until it does.
class Inks {
  public:
    enum class Use { File, Screen };
    explicit Inks(QColor ground = Qt::white, Use use = Use::File);

    QColor shown(const picture::Color& color) const;
    const QColor& ground() const { return ground_; }
    /// One colour for everything, as highlights need.
    void setSingle(const QColor& color) { single_ = color; }
    /// Everything mixed with a colour by a share of 0 to 1.
    void setMixed(const QColor& with, double share);

  private:
    QColor find(const picture::Color& color) const;

    QColor ground_;
    Use use_;
    bool dark_;
    QColor single_;
    QColor mixedWith_;
    double mixedShare_ = 0;
    mutable std::unordered_map<unsigned, QColor> known_;
};

}  // namespace painter
