#pragma once

#include "host/object_view.h"

#include <string>

namespace host {

class AttributeReference : public ObjectView {
  public:
    using ObjectView::ObjectView;

    std::string TagString() const;
    std::string TextString() const;
    void setTextString(std::string_view text) const;
};

/// What `GetAttributes` gives: an array from 0 of attribute references in the block's own order, as it was
/// when it was taken.
class Attributes {
  public:
    /// Raises kTypeMismatch for a value that is no array of variants.
    explicit Attributes(Variant array);

    std::size_t size() const { return array_.array().size(); }
    /// Raises kSubscript outside the array.
    AttributeReference at(std::size_t index) const;
    const Variant& variant() const { return array_; }

  private:
    Variant array_;
};

}  // namespace host
