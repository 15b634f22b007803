#include "host/point.h"

namespace host {

basic::Variant toVariant(const Point& point) { return basic::Doubles(point.begin(), point.end()); }

Point toPoint(const basic::Variant& value) {
    const auto three = [](const auto& elements, auto numberOf) {
        if (elements.size() < 3) throw basic::Error(basic::kSubscript);
        return Point{numberOf(elements[0]), numberOf(elements[1]), numberOf(elements[2])};
    };
    if (value.is(basic::Variant::Kind::Array)) {
        return three(value.array(), [](const basic::Variant& element) { return element.number(); });
    }
    return three(value.doubles(), [](double element) { return element; });
}

}  // namespace host
