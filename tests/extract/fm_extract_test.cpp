#include "extract/fm_extract.h"

#include "tests/extract/extract_world.h"

namespace extract {
namespace {

using forms::Answer;

class ExtractTest : public testing::Test, public ExtractWorld {
  protected:
    ExtractTest() {
        host.addBlock("TREE", {{"SPECIES", "oak"}, {"GIRTH", "1"}});
        host.addBlock("bench");
        first = host.addReference("TREE", {1.5, -2, 0}, {"ash", "0.5"});
        first->scale = {2, 2, 0.1};
        first->rotation = 1.0 / 3;
        second = host.addReference("TREE", {1e16, 0.00001, 3}, {"elm", "2"});
        second->layer = "GREEN";
        second->color = 3;
        bench = host.addReference("bench", {7, 8, 9});
    }
    forms::ListView& table() { return extraction().ListView2; }
    /// One extraction, from the press of the button to the dialog's return.
    void extract(const fakes::FakeReferencePtr& model, std::vector<fakes::FakeEntityPtr> zone) {
        host.pick(model);
        screen.click("BtnNew");
        screen.click("OKButton");
        host.select(std::move(zone));
    }
    void closeUnsaved() {
        screen.click("BtnClose");
        screen.answers.push_back(Answer::No);
        runExtraction();
    }
    /// An extraction of the trees on a new dialog, in which the nth access of this kind fails.
    void extractFailing(const char* access, int n) {
        host.drawing().sets.clear();
        host.drawing().selections.clear();
        screen.log.clear();
        session.dropForm("fmExtract");
        faulty.reset();
        faulty.failAt(access, n);
        extract(first, {first, second});
    }

    fakes::FakeReferencePtr first, second, bench;
};

TEST_F(ExtractTest, MakesARowOfEachReferenceInTheZone) {
    extract(first, {first, second, bench});
    look([&] {
        EXPECT_EQ(headers(table()),
                  (Texts{"N°", "X insertion", "Y insertion", "Z insertion", "Ech. X", "Ech. Y", "Ech. Z",
                         "Rotation", "SPECIES", "GIRTH", "Calque", "Couleur"}));
        EXPECT_EQ(table().columnHeaders().item(1).width, 400);
        EXPECT_EQ(table().columnHeaders().item(12).width, 700);
        ASSERT_EQ(table().listItems().count(), 2) << "the bench is of another block";
        EXPECT_EQ(row(table(), 1), (Texts{"1", "1.5", "-2", "0", "2", "2", "0.1", "0.333333333333333", "ash",
                                          "0.5", "0", "256"}));
        EXPECT_EQ(row(table(), 2),
                  (Texts{"2", "1E+16", "1E-05", "3", "1", "1", "1", "0", "elm", "2", "GREEN", "3"}));
        EXPECT_EQ(host.setNames(), Texts{"Selx0"}) << "the set stays";
        // Another table counts from one again, and uses the first set that is there. Its model has no
        // attributes, so none are read.
        bench->name = "TREE";
        host.drawing().sets.clear();
        host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "MINE"));
        host.drawing().sets.front()->members = {bench};
        platform.numbers = basic::Regional::french();
    });
    extract(bench, {first});
    look([&] {
        ASSERT_EQ(table().listItems().count(), 1);
        EXPECT_EQ(row(table(), 1),
                  (Texts{"1", "1,5", "-2", "0", "2", "2", "0,1", "0,333333333333333", "0", "256"}));
    });
    closeUnsaved();
    EXPECT_EQ(host.setNames(), Texts{"MINE"});
    EXPECT_EQ(shows("fmExtract"), 3);
}

TEST_F(ExtractTest, GoesThroughTheAnswersOfTheQuestion) {
    extract(bench, {});
    look([&] {
        EXPECT_EQ(extraction().CheckBox1.value(), 0) << "an empty zone counts as unsaved too";
        extraction().CheckBox1.setValue(1);
    });
    // Cancel: the new columns stand without rows, and the flag stays.
    host.pick(first);
    screen.click("BtnNew");
    screen.click("CancelButton");
    look([&] {
        EXPECT_EQ(headers(table()).size(), 12U);
        EXPECT_EQ(extraction().CheckBox1.value(), 1);
    });
    // The frame's close box is no cancel: the zone comes.
    host.pick(bench);
    screen.click("BtnNew");
    screen.closeBox();
    host.select({bench});
    look([&] { EXPECT_EQ(table().listItems().count(), 1); });
    closeUnsaved();
}

TEST_F(ExtractTest, LinesUpAttributesByPositionAlone) {
    const auto extra = host.addReference("TREE", {}, {"fir", "9"});
    extra->attributes.push_back(std::make_shared<fakes::FakeAttribute>("AGE", "40", extra));
    second->attributes.pop_back();
    extract(first, {second, extra, first});
    runExtraction();
    // One less: layer and colour move up. One more: the write of the colour fails and ends the handler.
    EXPECT_EQ(row(table(), 1),
              (Texts{"1", "1E+16", "1E-05", "3", "1", "1", "1", "0", "elm", "GREEN", "3", ""}));
    EXPECT_EQ(row(table(), 2), (Texts{"2", "0", "0", "0", "1", "1", "1", "0", "fir", "9", "40", "0"}));
    EXPECT_EQ(table().listItems().count(), 2);
    EXPECT_EQ(failures().size(), 1U);
}

TEST_F(ExtractTest, SkipsFailuresUpToTheQuestion) {
    struct Row {
        const char* access;
        std::size_t columns;
        const char* name;
    };
    for (const Row& row : {Row{"get SelectionSets", 12, "TREE"},  // counts as a yes: a set is made
                           Row{"get Name", 12, ""}, Row{"get hasAttributes", 12, "TREE"},  // the same
                           Row{"call GetAttributes", 10, "TREE"}, Row{"get TagString", 11, "TREE"}}) {
        SCOPED_TRACE(row.access);
        extractFailing(row.access, 1);
        host.drawing().selections.clear();
        host.select({});
        look([&] {
            EXPECT_EQ(headers(table()).size(), row.columns);
            EXPECT_EQ(headers(table()).back(), "Couleur");
            EXPECT_EQ(extraction().Label1.caption(), row.name);
        });
        closeUnsaved();
        EXPECT_TRUE(faulty.failed());
        EXPECT_TRUE(failures().empty());
    }
}

TEST_F(ExtractTest, EndsTheHandlerAtAFailureBehindTheQuestion) {
    struct Row {
        const char* access;
        int n;
        int rows;    ///< in the table by then
        int filled;  ///< cells of the last one that aren't empty
    };
    const Row rows[] = {
        {"call Add", 1, 0, 0},  // skipped, but there is no set for the zone
        {"get Name", 3, 0, 0},         {"call Clear", 1, 0, 0},        {"call SelectOnScreen", 1, 0, 0},
        {"get Count", 2, 0, 0},        {"call Item", 2, 1, 12},        {"get InsertionPoint", 2, 2, 1},
        {"get XScaleFactor", 2, 2, 4}, {"get YScaleFactor", 2, 2, 5},  {"get ZScaleFactor", 2, 2, 6},
        {"get Rotation", 2, 2, 7},     {"get hasAttributes", 3, 2, 8}, {"call GetAttributes", 3, 2, 8},
        {"get TextString", 4, 2, 9},   {"get Layer", 2, 2, 10},        {"get Color", 2, 2, 11},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.access);
        extractFailing(row.access, row.n);
        runExtraction();
        EXPECT_TRUE(faulty.failed());
        EXPECT_EQ(failures().size(), 1U);
        EXPECT_EQ(extraction().CheckBox1.value(), 1);
        EXPECT_FALSE(extraction().visible()) << "it doesn't come back";
        ASSERT_EQ(table().listItems().count(), row.rows);
        if (row.rows == 0) continue;
        const Texts last = this->row(table(), row.rows);
        EXPECT_EQ(12 - std::count(last.begin(), last.end(), ""), row.filled);
    }
}

TEST_F(ExtractTest, LetsFailuresOutInALaterPassOfThePick) {
    host.pick(first);
    host.pick(bench);
    faulty.failAt("get hasAttributes", 2);
    screen.click("BtnNew");
    screen.click("BtnSelect");
    runExtraction();
    EXPECT_EQ(failures().size(), 1U);
    EXPECT_EQ(headers(table()).size(), 8U) << "the columns as far as they got";
}

TEST_F(ExtractTest, CountsAsSavedAfterAFailedSaveAndWritesTheOldPathAfterACancel) {
    extract(first, {first, second});
    screen.click("BtnSave");
    screen.paths = {folder.file("nowhere/trees.txt"), folder.file("trees.txt"), std::nullopt};
    look([&] { EXPECT_EQ(extraction().CheckBox1.value(), 1); });
    screen.click("BtnSave");
    screen.click("BtnErase");
    screen.click("BtnSave");
    screen.click("BtnClose");
    runExtraction();
    EXPECT_TRUE(screen.boxes.empty() && failures().empty());
    EXPECT_TRUE(folder.read("trees.txt").ends_with("es du bloc \t\r\n\r\n"));
}

TEST_F(ExtractTest, AsksForTheUnsavedDataOfAnErasedTableToo) {
    extract(first, {first});
    host.breakOffPick();
    screen.click("BtnNew");
    screen.answers.push_back(Answer::Cancel);
    look([&] { EXPECT_EQ(table().listItems().count(), 1) << "a broken-off pick changes nothing"; });
    screen.click("BtnErase");
    closeUnsaved();
    EXPECT_EQ(boxTexts().back(), "The current data were not saved.\r\nDo you want to save them now?");
    EXPECT_EQ(shows("fmVnMessage"), 1);
}

}  // namespace
}  // namespace extract
