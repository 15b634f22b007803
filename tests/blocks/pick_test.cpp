#include "blocks/pick.h"

#include "blocks/block_file.h"
#include "blocks/list_entry.h"
#include "blocks/trial_insertion.h"
#include "tests/fakes/dialog_world.h"

namespace blocks {
namespace {

using fakes::Texts;
using forms::Answer;

struct PickTest : testing::Test, fakes::DialogWorld {
    PickTest() : DialogWorld({{"DOOR", {{"MARK", "D"}}}, {"CHAIR", {}}}) {
        space()->invoke("AddLine", {basic::Doubles{0, 0, 0}, basic::Doubles{1, 0, 0}});
        line = item(1);
    }
    /// The object that the picks and the answers to the boxes end with.
    host::ObjectPtr pickBlock(std::initializer_list<Answer> answers) {
        screen.answers = answers;
        const auto picked = PickBlockReference(session, "Which door? ").object();
        EXPECT_TRUE(screen.answers.empty());
        return fakes::FaultyHost::behind(picked);
    }
    /// The user chooses a block file, or none.
    std::string browse(const std::optional<std::string>& path) {
        screen.paths = {path};
        return BrowseBlockFile(session, dialog.CommonDialog1, attributes, "", "Select a block file");
    }

    host::ObjectPtr door = place("DOOR"), line;
    struct Dialog : forms::Form {
        using Form::Form;
        forms::FileDialog CommonDialog1{*this, "CommonDialog1"};
        forms::ListBox list{*this, "list"};
    } dialog{"fmTest", "", ""};
    basic::Variant attributes{"as it was"};
};

TEST_F(PickTest, AsksAgainAfterAWrongObjectAndAfterEscape) {
    pick(line);
    breakOffPick();  // the line is still at hand, and must not count as picked now
    pick(door);
    EXPECT_EQ(model::textOf(pickBlock({Answer::Ok, Answer::Ok}), "Name"), "DOOR");
    EXPECT_EQ(prompts(), Texts(3, "Which door? "));
    ASSERT_EQ(boxTexts(), Texts(2, "The selected object is not a block reference."));
    EXPECT_EQ(screen.boxes[1].title, "Vorlane 1.0: Selection of a block reference");
    EXPECT_EQ(screen.boxes[1].icon, forms::MessageDialog::Icon::Exclamation);
    EXPECT_EQ(screen.boxes[1].buttons, forms::MessageDialog::Buttons::OkCancel);
}

TEST_F(PickTest, GivesNothingOnCancelAndNeverFailsOutwards) {
    breakOffPick();
    pick(line);
    EXPECT_EQ(pickBlock({Answer::Ok, Answer::Cancel}), nullptr);
    faulty.failAt("get Utility");
    EXPECT_EQ(pickBlock({Answer::Cancel}), nullptr);
    // Without a language there is no message, so no answer either: the object comes back as it stands.
    session.CurLng = {};
    pick(line);
    EXPECT_EQ(model::textOf(pickBlock({}), "ObjectName"), "AcDbLine");
}

TEST_F(PickTest, SelectsReferencesOfOneBlockOnScreen) {
    const auto set = model::called(object("SelectionSets"), "Add", {"SS1"});
    const auto chair = place("CHAIR");
    const auto selectDoors = [&] { SelectBlockReferencesOnScreen(host::SelectionSet(set), "DOOR"); };
    select({line, door, chair});
    selectDoors();
    ASSERT_EQ(set->get("Count").integer(), 1);
    EXPECT_EQ(model::textOf(model::called(set, "Item", {0}), "Name"), "DOOR");
    prompter.selections.emplace_back();
    EXPECT_EQ(fakes::errorOf(selectDoors), model::kPromptFailed);
    EXPECT_EQ(set->get("Count").integer(), 0) << "the set is emptied before the pick";
}

TEST_F(PickTest, AListEntryIsTheLastExactMatchOrNone) {
    for (const char* entry : {"DOOR", "CHAIR", "DOOR", "WINDOW"}) dialog.list.addItem(entry);
    SelectListEntry(dialog.list, "DOOR");
    EXPECT_EQ(dialog.list.listIndex(), 2);
    SelectListEntry(dialog.list, "door");
    EXPECT_EQ(dialog.list.listIndex(), -1);
}

TEST_F(PickTest, ATrialInsertionWithoutANameAsksTheHostForNothing) {
    EXPECT_TRUE(InsertTrialReference(session, "").isNothing());
    EXPECT_EQ(faulty.calls(), 0);
    EXPECT_EQ(fakes::errorOf([&] { InsertTrialReference(session, "NONE"); }), model::kFileError);
    EXPECT_EQ(InsertTrialReference(session, "CHAIR").Name(), "CHAIR");
    EXPECT_EQ(references("CHAIR").size(), 1U) << "the caller deletes it";
}

TEST_F(PickTest, ABlockFilePassesOverFailuresOfTheHost) {
    dialog.CommonDialog1.setFileName("/blocks/old.dwg");
    EXPECT_EQ(browse(std::nullopt), "") << "cancelled, whatever was chosen before";
    EXPECT_EQ(browse(folder.write("broken.dxf", "no drawing")), "broken")
        << "refused, which shows only when its name is used";
    EXPECT_EQ(attributes.text(), "as it was");

    auto plain = fakes::drawingOf({});
    plain.entity("ATTDEF 8 0 10 0 20 0 40 1 1 L 3 Mark 2 MARK 70 0");
    const std::string lamp = folder.write("lamp.v2.dxf", plain.text());
    for (const char* access : {"get hasAttributes", "call GetAttributes", "call Delete"}) {
        faulty.failAt(access);
        EXPECT_EQ(browse(lamp), "lamp.v2") << access;
        EXPECT_TRUE(faulty.failed()) << access;
        EXPECT_EQ(references("lamp.v2").size(), access == std::string("call Delete") ? 1U : 0U) << access;
    }
    EXPECT_EQ(attributes.array().size(), 1U);
    EXPECT_EQ(dialog.CommonDialog1.flags(), 4);
    EXPECT_EQ(dialog.CommonDialog1.dialogTitle(), "Select a block file");
}

}  // namespace
}  // namespace blocks
