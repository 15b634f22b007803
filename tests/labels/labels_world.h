#pragma once

#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "labels/label_table.h"
#include "labels/labels_command.h"
#include "labels/value_modes.h"
#include "tests/fakes/dialog_world.h"

#include <map>
#include <optional>
#include <string>

using fakes::Point;
using fakes::Texts;

/// The dialogs of the labelling. The block TAG has three attributes, ROOM two, PLAIN none.
struct LabelsWorld : fakes::DialogWorld {
    LabelsWorld() {
        labels::registerForms(session);
        host.addBlock("TAG", {{"A", "a"}, {"B", "b"}, {"C", "c"}});
        host.addBlock("ROOM", {{"NAME", "room"}, {"AREA", "0"}});
        host.addBlock("PLAIN");
    }

    labels::fmLabels& dialog() { return session.form<labels::fmLabels>("fmLabels"); }
    labels::fmParamIns& parameters() { return session.form<labels::fmParamIns>("fmParamIns"); }
    labels::fmAttFormat& format() { return session.form<labels::fmAttFormat>("fmAttFormat"); }

    /// Runs the command with the queued acts and the button that closes its dialog; all answers are used.
    void run() {
        screen.click("OKButton");
        labels::StartLabels(session);
        EXPECT_FALSE(dialog().visible());
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
        const fakes::FakeDrawing& drawing = host.drawing();
        EXPECT_TRUE(drawing.points.empty() && drawing.picks.empty() && drawing.angles.empty())
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

    void point(Point point) { host.drawing().points.emplace_back(point); }
    void escape() { host.drawing().points.emplace_back(std::nullopt); }
    void pick(const fakes::FakeEntityPtr& entity, Point place = {}) {
        host.pick(entity);
        host.drawing().pickPlaces.push_back(place);
    }
    fakes::FakeEntityPtr entity(std::map<std::string, double> measures) {
        const auto added = host.addEntity("AcDbEntity");
        added->measures = std::move(measures);
        return added;
    }

    /// The texts of a reference's attributes.
    static Texts values(const fakes::FakeReferencePtr& reference) {
        Texts found;
        for (const auto& attribute : reference->attributes) found.push_back(attribute->text);
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
    Texts prompts() { return std::exchange(host.drawing().prompts, {}); }
};

// The prompts, told short in the tests by these.
inline const char* const kWhere = "Indiquer le point d'insertion du bloc :";
inline const char* const kAngle = "Indiquer l'orientation :";
inline const char* const kFrom = "Indiquer le 1er point de la ligne de repère :";
inline const char* const kTo = "Indiquer le 2è point de la ligne de repère :";
inline const char* const kPoint = "Selectionner le point à repérer. ";
inline const char* const kObject = "Selectionner le contour ou l'objet. ";
