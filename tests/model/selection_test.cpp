#include "model_world.h"

namespace model {
namespace {

constexpr std::int16_t kWindow = 0, kCrossing = 1, kLast = 4, kAll = 5;

class SelectionTest : public FurnishedTest {
  protected:
    host::ObjectPtr add(const char* name) { return called(sets, "Add", {name}); }
    /// The handles of what a selection finds.
    Texts found(host::Arguments arguments) {
        set->invoke("Clear");
        set->call("Select", arguments);
        return walked(set, "Handle");
    }
    Texts filtered(basic::Shorts codes, basic::Array values) {
        return found({kAll, basic::Missing{}, basic::Missing{}, std::move(codes), std::move(values)});
    }
    int failure(host::Arguments arguments) {
        return errorOf([&] { set->call("Select", arguments); });
    }

    host::ObjectPtr sets = object("SelectionSets"), set = add("SS1");
};

TEST_F(SelectionTest, SetsByNameAndIndex) {
    EXPECT_EQ(errorOf([&] { add("ss1"); }), kSelectionSetExists);
    EXPECT_EQ(errorOf([&] { add(""); }), drawing::kInvalidInput);
    const host::ObjectPtr other = add("Other");
    EXPECT_EQ(called(sets, "Item", {std::int16_t{0}}), set);
    EXPECT_EQ(called(sets, "Item", {"OTHER"}), other);
    EXPECT_EQ(errorOf([&] { sets->invoke("Item", {2}); }), drawing::kInvalidInput);
    EXPECT_EQ(errorOf([&] { sets->invoke("Item", {"none"}); }), drawing::kKeyNotFound);

    set->invoke("Delete");
    EXPECT_EQ(walked(sets, "Name"), (Texts{"Other"}));
    for (const char* member : {"Count", "Clear", "Delete"})
        EXPECT_EQ(errorOf([&] { set->invoke(member); }), drawing::kObjectErased) << member;
    EXPECT_EQ(failure({kAll}), drawing::kObjectErased);
    EXPECT_EQ(entityCount(), 6) << "the entities stay";
    EXPECT_NE(add("SS1"), set) << "the name is free again";
    EXPECT_FALSE(drawing().isModified()) << "sets are not in the file";
}

TEST_F(SelectionTest, NamesGoIntoTheFilterAsTheyStandWildcardsAndAll) {
    EXPECT_EQ(filtered({100, 2}, {"AcDbBlockreference", "door"}), (Texts{"A1", "A9"}))
        << "texts are matched without regard to case, this marker with its small r above all";
    EXPECT_EQ(filtered({62}, {std::int16_t{3}}), (Texts{"A1"}));
    // The star of an anonymous block's name matches any text before "U1".
    EXPECT_EQ(filtered({100, 2}, {"AcDbEntity", "*U1"}), (Texts{"A7"}));
    EXPECT_EQ(filtered({2}, {"P@@@@,~*[A-Z]*"}), (Texts{"A6"}));

    auto odd = drawing::PlainDrawing().block("A#1").block("A21");
    odd.entity("INSERT 5 D1 8 0 2 A#1 10 0 20 0").entity("INSERT 5 D2 8 0 2 A21 10 0 20 0");
    document = application->open(odd.make());
    set = called(object("SelectionSets"), "Add", {"N"});
    EXPECT_EQ(filtered({2}, {"A#1"}), Texts{"D2"}) << "not the block whose name it is";
    EXPECT_EQ(filtered({2}, {"A`#1"}), Texts{"D1"});
}

TEST_F(SelectionTest, WrongFiltersAndModesAreRefused) {
    const basic::Missing out;
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{100, 2}, basic::Array{"AcDbEntity"}}),
              drawing::kInvalidInput);
    EXPECT_EQ(failure({kAll, out, out, "100", "AcDbEntity"}), basic::kTypeMismatch);
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{2}}), basic::kTypeMismatch);
    EXPECT_EQ(failure({std::int16_t{9}}), drawing::kInvalidInput);
    EXPECT_EQ(failure({kWindow}), basic::kTypeMismatch) << "a window needs its corners";
    EXPECT_EQ(failure({kAll, out, out, basic::Shorts{-4}, basic::Array{"<OR"}}), drawing::kInvalidInput);
    EXPECT_EQ(set->get("Count").integer(), 0);
}

TEST_F(SelectionTest, SelectAddsAndErasedMembersStay) {
    filtered({2}, {"FIXED"});
    set->invoke("Select", {kAll});
    EXPECT_EQ(walked(set, "Handle"), (Texts{"A5", "A1", "A6", "A7", "A8", "A9"})) << "each once";
    byHandle("A5")->invoke("Delete");
    EXPECT_EQ(set->get("Count").integer(), 6);
    const host::ObjectPtr erased = called(set, "Item", {std::int16_t{0}});
    EXPECT_EQ(errorOf([&] { erased->get("InsertionPoint"); }), drawing::kObjectErased);
    EXPECT_EQ(errorOf([&] { set->invoke("Item", {6}); }), drawing::kInvalidInput);
    EXPECT_EQ(found({kAll}).size(), 5U);
}

TEST_F(SelectionTest, WindowsCrossingsAndTheLast) {
    const auto lines = [&](std::int16_t mode, basic::Doubles from, basic::Doubles to) {
        return found({mode, std::move(from), std::move(to), basic::Shorts{0}, basic::Array{"LINE"}});
    };
    EXPECT_EQ(lines(kWindow, {-1, -1, 0}, {4, 5, 0}), (Texts{"A8"}));
    EXPECT_EQ(lines(kWindow, {-1, -1, 0}, {2, 2, 0}), Texts{});
    EXPECT_EQ(lines(kCrossing, {2, 2, 0}, {-1, -1, 0}), (Texts{"A8"}));
    EXPECT_EQ(found({kLast}), (Texts{"A9"}));
}

TEST_F(SelectionTest, OnScreenTheFilterHoldsAndABreakOffIsAnError) {
    prompter.selections = {
        {Answer::Given, drawing::modelEntities(drawing())}, {Answer::BrokenOff, {}}, {Answer::Given, {}}};
    set->invoke("SelectOnScreen", {basic::Shorts{100, 2}, basic::Array{"AcDbBlockreference", "DOOR"}});
    EXPECT_EQ(walked(set, "Handle"), (Texts{"A1", "A9"}));
    EXPECT_EQ(errorOf([&] { set->invoke("SelectOnScreen"); }), kPromptFailed);
    EXPECT_EQ(set->get("Count").integer(), 2);
    set->invoke("Clear");
    set->invoke("SelectOnScreen");
    EXPECT_EQ(set->get("Count").integer(), 0) << "an empty selection is an answer";
    const std::initializer_list<Variant> wrong{basic::Shorts{2}, basic::Array{}};
    EXPECT_EQ(errorOf([&] { set->invoke("SelectOnScreen", wrong); }), drawing::kInvalidInput);
    EXPECT_EQ(prompter.prompts.size(), 3U) << "a wrong filter is told before the user is asked";
}

}  // namespace
}  // namespace model
