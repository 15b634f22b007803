#include "replace/fm_replace.h"
#include "replace/replace_command.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/replacement_fields.h"
#include "tests/fakes/session_world.h"
#include "tests/shell/shell_world.h"

#include <algorithm>

namespace shell {
namespace {

using basic::Variant;
using Counts = std::pair<std::size_t, std::size_t>;  ///< references of LAMP and of SPOT

/// The replacement on the objects of a drawing, behind a host that can fail: three LAMPs, which the set
/// holds, and a SPOT.
class ReplacementOnDrawingTest : public testing::Test, protected fakes::SessionWorld {
  protected:
    ReplacementOnDrawingTest() {
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
        replace::registerForms(session);
        fields.name = "SPOT";
        open(fakes::BigDrawing::make(3));
    }
    void open(const std::string& bytes) {
        model::Environment environment;
        environment.prompter = &prompter;
        environment.regional = basic::Regional::english();
        application = std::make_shared<model::Application>(std::move(environment));
        application->open(drawing::Drawing::parse(bytes, "big.dxf"));
        host = std::make_unique<fakes::FaultyHost>(application->active());
        session.AcadDoc = host->root();
        const host::ObjectPtr sets = host::asObject(session.AcadDoc->get("SelectionSets"));
        session.ReplaceSelectionSet = host::asObject(sets->invoke("Add", {"SS1"}));
        session.ReplaceSelectionSet->invoke(
            "Select", {std::int16_t{5}, basic::Missing{}, basic::Missing{}, basic::Shorts{100, 2},
                       basic::Array{"AcDbEntity", "LAMP"}});
        screen.boxes.clear();
        host->reset();
    }
    const drawing::Drawing& drawing() const { return application->active()->drawing(); }
    int failure(const fakes::ReplacementFields& fields) {
        return fakes::errorOf([&] { replace::ReplaceBlocks(session, fields); });
    }
    Counts counts() const {
        const auto count = [&](const char* name) {
            return drawing().select({{2, std::string(name)}}).size();
        };
        return {count("LAMP"), count("SPOT")};
    }
    /// A LAMP of the set.
    host::ObjectPtr lamp(int index) {
        return fakes::FaultyHost::behind(
            host::asObject(session.ReplaceSelectionSet->invoke("Item", {index})));
    }
    /// The text of the first attribute of the last SPOT.
    std::string lastCode() const {
        const drawing::EntityId last = drawing().select({{2, std::string("SPOT")}}).back();
        return drawing().attribute(drawing().attributes(last).at(0)).text;
    }
    /// The queued acts end it.
    void runCommand() {
        session.ReplaceSelectionSet = nullptr;
        replace::RunReplaceCommand(session);
    }
    replace::fmReplace& dialog() { return session.form<replace::fmReplace>("fmReplace"); }

    fakes::ScriptedPrompter prompter;
    std::shared_ptr<model::Application> application;
    std::unique_ptr<fakes::FaultyHost> host;
    fakes::ReplacementFields fields;
};

TEST_F(ReplacementOnDrawingTest, WhatAFailureLeavesInTheDrawing) {
    struct Row {
        const char* access;
        int n;  ///< which one of them belongs to the second reference
        Counts left;
    };
    const Row rows[] = {
        {"call Item", 2, {2, 2}},    {"get Rotation", 2, {2, 2}},  {"call InsertBlock", 2, {2, 2}},
        {"set Rotation", 2, {2, 3}}, {"get TagString", 4, {2, 3}}, {"set TextString", 2, {2, 3}},
        {"call Delete", 2, {2, 3}},  {"call Update", 2, {1, 3}},
    };
    fields.angle = "1";
    fields.destinations = {"CODE"};
    for (const Row& row : rows) {
        open(fakes::BigDrawing::make(3));
        host->failAt(row.access, row.n);
        EXPECT_EQ(failure(fields), fakes::FaultyHost::standardFailure().number()) << row.access;
        EXPECT_EQ(counts(), row.left) << row.access;
        EXPECT_EQ(lamp(2)->get("Name").text(), "LAMP") << "those behind are untouched";
        EXPECT_TRUE(screen.boxes.empty()) << row.access;
    }
    open(fakes::BigDrawing::make(3));
    EXPECT_EQ(failure(fields), 0);
    EXPECT_EQ(counts(), Counts(0, 4));
    EXPECT_EQ(lastCode(), "L-3");
    EXPECT_EQ(screen.boxes.size(), 1U);
}

TEST_F(ReplacementOnDrawingTest, FailsForTheUsualCauses) {
    fields.name = "NONE";
    EXPECT_NE(failure(fields), 0);
    fields.name = "";
    EXPECT_NE(failure(fields), 0);
    EXPECT_EQ(counts(), Counts(3, 1));
    fields.name = "SPOT";

    fields.angle = "Unchanged";
    EXPECT_EQ(failure(fields), basic::kTypeMismatch);
    EXPECT_EQ(counts(), Counts(3, 2));
    fields.angle.clear();

    fields.destinations = {"", "", "", "WATT"};  // a LAMP has three attributes
    EXPECT_EQ(failure(fields), basic::kSubscript);
    EXPECT_EQ(counts(), Counts(3, 3));
    fields.destinations.clear();

    lamp(1)->invoke("Delete");
    EXPECT_EQ(failure(fields), drawing::kObjectErased);
    EXPECT_EQ(counts(), Counts(1, 4)) << "the first is done, the erased one ended the run";
    EXPECT_EQ(failure(fields), drawing::kObjectErased) << "now the first of the set is erased too";
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(ReplacementOnDrawingTest, ALockedLayerKeepsTheOldReferenceBesideTheNewOne) {
    std::string bytes = fakes::BigDrawing::make(3);
    const std::size_t layer = bytes.find("\nLIGHTS\n 70\n0\n");
    ASSERT_NE(layer, std::string::npos);
    bytes.replace(layer, 15, "\nLIGHTS\n 70\n4\n");
    open(bytes);
    EXPECT_EQ(failure(fields), drawing::kLockedLayer);
    EXPECT_EQ(counts(), Counts(3, 2));
}

TEST_F(ReplacementOnDrawingTest, TheDialogTellsWhatHinderedItsLists) {
    host->failAt("call Add");
    screen.click("BtnClose");
    runCommand();
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.boxes[0].text,
              "The following error has occurred trying to replace a block: The host refused.");
    EXPECT_EQ(dialog().Check1.value(), 0);

    // A set of that name in the way is such a failure too.
    host->reset();
    host::asObject(application->active()->get("SelectionSets"))->invoke("Add", {"sTemp"});
    session.dropForm("fmReplace");
    screen.click("BtnClose");
    runCommand();
    ASSERT_EQ(screen.boxes.size(), 2U);
    EXPECT_TRUE(screen.boxes[1].text.starts_with("The following error has occurred")) << screen.boxes[1].text;
}

TEST_F(ReplacementOnDrawingTest, AZoneBrokenOffEndsTheCommandWithAnEmptySet) {
    screen.choose("lstDestination", "LAMP");
    screen.click("optZoneSelection");
    prompter.selections.push_back({model::Answer::BrokenOff, {}});
    runCommand();
    EXPECT_FALSE(dialog().visible());
    EXPECT_EQ(dialog().LblNbrSelected.caption(), "3") << "the count of before";
    EXPECT_EQ(session.ReplaceSelectionSet->get("Count").integer(), 0);
    EXPECT_EQ(std::count_if(screen.log.begin(), screen.log.end(),
                            [](const std::string& entry) { return entry.starts_with("failure"); }),
              1);
}

}  // namespace
}  // namespace shell
