// A run of BtnInserer on a host that fails; the drawn results stand in the transcripts of tests/acts.

#include "tests/labels/labels_world.h"

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

TEST_F(InsertionTest, AsksOrientationAndLeaderFromTheirPoints) {
    block("PLAIN");
    look([this] { parameters().CheckBox1.setValue(1); });
    prompter.angles = {{model::Answer::Given, 0.5}};
    point({7, 8, 9});
    point({2, 2, 0});
    point({3, 3, 0});
    escape();
    insertAndClose();
    EXPECT_DOUBLE_EQ(model::numberOf(references("PLAIN").at(0), "Rotation"), 0.5);
    EXPECT_EQ(prompts(), (Texts{kWhere, kAngle, kFrom, kTo, kWhere}));
    ASSERT_EQ(prompter.bases.size(), 5U);
    EXPECT_FALSE(prompter.bases[0].has_value());
    EXPECT_EQ(prompter.bases[1]->z, 9);
    EXPECT_EQ(prompter.bases[3]->x, 2);
    EXPECT_EQ(faulty.count("call Update"), 2) << "of the label and of its line";
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
        eraseAll();
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
        for (const auto& label : references(row.block)) labels.push_back(values(label));
        EXPECT_EQ(labels, row.labels);
        EXPECT_TRUE(screen.boxes.empty() && failures().empty());
    }
}

}  // namespace
}  // namespace labels
