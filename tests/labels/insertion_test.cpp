// A run of BtnInserer as the host answers it; the drawn results of prompts that are broken off stand in the
// transcripts of tests/acts.

#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>
#include <numbers>

namespace labels {
namespace {

struct InsertionTest : testing::Test, LabelsWorld {
    /// One press of BtnInserer, which brings the dialog back, and the end of the command.
    void insertAndClose() {
        insert();
        look([this] { EXPECT_TRUE(dialog().visible()); });
        run();
    }
};

TEST_F(InsertionTest, PlacesManualLabelsUntilThePromptIsBrokenOff) {
    platform.numbers = basic::Regional::french();
    block("TAG");
    row(2);
    screen.type("Text1", "typed");
    withoutLeader();
    look([this] {
        parameters().Text1.setText("2,5");
        parameters().Text2.setText("-1");
        parameters().Text3.setText("1E1");
        parameters().Text4.setText("90");
    });
    point({1, 2, 3});
    point({4, 5, 6});
    escape();
    insertAndClose();
    ASSERT_EQ(host.references("TAG").size(), 2U);
    EXPECT_EQ(host.references("TAG")[1]->point, (Point{4, 5, 6}));
    for (const auto& label : host.references("TAG")) {
        EXPECT_EQ(values(label), (Texts{"a", "typed", "c"}));
        EXPECT_EQ(label->scale, (std::array<double, 3>{2.5, -1, 10})) << "by the regional rules";
        EXPECT_DOUBLE_EQ(label->rotation, std::numbers::pi / 2);
    }
    EXPECT_EQ(prompts(), (Texts{kWhere, kWhere, kWhere}));
    EXPECT_EQ(host.drawing().updates, 2);
    EXPECT_TRUE(host.lines().empty() && screen.boxes.empty() && failures().empty());
    EXPECT_EQ(screen.log, (Texts{"show fmLabels", "hide fmLabels", "show fmLabels", "hide fmLabels"}));
}

TEST_F(InsertionTest, AsksOrientationAndLeaderFromTheirPoints) {
    block("PLAIN");
    look([this] { parameters().CheckBox1.setValue(1); });
    host.drawing().angles = {0.5};
    point({7, 8, 9});
    point({2, 2, 0});
    point({3, 3, 0});
    escape();
    insertAndClose();
    EXPECT_EQ(host.references("PLAIN").at(0)->rotation, 0.5);
    EXPECT_EQ(prompts(), (Texts{kWhere, kAngle, kFrom, kTo, kWhere}));
    ASSERT_EQ(host.drawing().bases.size(), 5U);
    EXPECT_TRUE(host.drawing().bases[0].isMissing());
    EXPECT_EQ(host.drawing().bases[1].doubles(), (basic::Doubles{7, 8, 9}));
    EXPECT_EQ(host.drawing().bases[3].doubles(), (basic::Doubles{2, 2, 0}));
    EXPECT_EQ(host.drawing().updates, 2) << "of the label and of its line";
}

TEST_F(InsertionTest, AFailureOfTheHostEndsTheRunUnlessAValueFollows) {
    struct Row {
        const char* block;
        const char* access;
        int n;                      ///< the access of this number in the run fails
        std::size_t points;         ///< that are asked for, the last one broken off where `goesOn`
        bool goesOn;                ///< past the failure
        std::vector<Texts> labels;  ///< that are there, by their attributes
    };
    const std::vector<Row> rows{
        {"PLAIN", "call InsertBlock", 1, 1, false, {}},
        {"PLAIN", "call InsertBlock", 2, 2, false, {{}}},
        {"TAG", "call InsertBlock", 1, 1, false, {}},
        {"TAG", "call InsertBlock", 2, 3, true, {{"2", "b", "c"}}},  // the label before is written anew
        {"TAG", "set TextString", 1, 2, true, {{"a", "b", "c"}}},    // the refused one keeps its text
        {"TAG", "set TextString", 3, 1, false, {{"1", "b", "c"}}},
        {"TAG", "call GetAttributes", 1, 1, false, {{"a", "b", "c"}}},
        {"TAG", "call Update", 1, 1, false, {{"1", "b", "c"}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.block) + " " + row.access + std::to_string(row.n));
        host.drawing().entities.clear();
        prompts();
        session.dropForm("fmLabels");
        session.VTable[kCounter] = {"", "", "", "1", "1"};
        block(row.block);
        if (row.block == std::string("TAG")) mode(kCounter);
        withoutLeader();
        look([this, row] {
            faulty.reset();
            faulty.failAt(row.access, row.n);
        });
        for (std::size_t i = row.goesOn ? 1 : 0; i < row.points; ++i) point({});
        if (row.goesOn) escape();
        insertAndClose();
        EXPECT_TRUE(faulty.failed());
        EXPECT_EQ(prompts(), Texts(row.points, kWhere));
        std::vector<Texts> labels;
        for (const auto& label : host.references(row.block)) labels.push_back(values(label));
        EXPECT_EQ(labels, row.labels);
        EXPECT_TRUE(screen.boxes.empty() && failures().empty());
    }
}

}  // namespace
}  // namespace labels
