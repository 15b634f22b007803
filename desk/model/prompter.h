#pragma once

#include "desk/drawing/ids.h"
#include "desk/geometry/vector.h"

#include <optional>
#include <string>
#include <vector>

namespace drawing {
class Drawing;
}

namespace model {

/// How the user answered a prompt.
enum class Answer {
    Given,      ///< with what was asked for
    Missed,     ///< a pick that hit nothing
    Nothing,    ///< an empty answer (Enter)
    BrokenOff,  ///< Esc
};

struct EntityPick {
    Answer answer = Answer::BrokenOff;
    drawing::EntityId entity = drawing::kNoEntity;
    geometry::Point3 point;
};

struct PointPick {
    Answer answer = Answer::BrokenOff;
    geometry::Point3 point;
};

struct AnglePick {
    Answer answer = Answer::BrokenOff;
    double radians = 0;
};

/// Entities in the order in which they were selected, each once. A selection ended without any is Given
/// and empty.
struct SelectionPick {
    Answer answer = Answer::BrokenOff;
    std::vector<drawing::EntityId> entities;
};

/// Asks the user in the drawing, and tells. A console answers from text, a canvas from clicks. Points are
/// world coordinates.
class Prompter {
  public:
    virtual ~Prompter() = default;

    /// One entity by a click on it.
    virtual EntityPick getEntity(const drawing::Drawing& drawing, const std::string& prompt) = 0;
    /// A point; from `base` a rubber band runs to the cursor, and relative answers count.
    virtual PointPick getPoint(const std::optional<geometry::Point3>& base, const std::string& prompt) = 0;
    /// The direction from `base` to a point, or an angle typed in degrees.
    virtual AnglePick getAngle(const geometry::Point3& base, const std::string& prompt) = 0;
    /// Any number of entities, until the user ends the selection.
    virtual SelectionPick selectEntities(const drawing::Drawing& drawing, const std::string& prompt) = 0;
    /// A line on the host's command line.
    virtual void message(const std::string& text) = 0;
};

}  // namespace model
