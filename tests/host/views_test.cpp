#include "host/document.h"
#include "host/object.h"

#include <gtest/gtest.h>
#include <map>

namespace host {
namespace {

using basic::Doubles;
using basic::Missing;
using Kind = Variant::Kind;

/// Logs how it is reached, answers from a table, and lets `onCall` change the arguments.
class RecordingObject : public Object {
  public:
    Variant get(std::string_view member) override {
        log.push_back("get " + std::string(member));
        return answer(member);
    }
    void set(std::string_view member, const Variant& value) override {
        log.push_back("set " + std::string(member));
        arguments = {value};
    }
    Variant call(std::string_view member, Arguments& given) override {
        log.push_back("call " + std::string(member));
        arguments = given;
        if (onCall) onCall(given);
        return answer(member);
    }
    void enumerate(const std::function<bool(const Variant&)>& visit) override {
        for (const Variant& element : elements) {
            if (!visit(element)) return;
        }
    }

    std::map<std::string, Variant, std::less<>> answers;
    std::vector<Variant> elements;
    std::function<void(Arguments&)> onCall;
    std::vector<std::string> log;
    Arguments arguments;  ///< of the last set or call

  private:
    Variant answer(std::string_view member) const {
        const auto found = answers.find(member);
        if (found == answers.end()) throw basic::Error(basic::kNoSuchMember);
        return found->second;
    }
};

template <typename Call>
int errorOf(Call call) {
    try {
        call();
    } catch (const basic::Error& error) {
        return error.number();
    }
    return 0;
}

class Views : public testing::Test {
  protected:
    std::shared_ptr<RecordingObject> object = std::make_shared<RecordingObject>();
    std::shared_ptr<RecordingObject> other = std::make_shared<RecordingObject>();
    std::vector<Kind> kinds() const {
        std::vector<Kind> kinds;
        for (const Variant& argument : object->arguments) kinds.push_back(argument.kind());
        return kinds;
    }
};

TEST_F(Views, OfNothingFailAtTheFirstMember) {
    EXPECT_TRUE(BlockReference(Variant()).isNothing());
    EXPECT_TRUE(BlockReference(Variant(basic::ObjectRef())).isNothing());
    EXPECT_EQ(errorOf([] { BlockReference().Name(); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([] { SelectionSet().Clear(); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([] { Space().enumerate([](const ObjectPtr&) { return true; }); }),
              basic::kObjectNotSet);
    EXPECT_EQ(errorOf([] { BlockReference(Variant("text")); }), basic::kObjectRequired);
    EXPECT_EQ(errorOf([] { BlockReference(Variant(std::make_shared<basic::Referable>())); }),
              basic::kObjectRequired);
}

TEST_F(Views, ReachMembersByTheirNamesAsWritten) {
    object->answers = {{"hasAttributes", true},           {"length", 2.5},
                       {"Visible", std::int16_t{0}},      {"Color", std::int16_t{256}},
                       {"GetAttributes", basic::Array{}}, {"Update", {}}};
    const BlockReference reference(object);
    EXPECT_TRUE(reference.hasAttributes());
    EXPECT_EQ(reference.length(), 2.5);
    EXPECT_FALSE(reference.Visible());
    EXPECT_EQ(reference.Color(), 256);
    EXPECT_EQ(reference.GetAttributes().size(), 0u);
    reference.Update();
    EXPECT_EQ(errorOf([&] { reference.Area(); }), basic::kNoSuchMember);
    EXPECT_EQ(object->log,
              (std::vector<std::string>{"get hasAttributes", "get length", "get Visible", "get Color",
                                        "call GetAttributes", "call Update", "get Area"}));
}

TEST_F(Views, HandValuesOnAsTheKindTheyAre) {
    BlockReference(object).setXScaleFactor("1,5");
    EXPECT_EQ(kinds(), std::vector{Kind::Text});
    BlockReference(object).setVisible(false);
    EXPECT_EQ(kinds(), std::vector{Kind::Boolean});
    object->answers = {{"InsertBlock", other}, {"Select", {}}, {"SelectOnScreen", {}}};
    const std::int16_t one = 1;
    const Space space(object);
    EXPECT_EQ(space.InsertBlock(toVariant({0, 0, 0}), "DOOR", one, one, one, std::int16_t{0}).object(),
              other);
    EXPECT_EQ(kinds(), (std::vector{Kind::DoubleArray, Kind::Text, Kind::Int16, Kind::Int16, Kind::Int16,
                                    Kind::Int16}));
    SelectionSet(object).Select(kSelectAll, {{100, 2}, {"AcDbEntity", "DOOR"}});
    EXPECT_EQ(kinds(),
              (std::vector{Kind::Int16, Kind::Missing, Kind::Missing, Kind::ShortArray, Kind::VariantArray}));
    SelectionSet(object).SelectOnScreen({{100, 2}, {"AcDbBlockreference", "DOOR"}});
    EXPECT_EQ(kinds(), (std::vector{Kind::ShortArray, Kind::VariantArray}));
}

TEST_F(Views, GiveAPickedEntityOnlyWhenThePickSucceeds) {
    object->answers = {{"GetEntity", {}}, {"GetPoint", toVariant({1, 2, 3})}};
    object->onCall = [&](Arguments& arguments) {
        arguments[0] = Variant(other);
        arguments[1] = toVariant({4, 5, 6});
    };
    const Utility utility(object);
    ObjectPtr entity;
    Variant point;
    utility.GetEntity(entity, point, "Select: ");
    EXPECT_EQ(entity, other);
    EXPECT_EQ(toPoint(point), (Point{4, 5, 6}));
    EXPECT_EQ(object->arguments[2].text(), "Select: ");

    object->onCall = [](Arguments& arguments) {
        arguments[0] = Variant();
        arguments[1] = Variant();
        throw basic::Error(-2147352567, "Escape");
    };
    EXPECT_EQ(errorOf([&] { utility.GetEntity(entity, point, "Select: "); }), -2147352567);
    EXPECT_EQ(entity, other);
    EXPECT_TRUE(point.is(Kind::DoubleArray));

    object->onCall = nullptr;
    EXPECT_EQ(toPoint(utility.GetPoint(Missing{}, "Point: ")), (Point{1, 2, 3}));
    EXPECT_TRUE(object->arguments[0].isMissing());
}

TEST_F(Views, AddressAttributesByPosition) {
    other->answers = {{"TagString", "NUMBER"}};
    object->answers = {{"GetAttributes", basic::Array{other}}};
    const Attributes attributes = BlockReference(object).GetAttributes();
    EXPECT_EQ(attributes.at(0).TagString(), "NUMBER");
    EXPECT_EQ(errorOf([&] { attributes.at(1); }), basic::kSubscript);
    EXPECT_EQ(errorOf([] { Attributes(Variant(Doubles{})); }), basic::kTypeMismatch);
}

TEST_F(Views, WalkTheBlocksUntilToldToStop) {
    const auto layout = std::make_shared<RecordingObject>();
    object->elements = {Variant(other), Variant(layout), Variant(other)};
    other->answers = {{"IsLayout", false}, {"Name", "A"}};
    layout->answers = {{"IsLayout", true}};
    const auto document = std::make_shared<RecordingObject>();
    document->answers = {{"Blocks", object}};
    int visits = 0;
    Document(document).Blocks().forEach([&](const BlockDefinition& block) {
        ++visits;
        return !block.IsLayout();
    });
    EXPECT_EQ(visits, 2);
}

TEST(Points, TakeBothFormsOfArray) {
    EXPECT_EQ(toPoint(Variant(Doubles{1, 2, 3, 4})), (Point{1, 2, 3}));
    EXPECT_EQ(toPoint(Variant(basic::Array{1, 2.5, std::int16_t{3}})), (Point{1, 2.5, 3}));
    EXPECT_EQ(errorOf([] { toPoint(Variant(Doubles{1, 2})); }), basic::kSubscript);
    EXPECT_EQ(errorOf([] { toPoint(Variant()); }), basic::kTypeMismatch);
}

}  // namespace
}  // namespace host
