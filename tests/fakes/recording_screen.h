#pragma once

#include "basic/border.h"
#include "forms/acts.h"
#include "forms/file_dialog.h"
#include "forms/form.h"
#include "forms/screen.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fakes {

/// A screen without a face: it runs the queued acts on whatever form is up, gives the queued answers and logs
/// everything that a face would show. Running out of acts or answers is a test's mistake and raises
/// basic::Interruption, which no handler swallows.
class RecordingScreen : public forms::Screen {
  public:
    std::deque<std::function<void(forms::Form&)>> acts;
    std::deque<forms::Answer> answers;  ///< for boxes with a choice; a box with OK alone needs none
    std::deque<std::optional<std::string>> paths;
    std::vector<std::string> log;
    std::vector<forms::MessageDialog> boxes;
    int changes = 0;

    // The common acts by control name, in the order in which they are to run.
    void click(const std::string& name) { on(name, forms::acts::click); }
    void type(const std::string& name, const std::string& text) {
        on(name, [text](forms::Control& control) { forms::acts::type(control, text); });
    }
    void choose(const std::string& name, const std::string& text) {
        on(name, [text](forms::Control& control) { forms::acts::chooseText(control, text); });
    }
    void choose(const std::string& name, int index) {
        on(name, [index](forms::Control& control) { forms::acts::chooseIndex(control, index); });
    }
    void key(const std::string& name, forms::Key key) {
        on(name, [key](forms::Control& control) { forms::acts::key(control, key); });
    }
    void closeBox() {
        acts.push_back([](forms::Form& form) { forms::acts::closeBox(form); });
    }

    void runModal(forms::Form& form) override {
        log.push_back("show " + form.name());
        while (form.visible()) {
            if (acts.empty()) throw basic::Interruption("no act left for " + form.name());
            const auto act = std::move(acts.front());
            acts.pop_front();
            act(form);
        }
    }
    void hidden(forms::Form& form) override { log.push_back("hide " + form.name()); }
    void changed(forms::Form&, forms::Change) override { ++changes; }
    void changed(forms::Control&, forms::Change) override { ++changes; }

    forms::Answer messageBox(const forms::MessageDialog& box) override {
        boxes.push_back(box);
        log.push_back("box \"" + box.title + "\": " + box.text);
        if (box.buttons == forms::MessageDialog::Buttons::Ok) return forms::Answer::Ok;
        return next(answers, "answer for " + box.text);
    }
    std::optional<std::string> fileDialog(const forms::FileDialog& dialog,
                                          forms::FileDialogMode mode) override {
        log.push_back((mode == forms::FileDialogMode::Open ? "open " : "save ") + dialog.name());
        return next(paths, "path for " + dialog.name());
    }
    void reportFailure(std::int32_t number, const std::string& description) override {
        log.push_back("failure " + std::to_string(number) + ": " + description);
    }

  private:
    void on(const std::string& name, const std::function<void(forms::Control&)>& act) {
        acts.push_back([=](forms::Form& form) { act(forms::acts::controlNamed(form, name)); });
    }
    template <typename Value>
    static Value next(std::deque<Value>& queue, const std::string& what) {
        if (queue.empty()) throw basic::Interruption("no " + what);
        Value value = std::move(queue.front());
        queue.pop_front();
        return value;
    }
};

}  // namespace fakes
