#pragma once

#include "desk/picture/canvas.h"
#include "desk/picture/picture.h"
#include "desk/shapes/shape_walk.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace picture {

struct RenderOptions {
    Frame frame;                                ///< the part of the picture that is seen
    std::optional<double> pixelsPerMillimetre;  ///< for lineweights; without it all lines are hairlines
    double smallest = 0.75;            ///< what is smaller on the picture, in device units, becomes a dot
    double legible = 2.5;              ///< texts with capitals below this become lines
    bool solidLines = false;           ///< without linetypes, for highlights
    std::size_t pointsAtOnce = 2'000;  ///< of one thing, before it is asked whether to leave off
    /// Asked every few things by what can't be resumed: true leaves the picture as it is then.
    std::function<bool()> leaveOff;
};

/// Draws display lists on a canvas. What lies outside of the frame is passed over: in a space by the index
/// that picks use too.
class Renderer {
  public:
    Renderer(Picture& picture, Canvas& canvas, const RenderOptions& options);

    /// Begins a picture of a space, which `resume` draws.
    void start(BlockId space, const Projection& projection);
    /// Draws on until `stop` tells to leave off, which it is asked every few things; then the next call goes
    /// on where this one left, be it deep in a block. Returns whether the picture is complete.
    template <typename Stop>
    bool resume(Stop&& stop) {
        while (!levels_.empty()) {
            for (std::size_t i = 0; i < kStepsBetweenChecks && !levels_.empty(); i += lastCost_) step();
            if (!levels_.empty() && stop()) return false;
        }
        return true;
    }
    /// The same to the end.
    void draw(BlockId space, const Projection& projection) {
        start(space, projection);
        finish();
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
        const DisplayList* list = nullptr;
        Projection projection;
        Context context;
        bool showsZero = true;
    };
    /// A list that is being drawn, or an array of copies of one; those that it stands in lie below it.
    struct Level {
        State state;
        std::size_t next = 0;
        std::uint32_t strokesDone = 0;  ///< of that item
        /// The items to draw, by number; without them all are.
        std::optional<std::vector<std::uint32_t>> chosen;
        const Placement* array = nullptr;  ///< the copies that follow
        Projection outer;                  ///< of the list that the array stands in
        shapes::CellRange cells;
        int column = 0;
        int row = 0;
        bool isViewport = false;
    };
    void startSpace(const Projection& projection);
    void finish() {
        resume([this] { return options_.leaveOff && options_.leaveOff(); });
        levels_.clear();
    }
    void step();
    void leave();
    void startCopy(Level& level);
    std::vector<std::uint32_t> itemsNear(BlockId space, const Projection& projection);
    bool isSeen(const State& state, const Item& item);
    bool drawOwn(const State& state, const Item& item, std::uint32_t& strokesDone);
    void drawDot(const State& state, const Item& item, const Frame& where);
    void enterPlacement(const State& state, const Item& item, const Placement& placement);
    void enterViewport(const State& state, const Viewport& viewport);
    void drawStroke(const State& state, const Stroke& stroke);
    void drawFill(const State& state, const Fill& fill);
    void drawText(const State& state, const Text& text);
    void drawMark(const State& state, const Mark& mark);
    void strokePoints(const Look& look, double lineTypeScale, bool each);
    void strokeTapered(const Stroke& stroke, double scale);
    void arcPoints(const Projection& projection, std::span<const Point3> arc);
    void emitPolyline(std::span<const Point2> points);
    bool setStrokeInk(const Look& look, double width);
    void setInk(const Ink& ink);
    bool isFrozen(const Item& item) const;

    Picture& picture_;
    Canvas& canvas_;
    RenderOptions options_;
    std::vector<Level> levels_;
    Frame clip_;            ///< of the options, or of a viewport
    double rootScale_ = 1;  ///< device units of a drawing unit, for linetypes
    // Outside of the viewport that is being drawn; a viewport stands in no other.
    Frame outerClip_;
    double outerScale_ = 1;
    std::vector<bool> frozen_;  ///< by layer
    bool inViewport_ = false;
    std::optional<Ink> ink_;
    std::vector<Point2> points_;
    std::vector<Point2> scratch_;
    std::vector<std::uint32_t> ends_;
    std::size_t steps_ = 0;
    std::size_t lastCost_ = 1;  ///< of a step, about as many things as it drew
};

}  // namespace picture
