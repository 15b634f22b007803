#pragma once

#include "basic/error_state.h"
#include "basic/variant.h"
#include "host/object.h"
#include "labels/label_rows.h"
#include "session/session.h"

#include <cstdint>
#include <string_view>

namespace labels {

using basic::Variant;
using session::Session;

/// Computes the values of a label's attributes, asking in the drawing where a mode needs it. All attributes
/// of one label share a pick of each kind: one point, one object, one polygon.
///
/// No operation raises anything. A pick that the user breaks off counts as made, and the label takes what the
/// pick before gave.
class ValueCapture {
  public:
    ValueCapture(Session& session, const LabelRows& rows) : session_(session), rows_(rows) {}

    /// The finished text of the attribute at a position from 1: the value of its mode, through the numeric
    /// picture in the modes that measure, between prefix and suffix in every mode. A mode outside the list
    /// has the empty value.
    Variant AutoVal(std::int32_t position, std::int32_t mode);

    // The single-purpose operations ask for a pick of their own and add nothing to the value. Selector 1
    // takes an object by one click, 2 a polygon. No command uses them.

    Variant ClicLong(std::int32_t selector = kOneClick);
    Variant ClicPerim(std::int32_t selector = kOneClick);
    Variant ClicAire(std::int32_t selector = kOneClick);
    /// The counter of the attribute at a position from 1, before its step: as it was typed at first, a 64-bit
    /// float from then on.
    Variant Increm(std::int32_t position);
    Variant ClicCalque();
    Variant ClicColor();
    /// Lets the user click a polygon, ended by any failure of the prompt, so by Enter and Escape alike:
    /// length, perimeter and area as 64-bit floats.
    Variant LongPeriAirePoly();

    // What the label in hand has asked for already.

    bool PointPicked = false;
    bool ObjectPicked = false;
    bool PolygonPicked = false;
    host::ObjectPtr PickedObject;  ///< kept until the next successful pick, of whatever label
    Variant PolygonResult;         ///< of the last polygon, as LongPeriAirePoly gives it

  private:
    static constexpr std::int32_t kOneClick = 1;
    static constexpr std::int32_t kPolygon = 2;

    Variant rawValue(basic::ErrorState& errors, std::int32_t position, std::int32_t mode);
    void pickPointOnce(basic::ErrorState& errors);
    void pickObjectOnce(basic::ErrorState& errors);
    void pickPolygonOnce();
    host::ObjectPtr pickForOne(basic::ErrorState& errors, std::string_view prompt);
    Variant pictured(basic::ErrorState& errors, const Variant& value, int index);
    std::string slotText(int slot, int index) const;

    Session& session_;
    const LabelRows& rows_;
};

}  // namespace labels
