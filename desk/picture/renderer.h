#pragma once

#include "desk/picture/canvas.h"
#include "desk/picture/picture.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace picture {

struct RenderOptions {
    Frame frame;                                ///< the part of the picture that is seen
    std::optional<double> pixelsPerMillimetre;  ///< for lineweights; without it all lines are hairlines
    double smallest = 0.75;   ///< what is smaller on the picture, in device units, becomes a dot
    double legible = 2.5;     ///< texts with capitals below this become lines
    bool solidLines = false;  ///< without linetypes, for highlights
};

/// Draws display lists on a canvas. What lies outside of the frame is passed over.
class Renderer {
  public:
    Renderer(Picture& picture, Canvas& canvas, const RenderOptions& options);

    /// Draws items of a space from number `begin` on and returns that of the first one not drawn: the end, or
    /// an earlier one as `stop` told after some items, so that a long picture can be drawn in portions.
    template <typename Stop>
    std::size_t drawItems(BlockId space, const Projection& projection, std::size_t begin, Stop&& stop) {
        const DisplayList& list = picture_.list(space);
        startSpace(projection);
        std::size_t at = begin;
        while (at < list.items.size()) {
            const std::size_t steps = steps_;
            drawTop(list, list.items[at++], projection);
            unchecked_ += 1 + (steps_ - steps);
            if (unchecked_ < kStepsBetweenChecks) continue;
            unchecked_ = 0;
            if (stop()) break;
        }
        return at;
    }
    /// Draws one item of a space, or all that a block holds as if a reference of `layer` stood at the origin.
    void drawItem(BlockId space, std::size_t item, const Projection& projection);
    /// All of a list that stands in a space, or only its texts.
    void drawList(const DisplayList& list, const Projection& projection);
    void drawTexts(const DisplayList& list, const Projection& projection);
    void drawBlock(BlockId block, const Projection& projection, const Context& context = {});

  private:
    static constexpr std::size_t kStepsBetweenChecks = 64;

    /// What holds for the items of one list.
    struct State {
        const DisplayList& list;
        Projection projection;
        Context context;
        bool showsZero = true;
        int depth = 0;
    };
    void startSpace(const Projection& projection);
    void drawTop(const DisplayList& list, const Item& item, const Projection& projection);
    void drawList(const State& state);
    void drawItem(const State& state, const Item& item);
    void drawDot(const State& state, const Item& item, const Frame& where);
    void drawPlacement(const State& state, const Item& item, const Placement& placement);
    void drawViewport(const State& state, const Viewport& viewport);
    void drawStroke(const State& state, const Stroke& stroke);
    void drawFill(const State& state, const Fill& fill);
    void drawText(const State& state, const Text& text);
    void drawMark(const State& state, const Mark& mark);
    void strokePoints(const Look& look, double lineTypeScale);
    void strokeTapered(const Stroke& stroke, double scale);
    void arcPoints(const Projection& projection, std::span<const Point3> arc);
    void emitPolyline(std::span<const Point2> points);
    bool setStrokeInk(const Look& look, double width);
    void setInk(const Ink& ink);
    bool isFrozen(const Item& item) const;

    Picture& picture_;
    Canvas& canvas_;
    RenderOptions options_;
    Frame clip_;            ///< of the options, or of a viewport
    double rootScale_ = 1;  ///< device units of a drawing unit, for linetypes
    const std::vector<bool>* frozen_ = nullptr;
    bool inViewport_ = false;
    std::optional<Ink> ink_;
    std::vector<Point2> points_;
    std::vector<Point2> scratch_;
    std::vector<std::uint32_t> ends_;
    std::size_t steps_ = 0;
    std::size_t unchecked_ = 0;
};

}  // namespace picture
