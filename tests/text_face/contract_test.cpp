// One contract for all faces: the same acts give the same events and leave the same model, whichever face is
// up.
#include "faces/text/form_text.h"
#include "faces/text/text_screen.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

namespace acts = forms::acts;
using forms::Form;

struct Outcome {
    std::vector<std::string> events;
    std::string state;
    int help = 0;
};

/// One act as the text face's line and as the call that another face makes.
struct Step {
    std::string line;
    std::function<void(Form&)> act;
};

forms::Control& at(Form& form, const char* name) { return acts::controlNamed(form, name); }

std::vector<Step> steps() {
    return {{"Check1", [](Form& f) { acts::click(at(f, "Check1")); }},
            {"Option2", [](Form& f) { acts::click(at(f, "Option2")); }},
            {"List1 = window", [](Form& f) { acts::chooseText(at(f, "List1"), "window"); }},
            {"List1 # 1", [](Form& f) { acts::chooseIndex(at(f, "List1"), 1); }},
            {"Combo1 = chair", [](Form& f) { acts::type(at(f, "Combo1"), "chair"); }},
            {"Combo1 # 0", [](Form& f) { acts::chooseIndex(at(f, "Combo1"), 0); }},
            {"Combo2 = door", [](Form& f) { acts::chooseText(at(f, "Combo2"), "door"); }},
            {"ListView1 # 2", [](Form& f) { acts::chooseIndex(at(f, "ListView1"), 2); }},
            {"ListView1 # 1 = x", [](Form& f) { acts::editLabel(at(f, "ListView1"), 1, "x"); }},
            {"ListView1 # 3 = y", [](Form& f) { acts::editLabel(at(f, "ListView1"), 3, "y"); }},
            {"ListView1", [](Form& f) { acts::click(at(f, "ListView1")); }},
            {"ListView1 key up", [](Form& f) { acts::key(at(f, "ListView1"), forms::Key::Up); }},
            {"key HOME", [](Form& f) { acts::key(f, forms::Key::Home); }},
            {"resize 7000 5000.5", [](Form& f) { acts::resize(f, 7000, 5000.5); }},
            {"move -10 20", [](Form& f) { acts::move(f, -10, 20); }},
            {"key F1", [](Form& f) { acts::key(f, forms::Key::F1); }},
            {"Button1", [](Form& f) { acts::click(at(f, "Button1")); }},   // hides, asks, shows again
            {"Button1", [](Form& f) { acts::click(at(f, "Button1")); }},   // fails after a change
            {"Button1", [](Form& f) { acts::click(at(f, "Button1")); }}};  // hides for good
}

/// The dialog's third press ends it; the first nests a show, the second fails.
void prepare(fakes::SampleForm& form, forms::Screen& screen) {
    form.initialize();
    form.onLoad = [&form] { form.fillLists(); };
    form.onGo = [&form, &screen, presses = 0]() mutable {
        switch (++presses) {
            case 1: {
                form.hide();
                const bool yes = screen.messageBox({"Go on?", "T", forms::MessageBox::Buttons::YesNo}) ==
                                 forms::Answer::Yes;
                form.CommonDialog1.showOpen(screen);
                form.events.push_back((yes ? "yes " : "no ") + form.CommonDialog1.fileName());
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
}

Outcome outcomeOf(fakes::SampleForm& form, int help) {
    std::ostringstream state;
    text_face::printForm(state, form, text_face::Detail::Full);
    state << form.left() << ' ' << form.top() << ' ' << form.width() << ' ' << form.height() << ' '
          << form.visible() << ' ' << form.timesDrawn() << ' ' << form.activeControl()->name();
    return {form.events, state.str(), help};
}

Outcome withoutAFace() {
    fakes::RecordingScreen screen;
    for (const Step& step : steps()) screen.acts.push_back(step.act);
    screen.answers = {forms::Answer::Yes};
    screen.paths = {"a.dxf"};
    fakes::SampleForm form;
    prepare(form, screen);
    form.show(screen);
    return outcomeOf(form, screen.helpContexts.at(0));
}

Outcome onText() {
    std::string lines;
    int presses = 0;
    for (const Step& step : steps()) {
        lines += step.line + '\n';
        if (step.line == "Button1" && ++presses == 1) lines += "yes\nfile a.dxf\n";
    }
    std::istringstream input(lines);
    std::ostringstream output;
    text_face::StreamLines source(input, false);
    int help = 0;
    text_face::TextScreen screen(source, output, [&](int context) { help = context; });
    fakes::SampleForm form;
    prepare(form, screen);
    form.show(screen);
    return outcomeOf(form, help);
}

TEST(ContractTest, TheSameActsGiveTheSameEventsAndTheSameModel) {
    const Outcome expected = withoutAFace();
    const Outcome text = onText();
    EXPECT_EQ(text.events, expected.events);
    EXPECT_EQ(text.state, expected.state);
    EXPECT_EQ(text.help, expected.help);

    EXPECT_EQ(expected.help, 109900);
    std::string events;
    for (const std::string& event : expected.events) events += event + ", ";
    EXPECT_EQ(events,
              "Initialize, Load, Activate, Check1.Click, Option2.Click, List1.Click, List1.Click, "
              "Combo1.Change, Combo1.Click, Combo2.Click, ListView1.ItemClick 2, ListView1.Click, "
              "ListView1.BeforeLabelEdit, ListView1.BeforeLabelEdit, ListView1.Click, "
              "ListView1.KeyDown at 3, ListView1.KeyDown at 2, Resize, Button1.Click, yes a.dxf, Activate, "
              "Button1.Click, Text1.Change, Button1.Click, ");
}

}  // namespace
