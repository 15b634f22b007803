#pragma once

#include "desk/model/block.h"
#include "desk/model/selection_sets.h"
#include "desk/model/variables.h"

#include <map>

namespace model {

class Application;

/// A drawing document.
class Document : public Automation {
  public:
    Document(std::unique_ptr<drawing::Drawing> drawing, std::shared_ptr<const Environment> environment,
             std::weak_ptr<Application> application);

    drawing::Drawing& drawing() { return *context_->drawing; }
    const ContextPtr& context() const { return context_; }
    /// Takes the last undo step back; false if there is none.
    bool undo();
    /// Brings the step back that was undone last; false if there is none.
    bool redo();

    Variant modelSpace() const { return modelSpace_; }
    Variant paperSpace() const;
    Variant blocks() const;
    Variant utility() const;
    Variant selectionSets() const { return selectionSets_; }
    Variant application() const;
    /// The file's name without and with its folder.
    Variant name() const;
    Variant fullName() const;
    /// Whether there is nothing to save.
    Variant saved() const;
    /// The system variables of the host, by name.
    Variant getVariable(Arguments& arguments);
    Variant setVariable(Arguments& arguments);
    /// The object of a handle given as hexadecimal text.
    Variant handleToObject(Arguments& arguments);

  protected:
    const MemberTable& members() const override;

  private:
    ContextPtr context_;
    std::weak_ptr<Application> application_;
    std::shared_ptr<ModelSpace> modelSpace_;
    std::shared_ptr<SelectionSets> selectionSets_;
};

/// The host application: the active document, and the objects that other programs of the process give it.
class Application : public Automation {
  public:
    using Factory = std::function<host::ObjectPtr()>;

    explicit Application(Environment environment)
        : environment_(std::make_shared<Environment>(std::move(environment))) {}

    Environment& environment() { return *environment_; }
    SystemVariables& variables() { return variables_; }
    /// Makes a document of a drawing and makes it the active one.
    std::shared_ptr<Document> open(std::unique_ptr<drawing::Drawing> drawing);
    const std::shared_ptr<Document>& active() const { return active_; }
    /// The object that `GetInterfaceObject` gives for a program identifier, without regard to case.
    void registerObject(const std::string& progId, Factory factory);

    Variant name() const { return "Vorlane desk"; }
    Variant version() const { return "1.0"; }
    Variant activeDocument() const { return active_; }
    /// A program identifier; raises kUnknownProgId for an unknown one.
    Variant getInterfaceObject(Arguments& arguments);

  protected:
    const MemberTable& members() const override;

  private:
    std::shared_ptr<Environment> environment_;
    SystemVariables variables_;
    std::map<std::string, Factory> factories_;
    std::shared_ptr<Document> active_;
};

}  // namespace model
