#pragma once

#include "forms/controls.h"

#include <functional>
#include <string>
#include <vector>

namespace fakes {

/// A dialog with a control of each kind, which logs its events as "control.Event".
class SampleForm : public forms::Form {
  public:
    SampleForm() : Form("fmSample", "099", "Sample", 109900) {
        resizeTo(6000, 5200);
        setResizable(true);
        Frame1.place(100, 100, 5000, 2000);
        Frame1.setCaption("Values");
        Picture1.place(Frame1, 50, 300, 4000, 1300);
        Option1.place(Picture1, 0, 0, 1000, 300);
        Option1.setCaption("All");
        Option1.setValue(true);
        Option2.place(Picture1, 0, 400, 1000, 300);
        Option2.setCaption("Some");
        Check1.place(Frame1, 0, 1650, 1000, 300);
        Check1.setCaption("Rotate");
        Text1.place(100, 2200, 1000, 300);
        Text1.setText("design");
        Text1.setEnabled(false);
        List1.place(100, 2600, 1000, 800);
        Combo1.place(1200, 2600, 1000, 300);
        Combo2.place(2400, 2600, 1000, 300);
        Combo2.setSorted(true);
        ListView1.place(100, 3500, 4000, 800);
        ListView1.columnHeaders().add("Source", 2000);
        ListView1.columnHeaders().add("Target", 2000);
        Button1.place(100, 4400, 1000, 300);
        Button1.setCaption("Go");
        Hidden1.setVisible(false);
        Line1.setEnds(0, 10, 4000, 10);
        wire();
    }

    forms::Frame Frame1{*this, "Frame1"};
    forms::PictureBox Picture1{*this, "Picture1"};
    forms::OptionButton Option1{*this, "Option1"};
    forms::OptionButton Option2{*this, "Option2"};
    forms::CheckBox Check1{*this, "Check1"};
    forms::TextBox Text1{*this, "Text1"};
    forms::ListBox List1{*this, "List1"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::ComboBox Combo2{*this, "Combo2", forms::ComboBox::Style::DropDownList};
    forms::ListView ListView1{*this, "ListView1"};
    forms::Button Button1{*this, "Button1"};
    forms::CheckBox Hidden1{*this, "Hidden1"};
    forms::Line Line1{*this, "Line1"};
    forms::FileDialog CommonDialog1{*this, "CommonDialog1"};

    std::vector<std::string> events;
    std::function<void()> onGo;        ///< what Button1 does besides
    std::function<void()> onLoad;      ///< what Form_Load does besides
    std::function<void()> onActivate;  ///< what Form_Activate does besides

    void fillLists() {
        for (const char* text : {"door", "window", "chair"}) {
            List1.addItem(text);
            Combo1.addItem(text);
            Combo2.addItem(text);
            ListView1.listItems().add(text);
        }
    }
    /// The events since the last call.
    std::vector<std::string> taken() { return std::exchange(events, {}); }
    /// The events of an act.
    template <typename Act>
    std::vector<std::string> after(Act act) {
        events.clear();
        act();
        return taken();
    }

  protected:
    void Form_Initialize() override { events.push_back("Initialize"); }
    void Form_Load() override {
        events.push_back("Load");
        if (onLoad) onLoad();
    }
    void Form_Activate() override {
        events.push_back("Activate");
        if (onActivate) onActivate();
    }
    void Form_Resize() override { events.push_back("Resize"); }
    void Form_Help(int context) override { events.push_back("Help " + std::to_string(context)); }

  private:
    void wire() {
        auto log = [this](const char* event) { return [this, event] { events.push_back(event); }; };
        Option1.onClick = log("Option1.Click");
        Option2.onClick = log("Option2.Click");
        Check1.onClick = log("Check1.Click");
        Text1.onChange = log("Text1.Change");
        List1.onClick = log("List1.Click");
        Combo1.onClick = log("Combo1.Click");
        Combo1.onChange = log("Combo1.Change");
        Combo2.onClick = log("Combo2.Click");
        Combo2.onChange = log("Combo2.Change");
        ListView1.onClick = log("ListView1.Click");
        ListView1.onItemClick = [this](forms::ListItem& item) {
            events.push_back("ListView1.ItemClick " + std::to_string(item.index()));
        };
        ListView1.onKeyDown = [this](forms::Key) {
            events.push_back("ListView1.KeyDown at " + std::to_string(ListView1.selectedItem().index()));
        };
        ListView1.onBeforeLabelEdit = [this](bool& cancel) {
            events.push_back("ListView1.BeforeLabelEdit");
            cancel = ListView1.selectedItem().index() == 1;
        };
        Button1.onClick = [this] {
            events.push_back("Button1.Click");
            if (onGo) onGo();
        };
    }
};

}  // namespace fakes
