#pragma once

#include "basic/border.h"
#include "desk/model/prompter.h"
#include "forms/screen.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jobs {

/// A job can't be done on a drawing, or a dialog failed. It is no basic::Error, so that it passes all
/// handlers.
class JobError : public basic::Interruption {
  public:
    using Interruption::Interruption;
};

/// Works the dialogs in a person's place: acts planned beforehand, each on the dialog that is up when its
/// turn comes. A dialog that the plan doesn't expect, an act that can't be done, a failure out of a handler
/// and a warning in a message box end the job with a JobError.
class DialogRun : public forms::Screen {
  public:
    using Act = std::function<void(forms::Form&)>;

    /// Plans the next act.
    void on(std::string_view form, Act act) { plan_.push_back({std::string(form), std::move(act)}); }
    /// Plans an act in front of those that are planned already.
    void next(std::string_view form, Act act) { plan_.push_front({std::string(form), std::move(act)}); }
    // The common acts, on controls by name.
    void click(std::string_view form, std::string_view control);
    void type(std::string_view form, std::string_view control, std::string_view text);
    /// Chooses the entry or row with this text, without regard to case where none has exactly it.
    void choose(std::string_view form, std::string_view control, std::string_view text);
    void chooseIndex(std::string_view form, std::string_view control, int index);

    /// Answers the next file dialog.
    void answerFile(std::string path) { files_.push_back(std::move(path)); }
    /// Warnings are kept for the report and end nothing.
    void tolerateWarnings() { tolerant_ = true; }

    /// What the message boxes said, in their order.
    const std::vector<forms::MessageDialog>& boxes() const { return boxes_; }
    /// Raises JobError unless all planned acts were done.
    void requireDone() const;

    void runModal(forms::Form& form) override;
    void hidden(forms::Form&) override {}
    void changed(forms::Form&, forms::Change) override {}
    void changed(forms::Control&, forms::Change) override {}
    forms::Answer messageBox(const forms::MessageDialog& box) override;
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override;
    void reportFailure(std::int32_t number, const std::string& description) override;

  private:
    struct Planned {
        std::string form;
        Act act;
    };
    [[noreturn]] void fail(const std::string& reason);

    std::deque<Planned> plan_;
    std::deque<std::string> files_;
    std::vector<forms::MessageDialog> boxes_;
    std::string failure_;
    bool tolerant_ = false;
};

/// Answers the picks of a job.
class PlannedPrompter : public model::Prompter {
  public:
    drawing::EntityId entity = drawing::kNoEntity;
    std::vector<drawing::EntityId> selection;
    std::vector<std::string> messages;  ///< what the host told

    model::EntityPick getEntity(const drawing::Drawing&, const std::string&) override {
        return {model::Answer::Given, entity, {}};
    }
    model::PointPick getPoint(const std::optional<geometry::Point3>&, const std::string&) override {
        return {};
    }
    model::AnglePick getAngle(const geometry::Point3&, const std::string&) override { return {}; }
    model::SelectionPick selectEntities(const drawing::Drawing&, const std::string&) override {
        return {model::Answer::Given, selection};
    }
    void message(const std::string& text) override { messages.push_back(text); }
};

}  // namespace jobs
