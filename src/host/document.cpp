#include "host/document.h"

namespace host {

ObjectPtr Application::GetInterfaceObject(std::string_view programId) const {
    return asObject(invoke("GetInterfaceObject", {programId}));
}

Space Document::ModelSpace() const { return Space(get("ModelSpace")); }

host::Blocks Document::Blocks() const { return host::Blocks(get("Blocks")); }

host::Utility Document::Utility() const { return host::Utility(get("Utility")); }

host::SelectionSets Document::SelectionSets() const { return host::SelectionSets(get("SelectionSets")); }

host::Application Document::Application() const { return host::Application(get("Application")); }

}  // namespace host
