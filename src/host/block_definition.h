#pragma once

#include "host/object_view.h"

#include <string>

namespace host {

/// A block definition, an element of `Blocks`.
class BlockDefinition : public ObjectView {
  public:
    using ObjectView::ObjectView;

    std::string Name() const;
    /// Whether it stands for a layout.
    bool IsLayout() const;
    /// Whether it is an external reference.
    bool IsXRef() const;
};

/// The collection of block definitions.
class Blocks : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// Walks the definitions in the host's order until `visit` returns false.
    void forEach(const std::function<bool(const BlockDefinition&)>& visit) const;
};

}  // namespace host
