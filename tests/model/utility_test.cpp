#include "desk/model/entity.h"
#include "model_world.h"

namespace model {
namespace {

class UtilityTest : public FurnishedTest {
  protected:
    host::ObjectPtr utility = object("Utility");
};

TEST_F(UtilityTest, GetEntityGivesObjectAndPointInItsArguments) {
    prompter.entities.push_back({Answer::Given, toEntity(item(Furnished::Door)), {1, 2, 3}});
    host::Arguments arguments{Variant(), Variant(), "Select a block: "};
    EXPECT_TRUE(utility->call("GetEntity", arguments).isEmpty());
    EXPECT_EQ(textOf(host::asObject(arguments[0]), "Handle"), "A1");
    EXPECT_EQ(arguments[1].doubles(), (basic::Doubles{1, 2, 3}));
    EXPECT_EQ(prompter.prompts, (Texts{"Select a block: "}));
}

TEST_F(UtilityTest, EscapeEnterAndAMissAreErrors) {
    for (const Answer answer : {Answer::BrokenOff, Answer::Nothing, Answer::Missed}) {
        prompter.entities.push_back({answer, drawing::kNoEntity, {}});
        host::Arguments arguments{Variant(), 7, "Pick"};
        EXPECT_EQ(errorOf([&] { utility->call("GetEntity", arguments); }), kPromptFailed);
        EXPECT_TRUE(arguments[0].isEmpty());
        EXPECT_EQ(arguments[1].integer(), 7) << "what was in the variables stays";
        if (answer == Answer::Missed) continue;
        prompter.points.push_back({answer, {}});
        prompter.angles.push_back({answer, 0});
        EXPECT_EQ(errorOf([&] { utility->invoke("GetPoint"); }), kPromptFailed);
        EXPECT_EQ(errorOf([&] { utility->invoke("GetAngle", {basic::Doubles{0, 0, 0}}); }), kPromptFailed);
    }
}

TEST_F(UtilityTest, PointsAndAnglesWithAndWithoutABasePoint) {
    prompter.points = {{Answer::Given, {4, 5, 6}}, {Answer::Given, {}}, {Answer::Given, {}}};
    prompter.angles = {{Answer::Given, 1.25}};
    EXPECT_EQ(utility->invoke("GetPoint").doubles(), (basic::Doubles{4, 5, 6}));
    utility->invoke("GetPoint", {basic::Missing{}, "Where: "});
    utility->invoke("GetPoint", {basic::Doubles{1, 1, 0}, "To: "});
    EXPECT_EQ(utility->invoke("GetAngle", {basic::Array{2.0, 2.0, 0.0}, "Angle: "}).number(), 1.25);
    const auto none = std::optional<geometry::Point3>();
    EXPECT_EQ(prompter.bases, (std::vector{none, none, {{1, 1, 0}}, {{2, 2, 0}}}));
    EXPECT_EQ(prompter.prompts, (Texts{"", "Where: ", "To: ", "Angle: "}));
    EXPECT_EQ(errorOf([&] { utility->invoke("GetPoint", {"1,1", "To: "}); }), basic::kTypeMismatch);
    utility->invoke("Prompt", {"told"});
    EXPECT_EQ(prompter.messages, Texts{"told"});
}

}  // namespace
}  // namespace model
