#include "extract/insertion_run.h"

#include "tests/extract/extract_world.h"

namespace extract {
namespace {

using Icon = forms::MessageDialog::Icon;

const std::string kDone = "End of the insertion.\r\n";

/// The dialog with the block TREE and a table of the columns N, X, Y, S, A.
class InsertionTest : public testing::Test, public ExtractWorld {
  protected:
    InsertionTest() {
        choose("TREE");
        map({"X", "Y", "0", "S", "S", "1", "0.5", "0", "0", "0", "A", "big"});
    }
    fmReInsert& form() { return insertion(); }
    void choose(const char* block) {
        form().Combo1.setListIndex(form().Combo1.indexOf(block));
        form().ListView2.columnHeaders().clear();
        for (const char* header : {"N", "X", "Y", "S", "A"})
            form().ListView2.columnHeaders().add(header, 700);
    }
    void map(const Texts& mappings) {
        for (std::size_t i = 0; i < mappings.size(); ++i)
            form().ListView1.listItems().item(static_cast<int>(i) + 1).setSubItem(1, mappings[i]);
    }
    void addRow(const Texts& cells) {
        forms::ListItem& row = form().ListView2.listItems().add(cells[0]);
        for (std::size_t i = 1; i < cells.size(); ++i) row.setSubItem(static_cast<int>(i), cells[i]);
    }
    /// Runs the button's handler and gives the end message's text.
    std::string insert() {
        form().BtnInsert.press();
        return screen.boxes.back().text;
    }
    std::string value(const std::string& name, int row) {
        return ParameterList(form().ListView1, form().ListView2).GetParameterValue(name, row);
    }
    std::vector<host::ObjectPtr> trees() { return references("TREE"); }
};

TEST_F(InsertionTest, FindsTheValueOfAParameter) {
    addRow({"7", "1", "2", "3", "ash"});
    EXPECT_EQ(value("X_", 1), "1");
    EXPECT_EQ(value("GIRTH", 1), "big") << "a constant";
    map({"N", "x", "", "A"});
    EXPECT_EQ(value("X_", 1), "7") << "the first column is the row's own text";
    EXPECT_EQ(value("Y_", 1), "x") << "case counts";
    EXPECT_EQ(value("Z_", 1), "") << "an empty mapping is an empty text";
    form().ListView2.columnHeaders().add("A", 700);
    form().ListView2.columnHeaders().add("", 700);
    form().ListView2.listItems().item(1).setSubItem(5, "other");
    form().ListView2.listItems().item(1).setSubItem(6, "of the column without a header");
    EXPECT_EQ(value("Ech.X", 1), "ash") << "the left one of equal headers";
    EXPECT_EQ(value("Z_", 1), "of the column without a header");
    EXPECT_EQ(fakes::errorOf([&] { value("x_", 1); }), basic::kSubscript);
    EXPECT_EQ(fakes::errorOf([&] { value("X_", 2); }), basic::kSubscript);
}

TEST_F(InsertionTest, InsertsAllAgainAtASecondPress) {
    EXPECT_EQ(insert(), kDone) << "nothing but the success without rows";
    addRow({"1", "1.5", "-2", "2", "ash"});
    map({"X", "Y", "0", "S", "S", "1", "0.5", "S"});
    insert();
    form().Check1.setValue(1);
    insert();
    map({"X", "Y", "0", "1", "1", "1", "0", "0"});
    insert();
    ASSERT_EQ(trees().size(), 3U);
    model::expectPoint(trees()[0], "InsertionPoint", {1.5, -2, 0});
    EXPECT_EQ(model::numberOf(trees()[0], "YScaleFactor"), 2);
    EXPECT_EQ(model::numberOf(trees()[0], "ZScaleFactor"), 1);
    EXPECT_DOUBLE_EQ(model::numberOf(trees()[0], "Rotation"), 0.5) << "radians";
    model::expectPoint(trees()[1], "InsertionPoint", {3.5, -2, 0});
    EXPECT_EQ(lineCount(), 2U) << "also a line of no length";
}

TEST_F(InsertionTest, ReportsTheRowsWithATextThatIsNoNumber) {
    struct Case {
        std::size_t column;  ///< of the bad text
        const char* text;
        bool isReported;
        std::size_t lines;  ///< one drawn before the failure stays
    };
    form().Check1.setValue(1);
    map({"X", "Y", "0", "S", "1", "1", "0", "A", "0", "0"});
    const Texts good{"9", "1", "2", "1", "5"};
    for (const Case& c : {Case{1, "", true, 2}, Case{2, "north", true, 2}, Case{4, "", true, 2},
                          Case{3, "big", true, 3}, Case{3, "0", false, 3}, Case{1, "1E999", false, 2}}) {
        SCOPED_TRACE(std::to_string(c.column) + c.text);
        eraseAll();
        form().ListView2.listItems().clear();
        Texts bad = good;
        bad[c.column] = c.text;
        for (const Texts& cells : {good, bad, good}) addRow(cells);
        EXPECT_EQ(insert(), kDone + (c.isReported ? "Error : The line 2 was not insered!\r\n" : ""));
        EXPECT_EQ(screen.boxes.back().icon, c.isReported ? Icon::Exclamation : Icon::Information);
        EXPECT_EQ(trees().size(), 2U);
        EXPECT_EQ(lineCount(), c.lines);
    }
}

TEST_F(InsertionTest, DropsARowInSilenceWhenTheHostFails) {
    struct Row {
        const char* access;
        std::size_t lines, references;  ///< in the drawing after a run of two rows, the second failing
        const char* species;            ///< of the last reference
    };
    const Row rows[] = {
        {"get ModelSpace", 1, 1, "ash"},   {"call AddLine", 1, 1, "ash"},
        {"call InsertBlock", 2, 1, "ash"}, {"call GetAttributes", 2, 2, "oak"},
        {"get TagString", 2, 2, "oak"},    {"set TextString", 2, 2, "oak"},
        {"call Update", 2, 2, "ash"},
    };
    addRow({"1", "1", "2", "1", "ash"});
    addRow({"2", "1", "2", "1", "ash"});
    form().Check1.setValue(1);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.access);
        eraseAll();
        faulty.reset();
        const std::string access = row.access;
        const bool pair = access.ends_with("ModelSpace") || access.ends_with("String");
        faulty.failAt(access, pair ? 3 : 2);
        EXPECT_EQ(insert(), kDone);
        EXPECT_TRUE(faulty.failed());
        EXPECT_EQ(screen.boxes.back().icon, Icon::Information);
        EXPECT_EQ(lineCount(), row.lines);
        ASSERT_EQ(trees().size(), row.references);
        EXPECT_EQ(model::attributeTexts(trees().back()).front(), std::string("SPECIES=") + row.species);
    }
}

TEST_F(InsertionTest, FillsAttributesUpToATagThatIsInNoRow) {
    choose("ODD");
    map({"X", "Y", "0", "S", "S", "1", "0.5", "0", "0", "0", "A", "A", "X", "", "big"});
    form().ListView1.listItems().item(14).setText("YEARS");
    addRow({"1", "1", "2", "1", "ash"});
    EXPECT_EQ(insert(), kDone);
    EXPECT_EQ(model::attributeTexts(references("ODD").at(0)),
              (Texts{"SPECIES=ash", "SPECIES=ash", "X_=1", "AGE=a", "GIRTH=g"}))
        << "one like a fixed parameter gets its text";
    EXPECT_EQ(faulty.count("call Update"), 0);
}

}  // namespace
}  // namespace extract
