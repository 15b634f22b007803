#include "desk/painter/inks.h"

#include <algorithm>
#include <cmath>

namespace painter {

namespace {

constexpr double kLeastContrast = 2.6;

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto part = [&](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

}  // namespace

double contrast(const QColor& a, const QColor& b) {
    const double x = luminance(a);
    const double y = luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

QColor standingOut(const QColor& color, const QColor& ground, double least) {
    if (contrast(color, ground) >= least) return color;
    const QColor toward = luminance(ground) < 0.18 ? Qt::white : Qt::black;
    for (int step = 1; step < 20; ++step) {
        const QColor result = mixed(color, toward, step / 20.0);
        if (contrast(result, ground) >= least) return result;
    }
    return toward;
}

Inks::Inks(QColor ground, Use use) : ground_(ground), use_(use), dark_(luminance(ground) < 0.18) {}

void Inks::setMixed(const QColor& with, double share) {
    mixedWith_ = with;
    mixedShare_ = share;
    known_.clear();
}

QColor Inks::find(const picture::Color& color) const {
    const QColor own(color.red, color.green, color.blue);
    const QColor foreground = dark_ ? Qt::white : Qt::black;
    if (color.isForeground) return foreground;
    if (use_ == Use::File) return own;
    if (own == QColor(dark_ ? Qt::black : Qt::white)) return foreground;
    return standingOut(own, ground_, kLeastContrast);
}

QColor Inks::shown(const picture::Color& color) const {
    if (single_.isValid()) return single_;
    const unsigned key = static_cast<unsigned>(color.red) << 16 | static_cast<unsigned>(color.green) << 8 |
                         color.blue | (color.isForeground ? 1u << 24 : 0u);
    const auto [found, isNew] = known_.try_emplace(key);
    if (isNew) {
        found->second = find(color);
        if (mixedShare_ > 0) found->second = mixed(found->second, mixedWith_, mixedShare_);
    }
    return found->second;
}

}  // namespace painter
