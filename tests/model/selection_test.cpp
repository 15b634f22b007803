#include "model_world.h"
#include "tests/fakes/big_drawing.h"

namespace model {
namespace {

constexpr std::int16_t kAll = 5;

class SelectionTest : public testing::Test, protected ModelWorld {
  protected:
    SelectionTest() : ModelWorld(Furnished::drawing().make()) {
        sets = object("SelectionSets");
        set = add("SS1");
    }
    host::ObjectPtr add(const char* name) { return host::asObject(sets->invoke("Add", {name})); }
    /// The handles of what a filter finds.
    Texts found(basic::Shorts codes, basic::Array values) {
        set->invoke("Clear");
        set->invoke("Select",
                    {kAll, basic::Missing{}, basic::Missing{}, std::move(codes), std::move(values)});
        return walked(set, "Handle");
    }
    int failure(host::Arguments arguments) {
        return errorOf([&] { set->call("Select", arguments); });
    }

    host::ObjectPtr sets, set;
};

TEST_F(SelectionTest, SetsByNameAndIndex) {
    EXPECT_EQ(sets->get("Count").integer(), 1);
    EXPECT_EQ(errorOf([&] { add("ss1"); }), kSelectionSetExists);
    EXPECT_EQ(errorOf([&] { add(""); }), drawing::kInvalidInput);
    const host::ObjectPtr other = add("Other");
    EXPECT_EQ(host::asObject(sets->invoke("Item", {std::int16_t{0}})), set);
    EXPECT_EQ(host::asObject(sets->invoke("Item", {"OTHER"})), other);
    EXPECT_EQ(walked(sets, "Name"), (Texts{"SS1", "Other"}));
    EXPECT_EQ(errorOf([&] { sets->invoke("Item", {2}); }), drawing::kInvalidInput);
    EXPECT_EQ(errorOf([&] { sets->invoke("Item", {"none"}); }), drawing::kKeyNotFound);

    set->invoke("Delete");
    EXPECT_EQ(walked(sets, "Name"), (Texts{"Other"}));
    for (const char* member : {"Count", "Clear", "Delete"}) {
        EXPECT_EQ(errorOf([&] { set->invoke(member); }), drawing::kObjectErased) << member;
    }
    EXPECT_EQ(failure({kAll}), drawing::kObjectErased);
    EXPECT_EQ(space()->get("Count").integer(), 6) << "the entities stay";
    EXPECT_NE(add("SS1"), set) << "the name is free again";
    EXPECT_FALSE(drawing().isModified()) << "sets are not in the file";
}

TEST_F(SelectionTest, FiltersOfTheAddIn) {
    EXPECT_EQ(found({100, 2}, {"AcDbEntity", "DOOR"}), (Texts{"A1", "A9"}));
    EXPECT_EQ(found({100, 2}, {"AcDbBlockreference", "door"}), (Texts{"A1", "A9"}))
        << "texts are matched without regard to case, this marker with its small r above all";
    EXPECT_EQ(found({100, 2}, {"AcDbEntity", "PLAIN"}), (Texts{"A6"}));
    EXPECT_EQ(found({100}, {"AcDbEntity"}), (Texts{"A1", "A5", "A6", "A7", "A8", "A9"}));
    EXPECT_EQ(found({100}, {"AcDbLine"}), (Texts{"A8"}));
    EXPECT_EQ(found({100, 2}, {"AcDbEntity", "NONE"}), Texts{});
    EXPECT_EQ(found({0, 8}, {"INSERT", "LOCKED"}), (Texts{"A9"}));
    EXPECT_EQ(found({62}, {std::int16_t{3}}), (Texts{"A1"}));
}

TEST_F(SelectionTest, NamesGoIntoTheFilterAsTheyStandWildcardsAndAll) {
    // The star of an anonymous block's name matches any text before "U1".
    EXPECT_EQ(found({100, 2}, {"AcDbEntity", "*U1"}), (Texts{"A7"}));
    EXPECT_EQ(found({100, 2}, {"AcDbEntity", "*O*"}), (Texts{"A1", "A9"}));
    EXPECT_EQ(found({2}, {"P####"}), Texts{});
    EXPECT_EQ(found({2}, {"P@@@@,~*[A-Z]*"}), (Texts{"A6"}));

    const auto odd = drawing::PlainDrawing()
                         .block("A#1")
                         .block("A21")
                         .entity("INSERT 5 1 8 0 2 A#1 10 0 20 0")
                         .entity("INSERT 5 2 8 0 2 A21 10 0 20 0");
    const ModelWorld world(drawing::PlainDrawing(odd).make());
    const host::ObjectPtr names = host::asObject(world.object("SelectionSets")->invoke("Add", {"N"}));
    const auto count = [&](const char* name) {
        names->invoke("Clear");
        names->invoke("Select",
                      {kAll, basic::Missing{}, basic::Missing{}, basic::Shorts{2}, basic::Array{name}});
        return names->get("Count").integer();
    };
    EXPECT_EQ(count("A#1"), 1) << "the pattern finds A21 only, not the block whose name it is";
    EXPECT_EQ(count("A`#1"), 1);
    EXPECT_EQ(count("A*"), 2);
}

TEST_F(SelectionTest, AllSpacesCountBlockDefinitionsDont) {
    const auto plain = drawing::PlainDrawing()
                           .block("INNER")
                           .block("OUTER")
                           .inBlock("INSERT 5 B1 8 0 2 INNER 10 0 20 0")
                           .entity("INSERT 5 B2 8 0 2 OUTER 10 0 20 0")
                           .entity("INSERT 5 B3 8 0 67 1 2 OUTER 10 0 20 0");
    const ModelWorld world(drawing::PlainDrawing(plain).make());
    const host::ObjectPtr all = host::asObject(world.object("SelectionSets")->invoke("Add", {"A"}));
    const auto select = [&](const char* name) {
        all->invoke("Clear");
        all->invoke("Select", {kAll, basic::Missing{}, basic::Missing{}, basic::Shorts{100, 2},
                               basic::Array{"AcDbEntity", name}});
        return walked(all, "Handle");
    };
    EXPECT_EQ(select("OUTER"), (Texts{"B2", "B3"}));
    EXPECT_EQ(select("INNER"), Texts{});
    EXPECT_EQ(world.object("PaperSpace")->get("Count").integer(), 1);
}

TEST_F(SelectionTest, WrongFiltersAndModesAreRefused) {
    const basic::Missing out;
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{100, 2}, basic::Array{"AcDbEntity"}}),
              drawing::kInvalidInput);
    EXPECT_EQ(failure({kAll, out, out, "100", "AcDbEntity"}), basic::kTypeMismatch);
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{2}}), basic::kTypeMismatch);
    EXPECT_EQ(failure({std::int16_t{9}}), drawing::kInvalidInput);
    EXPECT_EQ(failure({std::int16_t{0}}), basic::kTypeMismatch) << "a window needs its corners";
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{-4}, basic::Array{"<OR"}}), drawing::kInvalidInput);
    EXPECT_EQ(set->get("Count").integer(), 0);
}

TEST_F(SelectionTest, SelectAddsAndErasedMembersStay) {
    set->invoke("Select",
                {kAll, basic::Missing{}, basic::Missing{}, basic::Shorts{2}, basic::Array{"FIXED"}});
    set->invoke("Select", {kAll});
    EXPECT_EQ(walked(set, "Handle"), (Texts{"A5", "A1", "A6", "A7", "A8", "A9"})) << "each once";
    byHandle("A5")->invoke("Delete");
    EXPECT_EQ(set->get("Count").integer(), 6);
    const host::ObjectPtr erased = host::asObject(set->invoke("Item", {std::int16_t{0}}));
    EXPECT_EQ(errorOf([&] { erased->get("InsertionPoint"); }), drawing::kObjectErased);
    EXPECT_EQ(errorOf([&] { erased->invoke("GetAttributes"); }), drawing::kObjectErased);
    EXPECT_EQ(errorOf([&] { set->invoke("Item", {6}); }), drawing::kInvalidInput);
    set->invoke("Clear");
    set->invoke("Select", {kAll});
    EXPECT_EQ(set->get("Count").integer(), 5);
}

TEST_F(SelectionTest, WindowsCrossingsAndTheLast) {
    const auto handles = [&](std::int16_t mode, basic::Doubles from, basic::Doubles to) {
        set->invoke("Clear");
        set->invoke("Select", {mode, std::move(from), std::move(to), basic::Shorts{0}, basic::Array{"LINE"}});
        return walked(set, "Handle");
    };
    EXPECT_EQ(handles(0, {-1, -1, 0}, {4, 5, 0}), (Texts{"A8"}));
    EXPECT_EQ(handles(0, {-1, -1, 0}, {2, 2, 0}), Texts{});
    EXPECT_EQ(handles(1, {2, 2, 0}, {-1, -1, 0}), (Texts{"A8"}));
    set->invoke("Clear");
    set->invoke("Select", {std::int16_t{4}});
    EXPECT_EQ(walked(set, "Handle"), (Texts{"A9"}));
}

TEST_F(SelectionTest, OnScreenTheFilterHoldsAndABreakOffIsAnError) {
    const auto pickAll = [&] { return drawing().blocks()[drawing().modelSpace()].entities; };
    prompter.selections.push_back({Answer::Given, pickAll()});
    set->invoke("SelectOnScreen", {basic::Shorts{100, 2}, basic::Array{"AcDbBlockreference", "DOOR"}});
    EXPECT_EQ(walked(set, "Handle"), (Texts{"A1", "A9"}));
    prompter.selections.push_back({Answer::BrokenOff, {}});
    EXPECT_EQ(errorOf([&] { set->invoke("SelectOnScreen"); }), kPromptFailed);
    EXPECT_EQ(set->get("Count").integer(), 2);
    set->invoke("Clear");
    prompter.selections.push_back({Answer::Given, {}});
    set->invoke("SelectOnScreen");
    EXPECT_EQ(set->get("Count").integer(), 0) << "an empty selection is an answer";
    // A wrong filter is told before the user is asked.
    EXPECT_EQ(errorOf([&] {
                  set->invoke("SelectOnScreen", {basic::Shorts{2}, basic::Array{}});
              }),
              drawing::kInvalidInput);
    EXPECT_EQ(prompter.prompts.size(), 3U);
}

TEST(BigSelectionTest, ManyReferencesByName) {
    const ModelWorld world(drawing::Drawing::parse(fakes::BigDrawing::make(3000), "big.dxf"));
    const host::ObjectPtr set = host::asObject(world.object("SelectionSets")->invoke("Add", {"S"}));
    set->invoke("Select", {kAll, basic::Missing{}, basic::Missing{}, basic::Shorts{100, 2},
                           basic::Array{"AcDbEntity", "LAMP"}});
    EXPECT_EQ(set->get("Count").integer(), 3000);
    const host::ObjectPtr last = host::asObject(set->invoke("Item", {2999}));
    EXPECT_EQ(attributeTexts(last), (Texts{"TAG=L-3000", "ROOM=Room 250", "POWER=120"}));
    EXPECT_EQ(world.space()->get("Count").integer(), 3001);
}

}  // namespace
}  // namespace model
