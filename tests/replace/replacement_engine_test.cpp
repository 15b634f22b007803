#include "replace/replacement_engine.h"

#include "tests/fakes/replacement_fields.h"
#include "tests/replace/replace_world.h"

#include <gtest/gtest.h>

namespace replace {
namespace {

class EngineTest : public testing::Test, public ReplaceWorld {
  protected:
    EngineTest() {
        fields.name = "LAMP";
        host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "SS1"));
        set({firstDoor, secondDoor});
    }
    void set(std::vector<fakes::FakeEntityPtr> members) {
        host.drawing().sets.front()->members = std::move(members);
        const auto sets = host::asObject(faulty.root()->get("SelectionSets"));
        session.ReplaceSelectionSet = host::asObject(sets->invoke("Item", {std::int16_t{0}}));
        faulty.reset();
    }
    void replaceAll() { ReplaceBlocks(session, fields); }
    int failure() {
        return fakes::errorOf([&] { replaceAll(); });
    }
    fakes::FakeReferencePtr lamp(std::size_t index = 0) { return host.references("LAMP").at(index); }

    fakes::ReplacementFields fields;
};

TEST_F(EngineTest, TakesOverPlaceScalesAndRotationAndNothingElse) {
    firstDoor->scale = {2, -3, 0.5};
    firstDoor->rotation = 1.25;
    firstDoor->visible = false;
    firstDoor->layer = "DOORS";
    firstDoor->color = 3;
    replaceAll();
    EXPECT_EQ(lamp()->point, (fakes::Point{1, 2, 3}));
    EXPECT_EQ(lamp()->scale, (fakes::Point{2, -3, 0.5}));
    EXPECT_EQ(lamp()->rotation, 1.25);
    EXPECT_TRUE(lamp()->visible) << "an invisible one becomes visible";
    EXPECT_EQ(lamp()->layer, "0");
    EXPECT_EQ(lamp()->color, 256);
    EXPECT_EQ(boxTexts(), Texts{kSuccess});
}

TEST_F(EngineTest, HandsTheTextsOfTheFieldsToTheHost) {
    firstDoor->scale = {2, 2, 2};
    fields.scales = {"1.5", "-4", ""};
    fields.angle = "90";  // radians: no quarter turn
    fields.visibility = 1;
    replaceAll();
    EXPECT_EQ(lamp()->scale, (fakes::Point{1.5, -4, 2}));
    EXPECT_EQ(lamp()->rotation, 90);
    EXPECT_FALSE(lamp()->visible);

    fields.visibility = 2;                                // "Unchanged" with the box on
    host.drawing().regional = basic::Regional::french();  // the host's settings decide, nobody else's
    fields.scales[0] = "0,25";
    set({lamp(0)});
    replaceAll();
    EXPECT_TRUE(lamp(1)->visible);
    EXPECT_EQ(lamp(1)->scale[0], 0.25);

    fields.scales[2] = "0";
    set({lamp(1)});
    EXPECT_EQ(failure(), fakes::kRefusedValue);
    EXPECT_EQ(host.references("LAMP").size(), 3U) << "the new one is there, the old one still";
}

TEST_F(EngineTest, EndsAtTheFirstFailureWithoutUndoingAnything) {
    const Texts calls{"call Item",        "get InsertionPoint", "get XScaleFactor", "get YScaleFactor",
                      "get ZScaleFactor", "get Rotation",       "get ModelSpace",   "call InsertBlock",
                      "set XScaleFactor", "set YScaleFactor",   "set ZScaleFactor", "set Rotation",
                      "set Visible",      "call GetAttributes", "get TagString",    "call GetAttributes",
                      "get TextString",   "set TextString",     "get TagString",    "call Delete",
                      "call Update"};
    const auto inserted = std::find(calls.begin(), calls.end(), "call InsertBlock") - calls.begin();
    const auto deleted = std::find(calls.begin(), calls.end(), "call Delete") - calls.begin();
    const int size = static_cast<int>(calls.size());
    fields.scales = {"1", "1", "1"};
    fields.angle = "1";
    fields.visibility = 0;
    fields.destinations = {"", "ROOM"};
    set({firstDoor});
    replaceAll();
    EXPECT_EQ(faulty.log().front(), "get Count");
    EXPECT_EQ(Texts(faulty.log().begin() + 1, faulty.log().end()), calls) << "these calls and no other";
    EXPECT_EQ(lamp()->text("ROOM"), "hall");
    screen.boxes.clear();

    for (int n = 0; n < size; ++n) {
        host.drawing().entities.clear();
        std::vector<fakes::FakeEntityPtr> doors;
        for (int i = 0; i < 3; ++i) doors.push_back(host.addReference("DOOR"));
        set(doors);
        faulty.failAtCall(1 + size + n + 1);  // of the second reference
        EXPECT_EQ(failure(), fakes::FaultyHost::standardFailure().number()) << calls[n];
        EXPECT_EQ(faulty.log().back(), calls[n]);
        EXPECT_TRUE(doors[0]->erased) << calls[n] << ": what was done stays";
        EXPECT_EQ(doors[1]->erased, n > deleted) << calls[n];
        EXPECT_FALSE(doors[2]->erased) << calls[n] << ": the others are untouched";
        EXPECT_EQ(host.references("LAMP").size(), n > inserted ? 2U : 1U) << calls[n];
        EXPECT_TRUE(screen.boxes.empty()) << calls[n];
    }
}

TEST_F(EngineTest, FailsAtWhatIsNoReference) {
    set({host.addEntity("AcDbLine")});  // the zone's filter admits any entity of the block's name
    EXPECT_EQ(failure(), basic::kNoSuchMember);
    EXPECT_TRUE(host.references("LAMP").empty());
}

TEST_F(EngineTest, TranscribesByPosition) {
    host.addBlock("TWIN", {{"ROOM", "1"}, {"room", "2"}, {"ROOM", "3"}, {"CODE", "4"}});
    fields.name = "TWIN";
    fields.destinations = {"", "ROOM", "ROOM"};  // the first of two rows counts, the third is never asked for
    std::swap(secondDoor->attributes[0], secondDoor->attributes[1]);
    replaceAll();
    const auto twins = host.references("TWIN");
    Texts values;
    for (const auto& attribute : twins.at(0)->attributes) values.push_back(attribute->text);
    EXPECT_EQ(values, (Texts{"hall", "2", "hall", "4"}));
    EXPECT_EQ(twins.at(1)->text("ROOM"), "D2") << "in another order another attribute's value is taken";
}

}  // namespace
}  // namespace replace
