#include "desk/console/text_prompter.h"

#include "tests/drawing/plain_drawing.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace console {
namespace {

using drawing::EntityId;
using geometry::Point3;
using model::Answer;

/// Model space: a line from 0,0 to 100,0 (handle A1), a reference with an attribute at 100,100 (A2, A3),
/// a circle about 50,50 on a frozen layer (A5). Paper space: a line (A6). A block DOT with a point (A7).
std::unique_ptr<drawing::Drawing> sheet() {
    return drawing::PlainDrawing()
        .block("DOT")
        .inBlock("POINT 5 A7 8 0 10 0 20 0")
        .entity("LINE 5 A1 8 0 10 0 20 0 11 100 21 0")
        .entity("INSERT 5 A2 8 0 66 1 2 DOT 10 100 20 100")
        .entity("ATTRIB 5 A3 8 0 10 101 20 101 40 1 1 x 2 T 70 0")
        .entity("SEQEND 5 A4 8 0")
        .entity("CIRCLE 5 A5 8 FROZEN 10 50 20 50 40 5")
        .entity("LINE 5 A6 8 0 67 1 10 0 20 0 11 1 21 1")
        .make();
}

/// A prompter on a script, or on what a person types.
struct Console {
    explicit Console(const std::string& typed, bool interactive = false)
        : input(typed), source(input, interactive) {}

    std::istringstream input;
    std::ostringstream output;
    text_face::StreamLines source;
    TextPrompter prompter{source, output};
};

class TextPrompterTest : public testing::Test {
  protected:
    EntityId entity(drawing::Handle handle) const { return drawing->byHandle(handle); }
    model::EntityPick picked(const std::string& line) const {
        return Console(line + "\n").prompter.getEntity(*drawing, "Pick: ");
    }
    std::vector<EntityId> selected(const std::string& lines) const {
        const model::SelectionPick pick =
            Console(lines + "\n\n").prompter.selectEntities(*drawing, "Select: ");
        EXPECT_EQ(pick.answer, Answer::Given);
        return pick.entities;
    }

    std::unique_ptr<drawing::Drawing> drawing = sheet();
};

TEST_F(TextPrompterTest, Entities) {
    EXPECT_EQ(picked("@a1").entity, entity(0xA1));
    EXPECT_EQ(picked("@A2").point, (Point3{100, 100, 0})) << "a point on what is drawn";
    EXPECT_EQ(picked("@A3").entity, entity(0xA2)) << "an attribute stands for its reference";
    EXPECT_EQ(picked("@A6").entity, entity(0xA6)) << "one in paper space too";
    const model::EntityPick near = picked(" 60,0.3 ");
    EXPECT_EQ(near.entity, entity(0xA1));
    EXPECT_EQ(near.point, (Point3{60, 0.3, 0}));
    EXPECT_EQ(picked("60,2").answer, Answer::Missed);
    EXPECT_EQ(picked("55,50").answer, Answer::Missed) << "nothing is drawn on a frozen layer";
    EXPECT_EQ(picked("ESC").answer, Answer::BrokenOff);
    EXPECT_EQ(picked("").answer, Answer::Nothing);
}

TEST_F(TextPrompterTest, PointsAndAngles) {
    const auto point = [](const std::string& line, const std::optional<Point3>& base = {}) {
        return Console(line + "\n").prompter.getPoint(base, "Point: ");
    };
    EXPECT_EQ(point("@3,4", Point3{1, 1, 1}).point, (Point3{4, 5, 1}));

    const auto angle = [](const std::string& line) {
        return Console(line + "\n").prompter.getAngle({1, 1, 0}, "Angle: ");
    };
    EXPECT_DOUBLE_EQ(angle("2,2").radians, geometry::kPi / 4) << "the direction from the base point";
    EXPECT_DOUBLE_EQ(angle("@0,-5").radians, 3 * geometry::kPi / 2);
}

TEST_F(TextPrompterTest, Selections) {
    using Ids = std::vector<EntityId>;
    EXPECT_EQ(selected("all"), (Ids{entity(0xA1), entity(0xA2)}))
        << "frozen ones and paper space don't count";
    EXPECT_EQ(selected("@A2 @A1\n@A2\n@A6"), (Ids{entity(0xA2), entity(0xA1), entity(0xA6)}));
    EXPECT_EQ(selected("w 90,90 @30,30"), (Ids{entity(0xA2)}));
    EXPECT_EQ(selected("W -1,-1 50,1"), Ids{}) << "the line reaches out of it";
    EXPECT_EQ(selected("c -1,-1 @51,2"), (Ids{entity(0xA1)}));
    EXPECT_EQ(selected("50,0\n@A3"), (Ids{entity(0xA1), entity(0xA2)}));
    EXPECT_EQ(selected(""), Ids{});
    EXPECT_EQ(selected("all\nr @A1\n@A2\na l"), (Ids{entity(0xA2)})) << "taken away, and the newest again";
    EXPECT_EQ(selected("f 20,-10 40,10"), (Ids{entity(0xA1)}));
    EXPECT_EQ(selected("first dot"), (Ids{entity(0xA2)}));
    Console console("@A1\n\np\n\n");
    console.prompter.selectEntities(*drawing, "");
    EXPECT_EQ(console.prompter.selectEntities(*drawing, "").entities, (Ids{entity(0xA1)}));

    const model::SelectionPick pick = Console("@A1\nesc\n").prompter.selectEntities(*drawing, "Select: ");
    EXPECT_EQ(pick.answer, Answer::BrokenOff);
    EXPECT_TRUE(pick.entities.empty());
}

TEST_F(TextPrompterTest, AScriptStopsAtAnAnswerThatSaysNothing) {
    const auto stops = [&](const std::string& lines, auto ask) {
        Console console(lines);
        try {
            ask(console.prompter);
            return std::string("went on");
        } catch (const text_face::ScriptError& error) {
            return std::string(error.what());
        }
    };
    const auto entityAsked = [&](TextPrompter& prompter) { prompter.getEntity(*drawing, ""); };
    const auto selectionAsked = [&](TextPrompter& prompter) { prompter.selectEntities(*drawing, ""); };
    EXPECT_EQ(stops("@A7\n", entityAsked), "line 1: @A7: no entity of the drawing has the handle A7")
        << "it stands in a block";
    EXPECT_EQ(stops("; say\nBtnClose\n", entityAsked).substr(0, 16), "line 2: BtnClose");
    for (const char* line : {"w 1,1", "c 1,1 2,2 3,3", "w a b", "@A1 @A9", "A1", "all of it", "\t"}) {
        EXPECT_TRUE(stops(std::string(line) + "\n\n", selectionAsked).starts_with("line 1: ")) << line;
    }
    EXPECT_EQ(stops("@A1\n", selectionAsked), "the script ended while a prompt of the drawing was waiting");
}

TEST_F(TextPrompterTest, LispValuesAreAnswers) {
    Console console("!place\n");
    console.prompter.setEvaluate([](const std::string& expression) {
        return expression == "!place" ? std::string("3,4") : std::string();
    });
    EXPECT_EQ(console.prompter.getPoint({}, "").point, (Point3{3, 4, 0}));
}

TEST_F(TextPrompterTest, APersonIsToldAndAskedAgain) {
    Console console("here\n@A9\n60,0\n", true);
    EXPECT_EQ(console.prompter.getEntity(*drawing, "Pick: ").entity, entity(0xA1));
    EXPECT_EQ(console.output.str(),
              "Pick: ? is neither @HANDLE nor first NAME nor a point nor esc\n"
              "Pick: ? no entity of the drawing has the handle A9\n"
              "Pick: ");
}

}  // namespace
}  // namespace console
