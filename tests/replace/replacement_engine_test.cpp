#include "replace/replacement_engine.h"

#include "tests/replace/replace_world.h"

#include <gtest/gtest.h>

namespace replace {
namespace {

/// Fields and a table without a dialog.
struct Fields : ReplacementFields, TranscriptionTable {
    std::string name = "LAMP";
    std::string x, y, z, angle;  ///< empty: no override
    int visibility = -1;         ///< -1: box off
    bool transcribes = false;
    std::vector<std::string> destinations;

    const std::string& blockName() const override { return name; }
    const std::string* xScale() const override { return given(x); }
    const std::string* yScale() const override { return given(y); }
    const std::string* zScale() const override { return given(z); }
    const std::string* rotation() const override { return given(angle); }
    bool overridesVisibility() const override { return visibility >= 0; }
    int visibilityIndex() const override { return visibility < 0 ? 2 : visibility; }
    bool transcribesAttributes() const override { return transcribes; }
    const TranscriptionTable& transcriptionTable() const override { return *this; }
    int rowCount() const override { return static_cast<int>(destinations.size()); }
    const std::string& destination(int row) const override { return destinations.at(row - 1); }

  private:
    static const std::string* given(const std::string& text) { return text.empty() ? nullptr : &text; }
};

class EngineTest : public testing::Test, public ReplaceWorld {
  protected:
    EngineTest() {
        furnish();
        host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "SS1"));
        set({firstDoor, secondDoor});
    }
    void set(std::vector<fakes::FakeEntityPtr> members) {
        host.drawing().sets.front()->members = std::move(members);
        session.ReplaceSelectionSet = host::asObject(faulty.root()->get("SelectionSets"));
        session.ReplaceSelectionSet =
            host::asObject(session.ReplaceSelectionSet->invoke("Item", {std::int16_t{0}}));
        faulty.reset();
    }
    void replaceAll() { ReplaceBlocks(session, fields); }
    int failure() {
        return fakes::errorOf([&] { replaceAll(); });
    }
    fakes::FakeReferencePtr lamp(std::size_t index = 0) { return host.references("LAMP").at(index); }

    Fields fields;
};

TEST_F(EngineTest, TakesOverPlaceScalesAndRotationAndNothingElse) {
    firstDoor->scale = {2, -3, 0.5};
    firstDoor->rotation = 1.25;
    firstDoor->visible = false;
    firstDoor->space = fakes::Space::Paper;
    firstDoor->layer = "DOORS";
    firstDoor->color = 3;
    replaceAll();
    EXPECT_TRUE(host.references("DOOR").empty());
    EXPECT_EQ(lamp()->point, (fakes::Point{1, 2, 3}));
    EXPECT_EQ(lamp()->scale, (std::array<double, 3>{2, -3, 0.5}));
    EXPECT_EQ(lamp()->rotation, 1.25);
    EXPECT_TRUE(lamp()->visible) << "an invisible one becomes visible";
    EXPECT_EQ(lamp()->space, fakes::Space::Model);
    EXPECT_EQ(lamp()->layer, "0");
    EXPECT_EQ(lamp()->color, 256);
    EXPECT_EQ(lamp()->text("ROOM"), "nowhere");
    EXPECT_EQ(lamp(1)->point, (fakes::Point{4, 5, 6}));

    ASSERT_EQ(boxTexts(), Texts{kSuccess});
    EXPECT_EQ(screen.boxes[0].title, "Quillet 1.0");
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageBox::Icon::Information);
}

TEST_F(EngineTest, HandsTheTextsOfTheFieldsToTheHost) {
    firstDoor->scale = {2, 2, 2};
    fields.x = "1.5";
    fields.y = "-4";
    fields.angle = "90";  // radians: no quarter turn
    fields.visibility = 1;
    replaceAll();
    EXPECT_EQ(lamp()->scale, (std::array<double, 3>{1.5, -4, 2}));
    EXPECT_EQ(lamp()->rotation, 90);
    EXPECT_FALSE(lamp()->visible);

    fields.visibility = 2;  // "Unchanged" with the box on
    set({lamp(0)});
    replaceAll();
    EXPECT_TRUE(lamp(1)->visible);

    host.drawing().regional = basic::Regional::french();  // the host's settings decide, nobody else's
    fields.x = "0,25";
    set({lamp(1)});
    replaceAll();
    EXPECT_EQ(lamp(1)->scale[0], 0.25);
}

TEST_F(EngineTest, TellsTheSuccessOfAnEmptyZone) {
    set({});
    replaceAll();
    EXPECT_EQ(boxTexts(), Texts{kSuccess});
    EXPECT_EQ(faulty.log(), Texts{"get Count"});
}

TEST_F(EngineTest, MakesTheseCallsForAReferenceAndNoOther) {
    set({firstDoor});
    fields = {};
    fields.x = fields.y = fields.z = fields.angle = "1";
    fields.visibility = 0;
    fields.transcribes = true;
    fields.destinations = {"", "ROOM"};
    replaceAll();
    EXPECT_EQ(faulty.log(),
              (Texts{"get Count",          "call Item",        "get InsertionPoint", "get XScaleFactor",
                     "get YScaleFactor",   "get ZScaleFactor", "get Rotation",       "get ModelSpace",
                     "call InsertBlock",   "set XScaleFactor", "set YScaleFactor",   "set ZScaleFactor",
                     "set Rotation",       "set Visible",      "call GetAttributes", "get TagString",
                     "call GetAttributes", "get TextString",   "set TextString",     "get TagString",
                     "call Delete",        "call Update"}));
    EXPECT_EQ(lamp()->text("ROOM"), "hall");
}

TEST_F(EngineTest, EndsAtTheFirstFailureWithoutUndoingAnything) {
    struct Row {
        const char* access;
        int n;            ///< which one of them belongs to the second reference
        bool oldIsThere;  ///< of the second reference
        bool newIsThere;
    };
    const Row rows[] = {
        {"call Item", 2, true, false},        {"get InsertionPoint", 2, true, false},
        {"get XScaleFactor", 2, true, false}, {"get YScaleFactor", 2, true, false},
        {"get ZScaleFactor", 2, true, false}, {"get Rotation", 2, true, false},
        {"get ModelSpace", 2, true, false},   {"call InsertBlock", 2, true, false},
        {"set XScaleFactor", 2, true, true},  {"set YScaleFactor", 2, true, true},
        {"set ZScaleFactor", 2, true, true},  {"set Rotation", 2, true, true},
        {"set Visible", 2, true, true},       {"call GetAttributes", 3, true, true},
        {"get TagString", 3, true, true},     {"call GetAttributes", 4, true, true},
        {"get TextString", 2, true, true},    {"set TextString", 2, true, true},
        {"call Delete", 2, true, true},       {"call Update", 2, false, true},
    };
    fields.x = fields.y = fields.z = fields.angle = "1";
    fields.visibility = 0;
    fields.transcribes = true;
    fields.destinations = {"CODE"};
    for (const Row& row : rows) {
        host.drawing().entities.clear();
        std::vector<fakes::FakeEntityPtr> doors;
        for (int i = 0; i < 3; ++i) doors.push_back(host.addReference("DOOR"));
        set(doors);
        faulty.failAt(row.access, row.n);
        EXPECT_EQ(failure(), fakes::FaultyHost::standardFailure().number()) << row.access;
        EXPECT_TRUE(doors[0]->erased) << row.access << ": what was done stays";
        EXPECT_EQ(!doors[1]->erased, row.oldIsThere) << row.access;
        EXPECT_FALSE(doors[2]->erased) << row.access << ": the others are untouched";
        EXPECT_EQ(host.references("LAMP").size(), row.newIsThere ? 2U : 1U) << row.access;
        EXPECT_TRUE(screen.boxes.empty()) << row.access;
    }
}

TEST_F(EngineTest, FailsForTheUsualCauses) {
    const auto stillThere = [&] {
        return std::pair(host.references("DOOR").size(), host.references("LAMP").size());
    };
    using Counts = std::pair<std::size_t, std::size_t>;

    for (const char* name : {"", "NONE"}) {
        fields.name = name;
        EXPECT_EQ(failure(), fakes::kKeyNotFound);
    }
    fields.name = "LAMP";
    const auto line = host.addEntity("AcDbLine");  // the zone's filter admits any entity of the block's name
    set({line});
    EXPECT_EQ(failure(), basic::kNoSuchMember);
    EXPECT_EQ(stillThere(), Counts(2, 0));

    set({firstDoor, secondDoor});
    fields.z = "Unchanged";
    EXPECT_EQ(failure(), basic::kTypeMismatch);
    EXPECT_EQ(stillThere(), Counts(2, 1));
    fields.z = "0";
    EXPECT_EQ(failure(), fakes::kRefusedValue);
    EXPECT_EQ(stillThere(), Counts(2, 2));
    fields.z.clear();

    fields.transcribes = true;
    fields.destinations = {"", "", "CODE"};  // a third row, but the door has two attributes
    EXPECT_EQ(failure(), basic::kSubscript);
    EXPECT_EQ(stillThere(), Counts(2, 3));
    fields.transcribes = false;

    host.drawing().lockedLayers = {"DOORS"};
    secondDoor->layer = "DOORS";
    EXPECT_EQ(failure(), fakes::kLockedLayer);
    EXPECT_EQ(stillThere(), Counts(1, 5)) << "the first is done, the second is there twice";

    EXPECT_EQ(failure(), fakes::kWasErased) << "the set still has the deleted reference";
    EXPECT_EQ(stillThere(), Counts(1, 5));
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(EngineTest, TranscribesByPosition) {
    fields.transcribes = true;
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

TEST_F(EngineTest, CountsReferencesInSixteenBits) {
    std::vector<fakes::FakeEntityPtr> chairs;
    for (int i = 0; i < 32'768; ++i) chairs.push_back(host.addReference("chair"));
    host.addBlock("STOOL");
    fields.name = "STOOL";
    set(chairs);
    faulty.keepLog(false);
    EXPECT_EQ(failure(), basic::kOverflow);
    EXPECT_EQ(faulty.calls(), 1) << "before the first reference";

    chairs.pop_back();
    set(chairs);
    faulty.keepLog(false);
    EXPECT_EQ(failure(), basic::kOverflow);
    EXPECT_EQ(host.references("STOOL").size(), 32'767U) << "after the last reference";
    EXPECT_TRUE(screen.boxes.empty());

    set({host.references("STOOL").back()});
    EXPECT_EQ(failure(), 0);
}

}  // namespace
}  // namespace replace
