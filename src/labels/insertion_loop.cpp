#include "labels/insertion_loop.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "host/document.h"
#include "platform/platform.h"

#include <cmath>

namespace labels {
namespace {

// The prompts are the same in every language, without a blank at their end.
constexpr std::string_view kInsertionPrompt = "Indiquer le point d'insertion du bloc :";
constexpr std::string_view kOrientationPrompt = "Indiquer l'orientation :";
constexpr std::string_view kLeaderStartPrompt = "Indiquer le 1er point de la ligne de repère :";
constexpr std::string_view kLeaderEndPrompt = "Indiquer le 2è point de la ligne de repère :";

/// What one pass leaves to the next: nothing here is cleared between two labels, so a pass whose insertion
/// fails works on the reference of the pass before.
class Run {
  public:
    Run(Session& session, const LabelRows& rows, const InsertionSettings& settings, ValueCapture& values)
        : session_(session), rows_(rows), settings_(settings), values_(values) {
        const basic::Regional& regional = session.platform().regional();
        errors_.skip([&] { xScale_ = basic::toDouble(settings.xScale(), regional); });
        errors_.skip([&] { yScale_ = basic::toDouble(settings.yScale(), regional); });
        errors_.skip([&] { zScale_ = basic::toDouble(settings.zScale(), regional); });
        errors_.skip([&] {
            const double pi = std::atan(1) * 4;
            rotation_ = basic::toDouble(settings.rotation(), regional) / 180 * pi;
        });
        errors_.clear();
    }

    void placeLabels() {
        while (!errors_.failed()) {
            errors_.clear();
            values_.PointPicked = values_.ObjectPicked = values_.PolygonPicked = false;
            errors_.skip([&] { point_ = utility().GetPoint(basic::Missing{}, kInsertionPrompt); });
            if (errors_.failed()) return;  // the usual end: Enter or Escape
            insertReference();
            writeAttributes();
            errors_.skip([&] { reference_.Update(); });
            if (settings_.drawsLeader()) drawLeader();
        }
    }

  private:
    host::Document document() const { return host::Document(session_.AcadDoc); }
    host::Utility utility() const { return document().Utility(); }

    /// The orientation is answered before the block is there; broken off, it skips the insertion.
    void insertReference() {
        const std::string& name = rows_.blockName();
        if (settings_.asksOrientation()) {
            errors_.skip([&] {
                reference_ = document().ModelSpace().InsertBlock(
                    point_, name, xScale_, yScale_, zScale_, utility().GetAngle(point_, kOrientationPrompt));
            });
        } else {
            errors_.skip([&] {
                reference_ =
                    document().ModelSpace().InsertBlock(point_, name, xScale_, yScale_, zScale_, rotation_);
            });
        }
    }

    void writeAttributes() {
        errors_.skip([&] { attributes_ = reference_.GetAttributes(); });
        const int count = static_cast<int>(attributes_.size());
        for (int position = 1; position <= count; ++position) {
            const Variant value = values_.AutoVal(position, modeOf(position));
            // The error state is the routine's and AutoVal's alike, and AutoVal leaves it clear: a failure so
            // far, such as a refused insertion, doesn't end the run any more.
            errors_.clear();
            errors_.skip([&] {
                attributes_.at(position - 1)
                    .setTextString(basic::toText(value, session_.platform().regional()));
            });
        }
    }

    /// Found by the text that the drafter sees, not by the table of modes, which may hold those of another
    /// block. The number of modes for a text that is none; the first mode for a row that isn't there, since a
    /// comparison that fails counts as true.
    int modeOf(int row) {
        int mode = 0;
        for (; mode < rows_.modeCount(); ++mode)
            if (errors_.test([&] { return rows_.modeEntry(mode) == rows_.modeText(row); })) break;
        return mode;
    }

    /// Without a first point of its own the leader starts at the point that the label's values were picked
    /// at, or at any older one. A prompt that is broken off leaves its point as it was, and the run ends
    /// after the line.
    void drawLeader() {
        if (settings_.leaderStartsAtNewPoint())
            errors_.skip(
                [&] { session_.PickPoint = utility().GetPoint(basic::Missing{}, kLeaderStartPrompt); });
        errors_.skip([&] { leaderEnd_ = utility().GetPoint(session_.PickPoint, kLeaderEndPrompt); });
        errors_.skip([&] { line_ = document().ModelSpace().AddLine(session_.PickPoint, leaderEnd_); });
        errors_.skip([&] { line_.Update(); });
    }

    Session& session_;
    const LabelRows& rows_;
    const InsertionSettings& settings_;
    ValueCapture& values_;
    basic::ErrorState errors_;  // errors are ignored throughout, and their number steers the loop

    double xScale_ = 0;
    double yScale_ = 0;
    double zScale_ = 0;
    double rotation_ = 0;  // radians
    Variant point_;
    Variant leaderEnd_;
    host::BlockReference reference_;
    host::Attributes attributes_{basic::Array{}};
    host::Entity line_;
};

}  // namespace

void InsertLabels(Session& session, const LabelRows& rows, const InsertionSettings& settings,
                  ValueCapture& values) {
    Run(session, rows, settings, values).placeLabels();
}

}  // namespace labels
