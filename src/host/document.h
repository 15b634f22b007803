#pragma once

#include "host/block_definition.h"
#include "host/selection.h"
#include "host/space.h"
#include "host/utility.h"

namespace host {

/// The host application.
class Application : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// An automation object of the host's own process, by its program id.
    ObjectPtr GetInterfaceObject(std::string_view programId) const;
};

/// The drawing document, from which every operation starts.
class Document : public ObjectView {
  public:
    using ObjectView::ObjectView;

    Space ModelSpace() const;
    host::Blocks Blocks() const;
    host::Utility Utility() const;
    host::SelectionSets SelectionSets() const;
    host::Application Application() const;
};

}  // namespace host
