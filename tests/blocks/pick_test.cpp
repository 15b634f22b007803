#include "blocks/pick.h"

#include "blocks/list_entry.h"
#include "tests/fakes/dialog_world.h"

#include <gtest/gtest.h>

namespace blocks {
namespace {

using fakes::Texts;
using forms::Answer;

class PickTest : public testing::Test, public fakes::DialogWorld {
  protected:
    PickTest() {
        host.addBlock("DOOR");
        door = host.addReference("DOOR");
        line = host.addEntity("AcDbLine");
    }
    /// The object that the picks and the answers to the boxes end with.
    host::ObjectPtr pick(std::initializer_list<Answer> answers) {
        screen.answers = answers;
        const auto picked = PickBlockReference(session, "Which door? ").object();
        EXPECT_TRUE(screen.answers.empty());
        return fakes::FaultyHost::behind(picked);
    }

    fakes::FakeReferencePtr door;
    fakes::FakeEntityPtr line;
};

TEST_F(PickTest, AsksAgainAfterAWrongObjectAndAfterEscape) {
    host.pick(line);
    host.breakOffPick();  // the line is still at hand, and must not count as picked now
    host.pick(door);
    EXPECT_EQ(pick({Answer::Ok, Answer::Ok}), door);
    EXPECT_EQ(host.drawing().prompts, Texts(3, "Which door? "));
    ASSERT_EQ(boxTexts(), Texts(2, "The selected object is not a block reference."));
    EXPECT_EQ(screen.boxes[1].title, "Vorlane 1.0: Selection of a block reference");
    EXPECT_EQ(screen.boxes[1].icon, forms::MessageBox::Icon::Exclamation);
    EXPECT_EQ(screen.boxes[1].buttons, forms::MessageBox::Buttons::OkCancel);
}

TEST_F(PickTest, GivesNothingOnCancelAndNeverFailsOutwards) {
    host.breakOffPick();
    host.pick(line);
    EXPECT_EQ(pick({Answer::Ok, Answer::Cancel}), nullptr);
    EXPECT_EQ(fakes::errorOf([] { host::BlockReference().Name(); }), basic::kObjectNotSet);

    // The class name is compared with case: this isn't the name that the host gives a reference.
    host.pick(host.addEntity("AcDbBlockreference"));
    EXPECT_EQ(pick({Answer::Cancel}), nullptr);

    faulty.failAt("get Utility");
    EXPECT_EQ(pick({Answer::Cancel}), nullptr);

    // Without a language there is no message, so no answer either: the object comes back as it stands.
    session.CurLng = {};
    host.pick(line);
    EXPECT_EQ(pick({}), line);
}

TEST_F(PickTest, SelectsReferencesOfOneBlockOnScreen) {
    host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "SS1"));
    const auto set = host.drawing().sets.front();
    const auto chair = host.addReference("CHAIR");
    set->members = {chair};
    line->name = "DOOR";  // another kind of entity with the block's name doesn't pass
    const auto select = [&] { SelectBlockReferencesOnScreen(host::SelectionSet(set), "DOOR"); };

    host.select({line, door, chair});
    select();
    EXPECT_EQ(set->members, (std::vector<fakes::FakeEntityPtr>{door}));
    host.breakOffSelection();
    EXPECT_EQ(fakes::errorOf(select), fakes::kEscape);
    EXPECT_TRUE(set->members.empty()) << "the set is emptied before the pick";
}

TEST(SelectListEntryTest, TakesTheLastExactMatchOrNone) {
    struct : forms::Form {
        using Form::Form;
        forms::ListBox list{*this, "list"};
        forms::ComboBox combo{*this, "combo"};
    } form{"fmTest", "", ""};
    form.initialize();
    for (forms::ListControl* control : std::initializer_list<forms::ListControl*>{&form.list, &form.combo}) {
        SelectListEntry(*control, "DOOR");
        EXPECT_EQ(control->listIndex(), -1);
        for (const char* entry : {"DOOR", "CHAIR", "DOOR", "WINDOW"}) control->addItem(entry);
        SelectListEntry(*control, "DOOR");
        EXPECT_EQ(control->listIndex(), 2);
        SelectListEntry(*control, "door");
        EXPECT_EQ(control->listIndex(), -1);
    }
}

}  // namespace
}  // namespace blocks
