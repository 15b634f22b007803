#include "host/attribute.h"

namespace host {

std::string AttributeReference::TagString() const { return get("TagString").text(); }

std::string AttributeReference::TextString() const { return get("TextString").text(); }

void AttributeReference::setTextString(std::string_view text) const { set("TextString", text); }

Attributes::Attributes(Variant array) : array_(std::move(array)) {
    if (!array_.is(Variant::Kind::Array)) throw basic::Error(basic::kTypeMismatch);
}

AttributeReference Attributes::at(std::size_t index) const {
    const basic::Array& elements = array_.array();
    if (index >= elements.size()) throw basic::Error(basic::kSubscript);
    return AttributeReference(elements[index]);
}

}  // namespace host
