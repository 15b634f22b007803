#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>
#include <numbers>

namespace labels {
namespace {

struct InsertionTest : testing::Test, LabelsWorld {
    /// Runs the command on a block with what `prepare` does, and one press of BtnInserer.
    template <typename Prepare>
    void runOn(const std::string& name, Prepare prepare) {
        block(name);
        look(prepare);
        insert();
        look([this] { EXPECT_TRUE(dialog().visible()) << "the dialog comes back"; });
        close();
        run();
    }
    void runOn(const std::string& name) {
        runOn(name, [] {});
    }
    void noLeader() { parameters().CheckBox2.setValue(0); }
};

TEST_F(InsertionTest, PlacesManualLabelsUntilThePromptIsBrokenOff) {
    block("TAG");
    row(2);
    screen.type("Text1", "typed");
    withoutLeader();
    point({1, 2, 3});
    point({4, 5, 6});
    escape();
    insert();
    close();
    run();
    ASSERT_EQ(host.references("TAG").size(), 2U);
    EXPECT_EQ(host.references("TAG")[1]->point, (Point{4, 5, 6}));
    for (const auto& label : host.references("TAG")) EXPECT_EQ(values(label), (Texts{"a", "typed", "c"}));
    EXPECT_EQ(prompts(), (Texts{kWhere, kWhere, kWhere}));
    EXPECT_EQ(host.drawing().updates, 2);
    EXPECT_TRUE(host.lines().empty());
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_TRUE(failures().empty());
    EXPECT_EQ(screen.log, (Texts{"show fmLabels", "hide fmLabels", "show fmLabels", "hide fmLabels"}));
}

TEST_F(InsertionTest, ReadsScalesAndRotationOnceByTheRegionalRules) {
    platform.numbers = basic::Regional::french();
    point({});
    point({});
    escape();
    runOn("PLAIN", [this] {
        noLeader();
        parameters().Text1.setText("2,5");
        parameters().Text2.setText("-1");
        parameters().Text3.setText("1E1");
        parameters().Text4.setText("90");
    });
    for (const auto& label : host.references("PLAIN")) {
        EXPECT_EQ(label->scale, (std::array<double, 3>{2.5, -1, 10}));
        EXPECT_DOUBLE_EQ(label->rotation, std::numbers::pi / 2);
    }
    EXPECT_EQ(host.references("PLAIN").size(), 2U);
}

TEST_F(InsertionTest, AsksTheOrientationOfEachLabelFromItsPoint) {
    host.drawing().angles = {0.5, 1.5};
    point({7, 8, 9});
    point({});
    escape();
    runOn("PLAIN", [this] {
        noLeader();
        parameters().CheckBox1.setValue(1);
        parameters().Text4.setText("90");
    });
    EXPECT_EQ(host.references("PLAIN").at(0)->rotation, 0.5);
    EXPECT_EQ(host.references("PLAIN").at(1)->rotation, 1.5);
    EXPECT_EQ(prompts(), (Texts{kWhere, kAngle, kWhere, kAngle, kWhere}));
    EXPECT_TRUE(host.drawing().bases.at(0).isMissing());
    EXPECT_EQ(host.drawing().bases.at(1).doubles(), (basic::Doubles{7, 8, 9}));
}

TEST_F(InsertionTest, LeadersStartAtANewPointOrAtTheLabelsPick) {
    point({1, 1, 0});
    point({2, 2, 0});
    point({3, 3, 0});
    escape();
    runOn("PLAIN");
    ASSERT_EQ(host.lines().size(), 1U);
    EXPECT_EQ(host.lines()[0]->start, (Point{2, 2, 0}));
    EXPECT_EQ(host.lines()[0]->end, (Point{3, 3, 0}));
    EXPECT_EQ(prompts(), (Texts{kWhere, kFrom, kTo, kWhere}));
    EXPECT_EQ(host.drawing().bases.at(2).doubles(), (basic::Doubles{2, 2, 0}));
    EXPECT_EQ(host.drawing().updates, 2) << "of the label and of its line";

    block("ROOM");
    row(2);
    mode(kObjectArea);
    look([this] { parameters().Option2.setValue(true); });
    point({1, 1, 0});
    pick(entity({{"Area", 80}}), {5, 5, 0});
    point({6, 6, 0});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(prompts(), (Texts{kWhere, kObject, kTo, kWhere}));
    EXPECT_EQ(host.lines().at(1)->start, (Point{5, 5, 0})) << "where the object was clicked";
    EXPECT_EQ(values(host.references("ROOM").at(0)), (Texts{"room", "80"}));
    EXPECT_TRUE(screen.boxes.empty());
}

// The events of a run, in its first pass and in a later one.

TEST_F(InsertionTest, ARefusedInsertionEndsTheFirstPassAfterTheLeader) {
    point({1, 1, 0});
    point({2, 2, 0});
    point({3, 3, 0});
    runOn("TAG", [this] { parameters().Text2.setText("none"); });  // counts as 0, which the host refuses
    EXPECT_TRUE(host.references("TAG").empty());
    EXPECT_EQ(prompts(), (Texts{kWhere, kFrom, kTo})) << "and no insertion point any more";
    EXPECT_EQ(host.lines().size(), 1U);
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(InsertionTest, ARefusedInsertionInALaterPassWritesTheLabelBeforeAnew) {
    block("TAG");
    mode(kCounter);
    look([this] {
        noLeader();
        labelCell(session, kValueSlot, 0) = "1";
        labelCell(session, kStepSlot, 0) = "1";
        faulty.failAt("call InsertBlock", 2);
    });
    for (int i = 0; i < 3; ++i) point({1. * i, 0, 0});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(column("TAG"), (Texts{"2", "3"})) << "the first label was counted twice; the run went on";
    EXPECT_EQ(host.references("TAG").at(1)->point, (Point{2, 0, 0}));

    // Without attributes no AutoVal clears the error, and the run ends.
    prompts();
    block("PLAIN");
    look([this] { faulty.failAt("call InsertBlock", 2); });
    point({});
    point({});
    insert();
    close();
    run();
    EXPECT_EQ(host.references("PLAIN").size(), 1U);
    EXPECT_EQ(prompts(), (Texts{kWhere, kWhere}));
}

TEST_F(InsertionTest, EscapeAtTheOrientationSkipsTheInsertion) {
    point({1, 0, 0});
    host.drawing().angles = {std::nullopt};
    runOn("TAG", [this] {
        noLeader();
        parameters().CheckBox1.setValue(1);
    });
    EXPECT_TRUE(host.references("TAG").empty());
    EXPECT_EQ(prompts(), (Texts{kWhere, kAngle})) << "in the first pass the run ends";

    block("TAG");
    mode(kPointX);
    look([this] { parameters().CheckBox1.setValue(1); });
    host.drawing().angles = {0.5, std::nullopt};
    for (const double x : {1., 11., 2., 22.}) point({x, 0, 0});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(prompts(), (Texts{kWhere, kAngle, kPoint, kWhere, kAngle, kPoint, kWhere}));
    ASSERT_EQ(host.references("TAG").size(), 1U);
    EXPECT_EQ(host.references("TAG")[0]->point, (Point{1, 0, 0}));
    EXPECT_EQ(column("TAG"), Texts{"22"}) << "the label before was asked for anew";
}

TEST_F(InsertionTest, PicksOfAttributesNeverEndARun) {
    block("TAG");
    mode(kPointX);
    row(2);
    mode(kObjectLength);
    row(3);
    mode(kPolygonArea);
    withoutLeader();
    for (int label = 0; label < 2; ++label) {
        point({});
        escape();
        host.breakOffPick();
        escape();
    }
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(host.references("TAG").size(), 2U);
    for (const auto& label : host.references("TAG")) EXPECT_EQ(values(label), (Texts{"", "", "0"}));
}

TEST_F(InsertionTest, ABrokenOffLeaderEndsTheRunWithTheLabelPlaced) {
    struct Row {
        std::vector<std::optional<Point>> answers;
        Texts prompts;
        std::vector<std::pair<Point, Point>> lines;
    };
    const Point a{1, 0, 0}, b{2, 0, 0}, c{3, 0, 0};
    const auto none = std::nullopt;
    const std::vector<Row> rows{
        // First pass: the second point is asked for all the same; without a start there is no line.
        {{a, none, c}, {kWhere, kFrom, kTo}, {}},
        {{a, b, none}, {kWhere, kFrom, kTo}, {}},
        // A later pass: the old points serve.
        {{a, b, c, a, none, a}, {kWhere, kFrom, kTo, kWhere, kFrom, kTo}, {{b, c}, {b, a}}},
        {{a, b, c, a, a, none}, {kWhere, kFrom, kTo, kWhere, kFrom, kTo}, {{b, c}, {a, c}}},
        {{a, b, c, a, none, none}, {kWhere, kFrom, kTo, kWhere, kFrom, kTo}, {{b, c}, {b, c}}},
    };
    for (const Row& row : rows) {
        host.drawing().entities.clear();
        session.PickPoint = {};
        host.drawing().points = {row.answers.begin(), row.answers.end()};
        runOn("PLAIN");
        EXPECT_EQ(prompts(), row.prompts);
        EXPECT_EQ(host.references("PLAIN").size(), row.answers.size() / 3) << "labels placed before stay";
        std::vector<std::pair<Point, Point>> lines;
        for (const auto& line : host.lines()) lines.emplace_back(line->start, line->end);
        EXPECT_EQ(lines, row.lines);
        session.dropForm("fmLabels");
    }
}

TEST_F(InsertionTest, ARefusedTextEndsTheRunUnlessAnotherValueFollows) {
    point({});
    runOn("TAG", [this] {
        noLeader();
        faulty.failAt("set TextString", 3);
    });
    EXPECT_EQ(prompts(), Texts{kWhere});
    EXPECT_EQ(values(host.references("TAG").at(0)), (Texts{"a", "b", "c"}));
    EXPECT_EQ(host.drawing().updates, 1);

    block("TAG");
    row(1);
    screen.type("Text1", "x");
    look([this] { faulty.failAt("set TextString", 1); });
    point({});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(prompts(), (Texts{kWhere, kWhere}));
    EXPECT_EQ(values(host.references("TAG").at(1)), (Texts{"a", "b", "c"}))
        << "the refused one keeps its text";
}

TEST_F(InsertionTest, AFailedUpdateEndsTheRun) {
    for (const auto& [access, lines] : {std::pair("call Update", 0U), std::pair("call GetAttributes", 0U)}) {
        faulty.reset();
        point({});
        runOn("TAG", [this, access = access] {
            noLeader();
            faulty.failAt(access);
        });
        EXPECT_EQ(prompts(), Texts{kWhere}) << access;
        EXPECT_EQ(host.lines().size(), lines);
        session.dropForm("fmLabels");
    }
    EXPECT_EQ(host.references("TAG").size(), 2U);
}

TEST_F(InsertionTest, TheModeIsTheOneThatTheListShows) {
    block("TAG");
    screen.type("Combo1", "free text");
    row(2);
    mode(kCounter);
    withoutLeader();
    look([this] {
        labelCell(session, kPrefixSlot, 0) = "<";
        labelCell(session, kSuffixSlot, 0) = ">";
        labelCell(session, kValueSlot, 1) = "9";
    });
    point({});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(values(host.references("TAG").at(0)), (Texts{"<>", "9", "c"}));
}

TEST_F(InsertionTest, AnotherTextThanABlockInsertsTheLastGoodOneWithItsTextsEmptied) {
    block("TAG");
    screen.type("Combo2", "nonsense");
    withoutLeader();
    look([this] { EXPECT_EQ(dialog().ListView1.listItems().count(), 0); });
    point({});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(values(host.references("TAG").at(0)), (Texts{"", "", ""}));
    EXPECT_EQ(prompts(), (Texts{kWhere, kWhere}));
}

TEST_F(InsertionTest, CountersGoOnFromPressToPressUntilTheirRowIsShownAgain) {
    session.VTable[kCounter] = {"N", "", "", "001", "2"};
    block("TAG");
    mode(kCounter);
    withoutLeader();
    const auto press = [this] {
        point({});
        point({});
        escape();
        insert();
    };
    press();
    press();
    row(2);
    press();  // looking at another row doesn't reset
    row(1);
    press();  // coming back does: its mode comes back into the list
    close();
    run();
    EXPECT_EQ(column("TAG"), (Texts{"N001", "N3", "N5", "N7", "N9", "N11", "N001", "N3"}));
    EXPECT_EQ(session.VTable[kCounter][3], "001") << "not written back";
}

}  // namespace
}  // namespace labels
