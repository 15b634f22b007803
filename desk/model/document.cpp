#include "desk/model/document.h"

#include "basic/text.h"
#include "desk/dxf/tag.h"
#include "desk/model/entity.h"
#include "desk/model/host_errors.h"
#include "desk/model/utility.h"

#include <filesystem>

namespace model {

Document::Document(std::unique_ptr<drawing::Drawing> drawing, std::shared_ptr<const Environment> environment,
                   std::weak_ptr<Application> application)
    : context_(std::make_shared<Context>(std::move(drawing), std::move(environment))),
      application_(std::move(application)),
      modelSpace_(std::make_shared<ModelSpace>(context_, context_->drawing->modelSpace())),
      selectionSets_(std::make_shared<SelectionSets>(context_)) {}

bool Document::undo() {
    // A block brought in from a file may be gone now, or have the content of before.
    context_->broughtIn.clear();
    return context_->drawing->undo();
}

bool Document::redo() {
    context_->broughtIn.clear();
    return context_->drawing->redo();
}

Variant Document::paperSpace() const {
    return std::make_shared<Block>(context_, context_->drawing->blocks().paperSpace());
}
Variant Document::blocks() const { return std::make_shared<Blocks>(context_); }
Variant Document::utility() const { return std::make_shared<Utility>(context_); }
Variant Document::application() const { return application_.lock(); }

Variant Document::name() const {
    return std::filesystem::path(context_->drawing->path()).filename().string();
}
Variant Document::fullName() const { return context_->drawing->path(); }
Variant Document::saved() const { return !context_->drawing->isModified(); }

Variant Document::getVariable(Arguments& arguments) {
    requireCount(arguments, 1, 1, "GetVariable");
    const auto application = application_.lock();
    return application ? application->variables().get(*context_, arguments[0].text()) : Variant();
}

Variant Document::setVariable(Arguments& arguments) {
    requireCount(arguments, 2, 2, "SetVariable");
    if (const auto application = application_.lock())
        application->variables().set(*context_, arguments[0].text(), arguments[1]);
    return {};
}

Variant Document::handleToObject(Arguments& arguments) {
    requireCount(arguments, 1, 1, "HandleToObject");
    const drawing::EntityId id = context_->drawing->byHandle(dxf::parseHandle(arguments[0].text()));
    if (id == drawing::kNoEntity) drawing::raise(drawing::kKeyNotFound, arguments[0].text());
    return makeEntity(context_, id);
}

const MemberTable& Document::members() const {
    using D = Document;
    static const MemberTable table({
        property<&D::modelSpace>("ModelSpace"),
        property<&D::paperSpace>("PaperSpace"),
        property<&D::blocks>("Blocks"),
        property<&D::utility>("Utility"),
        property<&D::selectionSets>("SelectionSets"),
        property<&D::application>("Application"),
        property<&D::name>("Name"),
        property<&D::fullName>("FullName"),
        property<&D::saved>("Saved"),
        method<&D::getVariable>("GetVariable"),
        method<&D::setVariable>("SetVariable"),
        method<&D::handleToObject>("HandleToObject"),
    });
    return table;
}

std::shared_ptr<Document> Application::open(std::unique_ptr<drawing::Drawing> drawing) {
    const auto self = std::static_pointer_cast<Application>(shared_from_this());
    active_ = std::make_shared<Document>(std::move(drawing), environment_, self);
    return active_;
}

void Application::registerObject(const std::string& progId, Factory factory) {
    factories_[basic::toUpper(progId)] = std::move(factory);
}

Variant Application::getInterfaceObject(Arguments& arguments) {
    requireCount(arguments, 1, 1, "GetInterfaceObject");
    const auto found = factories_.find(basic::toUpper(arguments[0].text()));
    if (found == factories_.end()) raise(kUnknownProgId, arguments[0].text());
    return found->second();
}

const MemberTable& Application::members() const {
    using A = Application;
    static const MemberTable table({
        property<&A::name>("Name"),
        property<&A::version>("Version"),
        property<&A::activeDocument>("ActiveDocument"),
        method<&A::getInterfaceObject>("GetInterfaceObject"),
    });
    return table;
}

}  // namespace model
