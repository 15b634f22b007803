#pragma once

#include "labels/label_rows.h"
#include "labels/value_capture.h"
#include "session/session.h"

#include <string>

namespace labels {

/// How labels are inserted. The texts are read once, before the first prompt of a run, the others anew at
/// each label.
class InsertionSettings {
  public:
    // Scale factors and degrees as the drafter typed them; what isn't a number counts as 0.
    virtual const std::string& xScale() const = 0;
    virtual const std::string& yScale() const = 0;
    virtual const std::string& zScale() const = 0;
    virtual const std::string& rotation() const = 0;
    /// Whether each label's orientation is asked for on screen; the rotation text then doesn't count.
    virtual bool asksOrientation() const = 0;
    virtual bool drawsLeader() const = 0;
    /// Whether the leader's first point is asked for, or is the label's own pick.
    virtual bool leaderStartsAtNewPoint() const = 0;

  protected:
    ~InsertionSettings() = default;
};

/// Places one label after the other, each with its values and perhaps a leader line, until the user breaks
/// off. Raises nothing: a statement that fails is skipped, and the error number that it leaves ends the run
/// where it is looked at, after the insertion point and at the top of the loop. What was placed stays.
void InsertLabels(Session& session, const LabelRows& rows, const InsertionSettings& settings,
                  ValueCapture& values);

}  // namespace labels
