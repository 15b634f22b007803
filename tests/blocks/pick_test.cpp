#include "blocks/pick.h"

#include "blocks/list_entry.h"
#include "forms/controls.h"
#include "tests/blocks/blocks_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

using forms::Answer;

class PickTest : public testing::Test, public BlocksWorld {
  protected:
    PickTest() {
        host.addBlock("DOOR");
        door = host.addReference("DOOR");
        line = host.addEntity("AcDbLine");
    }
    host::BlockReference pick() { return PickBlockReference(session, "Which door? "); }

    fakes::FakeReferencePtr door;
    fakes::FakeEntityPtr line;
};

TEST_F(PickTest, GivesTheReferencePicked) {
    host.pick(door);
    EXPECT_EQ(fakes::FaultyHost::behind(pick().object()), door);
    EXPECT_EQ(host.drawing().prompts, Texts{"Which door? "});
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(PickTest, AsksAgainAfterAWrongObjectAndAfterEscape) {
    host.pick(line);
    host.breakOffPick();  // the line is still at hand, and must not count as picked now
    host.pick(door);
    screen.answers = {Answer::Ok, Answer::Ok};
    EXPECT_EQ(pick().Name(), "DOOR");
    ASSERT_EQ(screen.boxes.size(), 2U);
    for (const forms::MessageBox& box : screen.boxes) {
        EXPECT_EQ(box.text, "The selected object is not a block reference.");
        EXPECT_EQ(box.title, "Vorlane 1.0: Selection of a block reference");
        EXPECT_EQ(box.icon, forms::MessageBox::Icon::Exclamation);
        EXPECT_EQ(box.buttons, forms::MessageBox::Buttons::OkCancel);
    }
}

TEST_F(PickTest, GivesNothingOnCancel) {
    host.breakOffPick();
    host.pick(line);
    screen.answers = {Answer::Ok, Answer::Cancel};
    EXPECT_TRUE(pick().isNothing());
    EXPECT_EQ(fakes::errorOf([] { host::BlockReference().Name(); }), basic::kObjectNotSet);
}

TEST_F(PickTest, NeverFailsOutwards) {
    // The class name is compared with case: this isn't the name that the host gives a reference.
    host.pick(host.addEntity("AcDbBlockreference"));
    screen.answers = {Answer::Cancel};
    EXPECT_TRUE(pick().isNothing());

    faulty.failAt("get Utility");
    screen.answers = {Answer::Cancel};
    EXPECT_TRUE(pick().isNothing());

    // Without a language there is no message, so no answer either: the object comes back as it stands.
    session.CurLng = {};
    host.pick(line);
    EXPECT_EQ(fakes::FaultyHost::behind(pick().object()), line);
}

TEST_F(PickTest, SelectsReferencesOfOneBlockOnScreen) {
    host.addBlock("CHAIR");
    const auto chair = host.addReference("CHAIR");
    host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "SS1"));
    fakes::FakeSelectionSet& raw = *host.drawing().sets.front();
    raw.members = {chair};
    line->name = "DOOR";  // another kind of entity with the block's name doesn't pass

    host.select({line, door, chair});
    SelectBlockReferencesOnScreen(host::SelectionSet(host.drawing().sets.front()), "DOOR");
    EXPECT_EQ(raw.members, (std::vector<fakes::FakeEntityPtr>{door}));

    host.breakOffSelection();
    EXPECT_EQ(fakes::errorOf([&] {
                  SelectBlockReferencesOnScreen(host::SelectionSet(host.drawing().sets.front()), "DOOR");
              }),
              fakes::kEscape);
    EXPECT_TRUE(raw.members.empty()) << "the set is emptied before the pick";
}

TEST(SelectListEntryTest, TakesTheLastExactMatchOrNone) {
    struct : forms::Form {
        using Form::Form;
        forms::ListBox list{*this, "list"};
        forms::ComboBox combo{*this, "combo"};
    } form{"fmTest", "", ""};
    form.initialize();

    SelectListEntry(form.list, "DOOR");
    EXPECT_EQ(form.list.listIndex(), -1);
    for (forms::ListControl* control :
         {static_cast<forms::ListControl*>(&form.list), static_cast<forms::ListControl*>(&form.combo)}) {
        for (const char* entry : {"DOOR", "CHAIR", "DOOR", "WINDOW"}) control->addItem(entry);
        SelectListEntry(*control, "DOOR");
        EXPECT_EQ(control->listIndex(), 2);
        SelectListEntry(*control, "door");
        EXPECT_EQ(control->listIndex(), -1);
    }
}

}  // namespace
}  // namespace blocks
