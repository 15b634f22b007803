// Who raises what when code assigns, the values that controls refuse, and what lists keep.
#include "tests/fakes/error_of.h"
#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;
using fakes::errorOf;

class EventsTest : public testing::Test {
  protected:
    EventsTest() {
        form.initialize();
        form.fillLists();
        form.taken();
    }
    struct Row {
        std::function<void()> statement;
        Events events;
    };
    void expectEvents(const std::vector<Row>& rows) {
        for (const Row& row : rows)
            EXPECT_EQ(form.after(row.statement), row.events) << "row " << &row - &rows[0];
    }
    fakes::SampleForm form;
};

TEST_F(EventsTest, NothingIsRaisedBeforeTheFormIsInitialised) {
    fakes::SampleForm fresh;
    fresh.Text1.setText("x");
    fresh.Option2.setValue(true);
    fresh.resizeTo(1, 1);
    EXPECT_EQ(fresh.taken(), Events{});
    fresh.initialize();
    EXPECT_EQ(fresh.taken(), Events{"Initialize"});
}

TEST_F(EventsTest, AnAssignmentRaisesOnlyWhenItChangesSomething) {
    expectEvents({{[&] { form.Check1.setValue(1); }, {"Check1.Click"}},
                  {[&] { form.Check1.setValue(1); }, {}},
                  {[&] { form.Text1.setText("a"); }, {"Text1.Change"}},
                  {[&] { form.Text1.setText("a"); }, {}},
                  {[&] { form.setHeight(5000); }, {"Resize"}},
                  {[&] { form.setHeight(5000); }, {}},
                  {[&] { form.List1.setSelected(1, true); }, {"List1.Click"}},
                  {[&] { form.List1.setSelected(1, true); }, {"List1.Click"}},  // also what is selected
                  {[&] { form.List1.setListIndex(1); }, {}},
                  {[&] { form.List1.setListIndex(2); }, {"List1.Click"}},
                  {[&] { form.List1.setSelected(2, false); }, {}},
                  {[&] { form.Combo2.setText("window"); }, {"Combo2.Click"}},
                  {[&] { form.Combo2.setText("window"); }, {}},
                  // Blanking raises nothing: a handler that stores the text must not store the blank.
                  {[&] { form.Combo2.setListIndex(-1); }, {}}});
    EXPECT_FALSE(form.List1.selected(1));
    EXPECT_EQ(form.List1.selCount(), 0);
    EXPECT_EQ(form.Combo2.text(), "");
}

TEST_F(EventsTest, TurningAnOptionOnTurnsItsGroupOffSilently) {
    expectEvents({{[&] { form.Option2.setValue(true); }, {"Option2.Click"}},
                  {[&] { EXPECT_FALSE(form.Option1.value()); }, {}},
                  {[&] { form.Option2.setValue(false); }, {}}});
    EXPECT_FALSE(form.Option1.value() || form.Option2.value());

    form.Option1.setValue(true);
    form.Option2.place(form.Frame1, 0, 0, 1, 1);  // another container, another group
    form.Option2.setValue(true);
    EXPECT_TRUE(form.Option1.value());
}

TEST_F(EventsTest, EditableCombo) {
    const struct {
        std::function<void()> statement;
        Events events;
        const char* text;
        int index;
    } rows[] = {
        {[&] { form.Combo1.setListIndex(1); }, {"Combo1.Click"}, "window", 1},
        {[&] { form.Combo1.setText("chair"); }, {"Combo1.Change"}, "chair", 2},
        {[&] { form.Combo1.setListIndex(-1); }, {"Combo1.Click"}, "", -1},
        {[&] { form.Combo1.setText("Chair"); }, {"Combo1.Change"}, "Chair", -1},
        {[&] { form.Combo1.setListIndex(-1); }, {}, "Chair", -1},
        {[&] { form.Combo1.clear(); }, {}, "", -1},
        {[&] { form.Combo1.setText("chair"); }, {"Combo1.Change"}, "chair", -1},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(form.after(row.statement), row.events) << row.text;
        EXPECT_EQ(form.Combo1.text(), row.text);
        EXPECT_EQ(form.Combo1.listIndex(), row.index) << row.text;
    }
}

TEST_F(EventsTest, WhatControlsRefuse) {
    forms::ListView& view = form.ListView1;
    forms::Label label(form, "Label1");
    const std::pair<std::function<void()>, int> rows[] = {
        {[&] { form.Check1.setValue(3); }, basic::kInvalidProperty},
        {[&] { form.List1.setListIndex(3); }, basic::kInvalidProperty},
        {[&] { form.List1.setListIndex(-2); }, basic::kInvalidProperty},
        {[&] { form.List1.setSelected(3, true); }, basic::kInvalidProperty},
        {[&] { form.List1.addItem("x", 4); }, basic::kInvalidCall},
        {[&] { form.Combo2.setText(""); }, basic::kReadOnlyText},  // takes only texts that it holds
        {[&] { view.selectedItem().setSubItem(2, "x"); }, basic::kInvalidProperty},
        {[&] { view.selectedItem().subItem(0); }, basic::kInvalidProperty},
        {[&] { view.listItems().item(4); }, basic::kSubscript},
        {[&] { view.columnHeaders().item(0); }, basic::kSubscript},
        {[&] { view.listItems().clear(), view.selectedItem(); }, basic::kObjectNotSet},
        {[&] { form.control(form.controlCount()); }, basic::kSubscript},
        {[&] { form.Text1.caption(); }, basic::kNoSuchMember},
        {[&] { form.Picture1.setCaption("x"); }, basic::kNoSuchMember},
        {[&] { form.Line1.setEnabled(true); }, basic::kNoSuchMember},
        {[&] { form.CommonDialog1.setEnabled(true); }, basic::kNoSuchMember},
        {[&] { form.Line1.setHelpContextId(1); }, basic::kNoSuchMember},
        {[&] { label.setHelpContextId(1); }, basic::kNoSuchMember},
    };
    for (const auto& [statement, error] : rows) EXPECT_EQ(errorOf(statement), error);
    EXPECT_EQ(form.taken(), Events{});
    view.listItems().add("again");
    EXPECT_EQ(view.selectedItem().text(), "again");
}

TEST_F(EventsTest, SortedListsKeepOrderAndTheCurrentEntry) {
    EXPECT_EQ(form.Combo2.list(0) + form.Combo2.list(1) + form.Combo2.list(2), "chairdoorwindow");
    form.Combo2.setListIndex(1);
    form.Combo2.addItem("Bed");
    form.Combo2.addItem("zzz first", 0);  // an index overrules the order
    EXPECT_EQ(form.Combo2.list(0), "zzz first");
    EXPECT_EQ(form.Combo2.text(), "door");
    EXPECT_EQ(form.Combo2.listIndex(), form.Combo2.indexOf("door"));
    EXPECT_EQ(form.Combo2.list(99), "");
}

TEST_F(EventsTest, AFailingHandlerFailsTheAssignment) {
    form.Text1.onChange = [] { throw basic::Error(basic::kTypeMismatch); };
    EXPECT_EQ(errorOf([&] { form.Text1.setText("new"); }), basic::kTypeMismatch);
    EXPECT_EQ(form.Text1.text(), "new");
}

TEST_F(EventsTest, ListViewRowsAndControlsByIndex) {
    forms::ListView& view = form.ListView1;
    EXPECT_EQ(view.selectedItem().index(), 1);
    view.selectItem(3);
    view.listItems().item(3).setSubItem(1, "x");
    EXPECT_EQ(form.taken(), Events{});
    EXPECT_EQ(view.selectedItem().subItem(1), "x");
    EXPECT_EQ(view.listItems().item(1).subItem(1), "");

    EXPECT_EQ(form.control(0).caption(), "Values");
    EXPECT_EQ(&form.control(form.controlCount() - 1), &form.CommonDialog1);
    EXPECT_EQ(form.findControl("LISTVIEW1"), &form.ListView1);
    EXPECT_EQ(form.findControl("ListView"), nullptr);
}

TEST_F(EventsTest, FileDialogFilters) {
    form.CommonDialog1.setFilter("Drawings|*.dwg;*.dxf|All|*.*");
    const auto entries = form.CommonDialog1.filterEntries();
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].label, "Drawings");
    EXPECT_EQ(entries[0].patterns, (std::vector<std::string>{"*.dwg", "*.dxf"}));
    EXPECT_EQ(entries[1].patterns, (std::vector<std::string>{"*.*"}));
}

}  // namespace
