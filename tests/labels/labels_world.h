#pragma once

#include "forms/controls.h"
#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "labels/label_table.h"
#include "labels/labels_command.h"
#include "labels/value_modes.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;
using fakes::Point;

/// A session with the dialogs of the labelling, on a drawing in memory behind the host that can fail, with
/// the English texts. The block TAG has three attributes, ROOM two, PLAIN none.
struct LabelsWorld : fakes::SessionWorld {
    LabelsWorld() {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
        labels::registerForms(session);
        host.addBlock("TAG", {{"A", "a"}, {"B", "b"}, {"C", "c"}});
        host.addBlock("ROOM", {{"NAME", "room"}, {"AREA", "0"}});
        host.addBlock("PLAIN");
    }

    labels::fmLabels& dialog() { return session.form<labels::fmLabels>("fmLabels"); }
    labels::fmParamIns& parameters() { return session.form<labels::fmParamIns>("fmParamIns"); }
    labels::fmAttFormat& format() { return session.form<labels::fmAttFormat>("fmAttFormat"); }

    /// Runs the command; the queued acts and answers are all used and end it.
    void run() {
        labels::StartLabels(session);
        EXPECT_FALSE(dialog().visible());
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
        const fakes::FakeDrawing& drawing = host.drawing();
        EXPECT_TRUE(drawing.points.empty() && drawing.picks.empty() && drawing.angles.empty())
            << "answers that nobody asked for";
    }
    /// Queues a look at the state in the middle of the acts.
    template <typename Look>
    void look(Look look) {
        screen.acts.push_back([look](forms::Form&) { look(); });
    }
    void block(const std::string& name) { screen.choose("Combo2", name); }
    void row(int index) { screen.choose("ListView1", index); }
    void mode(labels::ValueMode mode) { screen.choose("Combo1", mode); }
    void close() { screen.click("OKButton"); }
    /// Presses BtnInserer; the answers queued for it end the run.
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
    /// The texts of one attribute over all references of a block.
    Texts column(const std::string& block, std::size_t attribute = 0) {
        Texts found;
        for (const auto& reference : host.references(block)) found.push_back(values(reference).at(attribute));
        return found;
    }
    Texts subItems(int item) {
        Texts found;
        for (int i = 1; i <= dialog().ListView1.listItems().count(); ++i)
            found.push_back(dialog().ListView1.listItems().item(i).subItem(item));
        return found;
    }
    /// The failures that left a handler.
    Texts failures() const {
        Texts found;
        for (const std::string& entry : screen.log)
            if (entry.starts_with("failure")) found.push_back(entry.substr(0, entry.find(':')));
        return found;
    }
    Texts prompts() { return std::exchange(host.drawing().prompts, {}); }

    fakes::FakeHost host;
    fakes::FaultyHost faulty{host.document()};
};

// The prompts, told short in the tests by these.
inline const char* const kWhere = "Indiquer le point d'insertion du bloc :";
inline const char* const kAngle = "Indiquer l'orientation :";
inline const char* const kFrom = "Indiquer le 1er point de la ligne de repère :";
inline const char* const kTo = "Indiquer le 2è point de la ligne de repère :";
inline const char* const kPoint = "Selectionner le point à repérer. ";
inline const char* const kObject = "Selectionner le contour ou l'objet. ";
inline const char* const kFirst = "Cliquer sur le premier point pour le contour polyclic : ";
inline const char* const kNext = "Cliquer sur le point suivant pour le contour polyclic : ";
