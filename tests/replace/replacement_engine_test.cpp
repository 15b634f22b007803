#include "replace/replacement_engine.h"

#include "tests/fakes/replacement_fields.h"
#include "tests/replace/replace_world.h"

namespace replace {
namespace {

struct EngineTest : testing::Test, ReplaceWorld {
    EngineTest() {
        fields.name = "LAMP";
        object("SelectionSets")->invoke("Add", {"SS1"});
    }
    void choose(const std::vector<host::ObjectPtr>& members) {
        set(0)->invoke("Clear");
        select(members);
        set(0)->invoke("SelectOnScreen");
        const auto sets = host::asObject(faulty.root()->get("SelectionSets"));
        session.ReplaceSelectionSet = host::asObject(sets->invoke("Item", {std::int16_t{0}}));
        faulty.reset();
    }
    int failure() {
        return fakes::errorOf([&] { ReplaceBlocks(session, fields); });
    }
    static bool isErased(const host::ObjectPtr& entity) {
        return fakes::errorOf([&] { entity->get("Layer"); }) != 0;
    }

    fakes::ReplacementFields fields;
};

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
    choose({firstDoor});
    EXPECT_EQ(failure(), 0);
    EXPECT_EQ(faulty.log().front(), "get Count");
    EXPECT_EQ(Texts(faulty.log().begin() + 1, faulty.log().end()), calls) << "these calls and no other";
    EXPECT_EQ(model::attributeTexts(references("LAMP").at(0)), (Texts{"ROOM=hall", "CODE=L"}));
    screen.boxes.clear();

    for (int n = 0; n < size; ++n) {
        eraseAll();
        std::vector<host::ObjectPtr> doors;
        for (int i = 0; i < 3; ++i) doors.push_back(place("DOOR"));
        choose(doors);
        faulty.failAtCall(1 + size + n + 1);  // of the second reference
        const std::string& call = calls[static_cast<std::size_t>(n)];
        EXPECT_EQ(failure(), fakes::FaultyHost::standardFailure().number()) << call;
        EXPECT_EQ(faulty.log().back(), call);
        EXPECT_TRUE(isErased(doors[0])) << call << ": what was done stays";
        EXPECT_EQ(isErased(doors[1]), n > deleted) << call;
        EXPECT_FALSE(isErased(doors[2])) << call << ": the others are untouched";
        EXPECT_EQ(references("LAMP").size(), n > inserted ? 2U : 1U) << call;
        EXPECT_TRUE(screen.boxes.empty()) << call;
    }
}

TEST_F(EngineTest, FailsAtWhatIsNoReference) {
    space()->invoke("AddLine", {basic::Doubles{0, 0, 0}, basic::Doubles{1, 0, 0}});
    choose({item(3)});
    EXPECT_EQ(failure(), basic::kNoSuchMember);
    EXPECT_TRUE(references("LAMP").empty());
}

TEST_F(EngineTest, TranscribesByPosition) {
    fields.name = "TWIN";
    fields.destinations = {"", "ROOM", "ROOM"};  // the first of two rows counts, the third is never asked for
    fields.visibility = 2;                       // "Unchanged" with the box on
    fields.scales[0] = "-4";
    choose({firstDoor});
    EXPECT_EQ(failure(), 0);
    const auto twin = references("TWIN").at(0);
    EXPECT_EQ(model::attributeTexts(twin), (Texts{"ROOM=hall", "room=2", "ROOM=hall", "CODE=4"}));
    EXPECT_TRUE(twin->get("Visible").boolean());
    EXPECT_EQ(model::numberOf(twin, "XScaleFactor"), -4);
    model::expectPoint(twin, "InsertionPoint", {1, 2, 3});
    EXPECT_EQ(boxTexts(), Texts{"Blocks references replaced succesfully."});
}

}  // namespace
}  // namespace replace
