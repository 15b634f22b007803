#pragma once

#include "faces/text/act_line.h"
#include "faces/text/form_text.h"
#include "faces/text/hand.h"
#include "tests/fakes/sample_form.h"

#include <deque>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace fakes {

/// What the contract's message box and file dialog are answered.
inline constexpr const char* kContractFile = "a.dxf";

/// The acts of the contract, a line each. The third press of Button1 ends the dialog; the first hides it,
/// asks a box and a file dialog and shows it again; the second fails.
inline const std::vector<std::string>& contractLines() {
    static const std::vector<std::string> lines = {"Check1",
                                                   "Option2",
                                                   "List1 = window",
                                                   "List1 # 1",
                                                   "Combo1 = chair",
                                                   "Combo1 # 0",
                                                   "Combo2 = door",
                                                   "ListView1 # 2",
                                                   "ListView1 # 1 = x",
                                                   "ListView1 # 3 = y",
                                                   "ListView1 column 2 1500",
                                                   "ListView1",
                                                   "ListView1 key UP",
                                                   "key HOME",
                                                   "Option2 key UP",
                                                   "List1 key DOWN",
                                                   "key TAB",
                                                   "key SHIFT+TAB",
                                                   "key ALT+R",
                                                   "resize 7620 5655",
                                                   "key F1",
                                                   "Button1",
                                                   "Button1",
                                                   "key ALT+G"};
    return lines;
}

inline std::string contractScript() {
    std::string script;
    int presses = 0;
    for (const std::string& line : contractLines()) {
        script += line + "\n";
        if (line == "Button1" && ++presses == 1) script += std::string("yes\nfile ") + kContractFile + "\n";
    }
    return script;
}

/// A face under the contract: its screen, and for one that doesn't read a script itself the acts one by one.
class ContractFace {
  public:
    virtual ~ContractFace() = default;
    virtual forms::Screen& screen() = 0;
    /// What reportFailure was told.
    std::vector<std::string> failures;

  protected:
    bool runs(const forms::Form& form) const {
        if (lines_.empty()) ADD_FAILURE() << form.name() << " waits for an act";
        return !lines_.empty();
    }
    std::string takeLine() {
        std::string line = lines_.front();
        lines_.pop_front();
        return line;
    }
    void next(forms::Form& form, text_face::Hand& hand) {
        std::ostringstream output;
        text_face::performLine(output, hand, form, takeLine());
    }

  private:
    std::deque<std::string> lines_{contractLines().begin(), contractLines().end()};
};

/// Runs the acts on a face and expects the events and the model that every face gives.
inline void expectContract(ContractFace& face) {
    SampleForm form;
    forms::Screen& screen = face.screen();
    form.initialize();
    form.onLoad = [&form] { form.fillLists(); };
    form.onGo = [&form, &screen, presses = 0]() mutable {
        switch (++presses) {
            case 1: {
                form.hide();
                const bool yes = screen.messageBox({"Go on?", "T", forms::MessageDialog::Buttons::YesNo}) ==
                                 forms::Answer::Yes;
                form.CommonDialog1.showOpen(screen);
                const std::string& path = form.CommonDialog1.fileName();
                form.events.push_back((yes ? "yes " : "no ") + path.substr(path.find_last_of("/\\") + 1));
                form.show(screen);
                break;
            }
            case 2:
                form.Text1.setText("changed");
                throw basic::Error(1000, "failed");
            default:
                form.hide();
        }
    };
    form.show(screen);

    std::string events;
    for (const std::string& event : form.events) events += event + ", ";
    EXPECT_EQ(
        events,
        "Initialize, Load, Activate, Check1.Click, Option2.Click, List1.Click, List1.Click, "
        "Combo1.Change, Combo1.Click, Combo2.Click, ListView1.ItemClick 2, ListView1.Click, "
        "ListView1.BeforeLabelEdit, ListView1.BeforeLabelEdit, ListView1.Click, "
        "ListView1.KeyDown at 3, ListView1.KeyDown at 2, Option1.Click, List1.Click, Check1.Click, Resize, "
        "Help 109900, Button1.Click, yes a.dxf, Activate, Button1.Click, Text1.Change, Button1.Click, ");
    std::ostringstream state;
    text_face::printForm(state, form, text_face::Detail::Full);
    state << form.width() << ' ' << form.height() << ' ' << form.visible() << ' ' << form.timesDrawn() << ' '
          << form.ListView1.columnHeaders().item(2).width << ' ' << form.activeControl()->name() << '\n';
    EXPECT_EQ(state.str(), R"(  Frame1: Values
    Option1: (o) All
    Option2: ( ) Some
    Check1: [ ] Rotate
  Text1: "changed" (disabled)
  List1: 3 entries
      0 door
      1 window
    > 2 chair
  Combo1: "door"
    > 0 door
      1 window
      2 chair
  Combo2: "door"
      0 chair
    > 1 door
      2 window
  ListView1: 3 rows
      # | Source | Target
    > 1 | door |
      2 | window |
      3 | y |
  Button1: [Go]
7620 5655 0 2 1500 Button1
)");
}

}  // namespace fakes
