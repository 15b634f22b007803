#pragma once

#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "labels/label_table.h"
#include "labels/labels_command.h"
#include "labels/value_modes.h"
#include "tests/fakes/dialog_world.h"

#include <string>

using fakes::Texts;

/// The dialogs of the labelling. The block TAG has three attributes, PLAIN none.
struct LabelsWorld : fakes::DialogWorld {
    LabelsWorld() : DialogWorld({{"TAG", {{"A", "a"}, {"B", "b"}, {"C", "c"}}}, {"PLAIN", {}}}) {
        labels::registerForms(session);
    }
    explicit LabelsWorld(const drawing::PlainDrawing& plain) : DialogWorld(plain) {}

    labels::fmLabels& dialog() { return session.form<labels::fmLabels>("fmLabels"); }
    labels::fmParamIns& parameters() { return session.form<labels::fmParamIns>("fmParamIns"); }
    labels::fmAttFormat& format() { return session.form<labels::fmAttFormat>("fmAttFormat"); }

    /// Runs the command with the queued acts and the button that closes its dialog; all answers are used.
    void run() {
        screen.click("OKButton");
        labels::StartLabels(session);
        EXPECT_FALSE(dialog().visible());
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
        EXPECT_TRUE(prompter.points.empty() && prompter.entities.empty() && prompter.angles.empty())
            << "answers that nobody asked for";
    }
    void block(const std::string& name) { screen.choose("Combo2", name); }
    void row(int index) { screen.choose("ListView1", index); }
    void mode(labels::ValueMode mode) { screen.choose("Combo1", mode); }
    void insert() { screen.click("BtnInserer"); }
    /// Turns the leader line, which is on by default, off.
    void withoutLeader() {
        look([this] { parameters().CheckBox2.setValue(0); });
    }

    /// The texts of a reference's attributes.
    static Texts values(const host::ObjectPtr& reference) {
        Texts found;
        for (const std::string& text : model::attributeTexts(reference))
            found.push_back(text.substr(text.find('=') + 1));
        return found;
    }
    Texts subItems(int item) {
        Texts found;
        for (int i = 1; i <= dialog().ListView1.listItems().count(); ++i)
            found.push_back(dialog().ListView1.listItems().item(i).subItem(item));
        return found;
    }
    /// The format slots of an attribute.
    Texts slots(int position) {
        Texts found;
        for (int slot = 1; slot < 6; ++slot)
            found.push_back(
                basic::toText(labels::labelCell(session, static_cast<labels::LabelSlot>(slot), position),
                              platform.numbers));
        return found;
    }
};

// The prompts, told short in the tests by these.
inline const char* const kWhere = "Indiquer le point d'insertion du bloc :";
inline const char* const kAngle = "Indiquer l'orientation :";
inline const char* const kFrom = "Indiquer le 1er point de la ligne de repère :";
inline const char* const kTo = "Indiquer le 2è point de la ligne de repère :";
inline const char* const kPoint = "Selectionner le point à repérer. ";
inline const char* const kObject = "Selectionner le contour ou l'objet. ";
