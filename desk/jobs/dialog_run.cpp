#include "desk/jobs/dialog_run.h"

#include "forms/acts.h"
#include "forms/find_entry.h"

namespace jobs {

namespace {

namespace acts = forms::acts;
using forms::Control;

}  // namespace

void DialogRun::click(std::string_view form, std::string_view control) {
    on(form, [name = std::string(control)](forms::Form& up) { acts::click(acts::controlNamed(up, name)); });
}

void DialogRun::type(std::string_view form, std::string_view control, std::string_view text) {
    on(form, [name = std::string(control), typed = std::string(text)](forms::Form& up) {
        acts::type(acts::controlNamed(up, name), typed);
    });
}

void DialogRun::choose(std::string_view form, std::string_view control, std::string_view text) {
    on(form, [name = std::string(control), wanted = std::string(text)](forms::Form& up) {
        Control& list = acts::controlNamed(up, name);
        const int index = forms::findEntry(list, wanted);
        if (index < 0) throw JobError(up.caption() + " has no entry \"" + wanted + "\" in " + name);
        acts::chooseIndex(list, index);
    });
}

void DialogRun::chooseIndex(std::string_view form, std::string_view control, int index) {
    on(form, [name = std::string(control), index](forms::Form& up) {
        acts::chooseIndex(acts::controlNamed(up, name), index);
    });
}

void DialogRun::requireDone() const {
    if (!failure_.empty()) throw JobError(failure_);
    if (!plan_.empty()) throw JobError("the dialog " + plan_.front().form + " didn't come up");
}

void DialogRun::fail(const std::string& reason) {
    if (failure_.empty()) failure_ = reason;
    throw JobError(failure_);
}

void DialogRun::runModal(forms::Form& form) {
    while (form.visible()) {
        // Nothing goes on behind a failure that something on its way has caught.
        if (!failure_.empty()) throw JobError(failure_);
        if (plan_.empty() || plan_.front().form != form.name()) {
            fail("the dialog " + form.name() + " came up unexpectedly");
        }
        const Planned next = std::move(plan_.front());
        plan_.pop_front();
        try {
            next.act(form);
        } catch (const forms::ActError& error) {
            fail(error.what());
        }
    }
}

forms::Answer DialogRun::messageBox(const forms::MessageDialog& box) {
    boxes_.push_back(box);
    // The one question of the jobs is whether to save an extraction, which has been written by then.
    if (box.buttons == forms::MessageDialog::Buttons::YesNo) return forms::Answer::No;
    if (box.icon != forms::MessageDialog::Icon::Information && !tolerant_) fail(box.text);
    return box.buttons == forms::MessageDialog::Buttons::OkCancel ? forms::Answer::Cancel : forms::Answer::Ok;
}

std::optional<std::string> DialogRun::fileDialog(const forms::FileDialog&, forms::FileDialogMode) {
    if (files_.empty()) fail("a file dialog came up unexpectedly");
    std::string path = std::move(files_.front());
    files_.pop_front();
    return path;
}

void DialogRun::reportFailure(std::int32_t number, const std::string& description) {
    fail("Error " + std::to_string(number) + ": " + description);
}

}  // namespace jobs
