#include "labels/value_capture.h"

#include "basic/numbers.h"
#include "host/document.h"
#include "host/object.h"
#include "labels/label_table.h"
#include "labels/polygon_measure.h"
#include "labels/value_modes.h"
#include "platform/platform.h"

#include <algorithm>

namespace labels {
namespace {

// The prompts are the same in every language; each ends in a blank.
constexpr std::string_view kPointPrompt = "Selectionner le point à repérer. ";
constexpr std::string_view kObjectPrompt = "Selectionner le contour ou l'objet. ";
constexpr std::string_view kFirstPointPrompt = "Cliquer sur le premier point pour le contour polyclic : ";
constexpr std::string_view kNextPointPrompt = "Cliquer sur le point suivant pour le contour polyclic : ";
constexpr std::string_view kLengthPrompt = "Selectionner le contour pour la longueur. ";
constexpr std::string_view kPerimeterPrompt = "Selectionner le contour pour le périmètre. ";
constexpr std::string_view kAreaPrompt = "Selectionner le contour pour l'aire. ";
constexpr std::string_view kLayerPrompt = "Selectionner l'objet pour le calque. ";
constexpr std::string_view kColorPrompt = "Selectionner l'objet pour la couleur. ";

/// Which of the three measures of a polygon a mode takes.
constexpr std::size_t measureOf(std::int32_t mode) {
    return mode == kPolygonLength ? 0 : mode == kPolygonPerimeter ? 1 : 2;
}

host::Utility utility(const Session& session) { return host::Document(session.AcadDoc).Utility(); }

/// Objects are told apart only by which of the three reads fail: a polyline gives its length, a region its
/// perimeter, a circle its circumference, an object with two of them their sum, one with none an empty value.
Variant measureReading(basic::ErrorState& errors, const host::ObjectPtr& object) {
    const host::Entity entity(object);
    Variant value;
    errors.skip([&] { value = entity.length(); });
    errors.skip([&] { value = value.number() + entity.Perimeter(); });
    errors.skip([&] { value = value.number() + entity.Circumference(); });
    return value;
}

}  // namespace

Variant ValueCapture::AutoVal(std::int32_t position, std::int32_t mode) {
    basic::ErrorState errors;  // errors are ignored throughout
    const int index = position - 1;
    Variant value = rawValue(errors, position, mode);
    if (isNumericMode(mode)) value = pictured(errors, value, index);
    errors.skip([&] {
        value = slotText(kPrefixSlot, index) + basic::toText(value, session_.platform().regional()) +
                slotText(kSuffixSlot, index);
    });
    errors.clear();
    return value;
}

Variant ValueCapture::rawValue(basic::ErrorState& errors, std::int32_t position, std::int32_t mode) {
    Variant value;
    switch (mode) {
        case kManual:
            errors.skip([&] { value = rows_.manualValue(position); });
            break;
        case kPointX:
        case kPointY:
        case kPointZ:
            pickPointOnce(errors);
            errors.skip([&] { value = host::toPoint(session_.PickPoint).at(mode - kPointX); });
            break;
        case kObjectLength:
        case kObjectPerimeter:
            pickObjectOnce(errors);
            value = measureReading(errors, PickedObject);
            break;
        case kObjectArea:
            pickObjectOnce(errors);
            errors.skip([&] { value = host::Entity(PickedObject).Area(); });
            break;
        case kObjectLayer:
            pickObjectOnce(errors);
            errors.skip([&] { value = host::Entity(PickedObject).Layer(); });
            break;
        case kObjectColor:
            pickObjectOnce(errors);
            errors.skip([&] { value = host::Entity(PickedObject).Color(); });
            break;
        case kPolygonLength:
        case kPolygonPerimeter:
        case kPolygonArea:
            pickPolygonOnce();
            errors.skip([&] { value = PolygonResult.doubles().at(measureOf(mode)); });
            break;
        case kCounter:
            value = Increm(position);
            break;
        default:
            break;
    }
    return value;
}

// Broken off or not, a prompt is issued once for a label.

void ValueCapture::pickPointOnce(basic::ErrorState& errors) {
    if (PointPicked) return;
    errors.skip([&] { session_.PickPoint = utility(session_).GetPoint(basic::Missing{}, kPointPrompt); });
    PointPicked = true;
}

void ValueCapture::pickObjectOnce(basic::ErrorState& errors) {
    if (ObjectPicked) return;
    errors.skip([&] { utility(session_).GetEntity(PickedObject, session_.PickPoint, kObjectPrompt); });
    ObjectPicked = true;
}

void ValueCapture::pickPolygonOnce() {
    if (PolygonPicked) return;
    PolygonResult = LongPeriAirePoly();
    PolygonPicked = true;
}

/// The value under the mask of the attribute's number of decimals. What couldn't be measured stays empty: no
/// label states a 0 that nobody took.
Variant ValueCapture::pictured(basic::ErrorState& errors, const Variant& value, int index) {
    const basic::Regional& regional = session_.platform().regional();
    if (errors.test([&] {
            const Variant& slot = labelCell(session_, kDecimalsSlot, index);
            return slot.isEmpty() || (slot.is(Variant::Kind::Text) && slot.text().empty());
        }))
        errors.skip([&] { labelCell(session_, kDecimalsSlot, index) = std::int16_t{0}; });

    double slot = 0;
    int decimals = 0;
    const bool isWhole = errors.test([&] {
        slot = basic::toDouble(labelCell(session_, kDecimalsSlot, index), regional);
        return slot == 0;
    });
    if (!isWhole) errors.skip([&] { decimals = basic::toInt16(slot); });
    if (value.isEmpty()) return value;
    // A slot of -1, from a text that is no mask, leaves a bare decimal separator: the mask "0.".
    const bool bareSeparator = !isWhole;
    return basic::toPicture(value.number(), std::max(decimals, 0), regional, bareSeparator);
}

std::string ValueCapture::slotText(int slot, int index) const {
    return basic::toText(labelCell(session_, static_cast<LabelSlot>(slot), index),
                         session_.platform().regional());
}

Variant ValueCapture::Increm(std::int32_t position) {
    basic::ErrorState errors;  // errors are ignored throughout
    const int index = position - 1;
    // The numeric reading stops at the first foreign character of a text; a float is its own.
    const auto reading = [&](LabelSlot slot) {
        const Variant& cell = labelCell(session_, slot, index);
        if (cell.isNumber()) return cell.number();
        return basic::leadingNumber(basic::toText(cell, session_.platform().regional()));
    };
    Variant result;
    errors.skip([&] { result = labelCell(session_, kValueSlot, index); });
    errors.skip([&] { labelCell(session_, kValueSlot, index) = reading(kStepSlot) + reading(kValueSlot); });
    errors.clear();
    return result;
}

Variant ValueCapture::LongPeriAirePoly() {
    std::vector<host::Point> points;
    try {
        std::int16_t count = 0;
        for (;;) {
            const std::string_view prompt = count == 0 ? kFirstPointPrompt : kNextPointPrompt;
            points.push_back(host::toPoint(utility(session_).GetPoint(basic::Missing{}, prompt)));
            count = basic::toInt16(count + 1);
        }
    } catch (const basic::Error&) {
        // The only way out: the user ends the polygon by Enter or Escape.
    }
    const PolygonMeasure measure = measurePolygon(std::move(points));
    return basic::Doubles{measure.length, measure.perimeter, measure.area};
}

/// A pick of an operation of its own, apart from the one that a label's attributes share. It writes the point
/// that all picks share.
host::ObjectPtr ValueCapture::pickForOne(basic::ErrorState& errors, std::string_view prompt) {
    host::ObjectPtr object;
    errors.skip([&] { utility(session_).GetEntity(object, session_.PickPoint, prompt); });
    return object;
}

Variant ValueCapture::ClicLong(std::int32_t selector) {
    basic::ErrorState errors;  // errors are ignored throughout, here and below
    if (selector == kPolygon) return LongPeriAirePoly().doubles().at(measureOf(kPolygonLength));
    if (selector != kOneClick) return {};
    return measureReading(errors, pickForOne(errors, kLengthPrompt));
}

Variant ValueCapture::ClicPerim(std::int32_t selector) {
    basic::ErrorState errors;
    if (selector == kPolygon) return LongPeriAirePoly().doubles().at(measureOf(kPolygonPerimeter));
    if (selector != kOneClick) return {};
    return measureReading(errors, pickForOne(errors, kPerimeterPrompt));
}

Variant ValueCapture::ClicAire(std::int32_t selector) {
    basic::ErrorState errors;
    if (selector == kPolygon) return LongPeriAirePoly().doubles().at(measureOf(kPolygonArea));
    Variant value;
    if (selector == kOneClick) {
        const host::Entity entity(pickForOne(errors, kAreaPrompt));
        errors.skip([&] { value = entity.Area(); });
    }
    return value;
}

Variant ValueCapture::ClicCalque() {
    basic::ErrorState errors;
    const host::Entity entity(pickForOne(errors, kLayerPrompt));
    Variant value;
    errors.skip([&] { value = entity.Layer(); });
    return value;
}

Variant ValueCapture::ClicColor() {
    basic::ErrorState errors;
    const host::Entity entity(pickForOne(errors, kColorPrompt));
    Variant value;
    errors.skip([&] { value = entity.Color(); });
    return value;
}

}  // namespace labels
