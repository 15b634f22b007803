// Who raises what when code assigns, the values that controls refuse, and what lists keep.
#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

class EventsTest : public testing::Test {
  protected:
    EventsTest() {
        form.initialize();
        form.fillLists();
        form.taken();
    }
    Events after(const std::function<void()>& statement) {
        statement();
        return form.taken();
    }
    static int errorOf(const std::function<void()>& statement) {
        try {
            statement();
        } catch (const basic::Error& error) {
            return error.number();
        }
        return 0;
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
    EXPECT_EQ(after([&] { form.Check1.setValue(1); }), Events{"Check1.Click"});
    EXPECT_EQ(after([&] { form.Check1.setValue(1); }), Events{});
    EXPECT_EQ(errorOf([&] { form.Check1.setValue(3); }), basic::kInvalidProperty);
    EXPECT_EQ(form.Check1.value(), 1);
    EXPECT_EQ(after([&] { form.Text1.setText("a"); }), Events{"Text1.Change"});
    EXPECT_EQ(after([&] { form.Text1.setText("a"); }), Events{});
    EXPECT_EQ(after([&] { form.setHeight(5000); }), Events{"Resize"});
    EXPECT_EQ(after([&] { form.setHeight(5000); }), Events{});
}

TEST_F(EventsTest, TurningAnOptionOnTurnsItsGroupOffSilently) {
    EXPECT_EQ(after([&] { form.Option2.setValue(true); }), Events{"Option2.Click"});
    EXPECT_FALSE(form.Option1.value());
    EXPECT_EQ(after([&] { form.Option2.setValue(false); }), Events{});
    EXPECT_FALSE(form.Option1.value() || form.Option2.value());

    form.Option1.setValue(true);
    form.Option2.place(form.Frame1, 0, 0, 1, 1);  // another container, another group
    form.Option2.setValue(true);
    EXPECT_TRUE(form.Option1.value());
}

TEST_F(EventsTest, ListBoxSelection) {
    EXPECT_EQ(after([&] { form.List1.setSelected(1, true); }), Events{"List1.Click"});
    EXPECT_EQ(form.List1.text(), "window");
    EXPECT_EQ(after([&] { form.List1.setListIndex(1); }), Events{});
    EXPECT_EQ(after([&] { form.List1.setListIndex(2); }), Events{"List1.Click"});
    EXPECT_FALSE(form.List1.selected(1));
    EXPECT_EQ(form.List1.selCount(), 1);
    EXPECT_EQ(after([&] { form.List1.setSelected(2, false); }), Events{});
    EXPECT_EQ(form.List1.selCount(), 0);
    EXPECT_EQ(errorOf([&] { form.List1.setListIndex(3); }), basic::kInvalidProperty);
    EXPECT_EQ(errorOf([&] { form.List1.setListIndex(-2); }), basic::kInvalidProperty);
    EXPECT_EQ(errorOf([&] { form.List1.setSelected(3, true); }), basic::kInvalidProperty);
    EXPECT_EQ(errorOf([&] { form.List1.addItem("x", 4); }), basic::kInvalidCall);
    EXPECT_EQ(errorOf([&] { form.List1.removeItem(3); }), basic::kInvalidCall);
}

TEST_F(EventsTest, EditableCombo) {
    EXPECT_EQ(after([&] { form.Combo1.setListIndex(1); }), Events{"Combo1.Click"});
    EXPECT_EQ(form.Combo1.text(), "window");
    EXPECT_EQ(after([&] { form.Combo1.setText("chair"); }), Events{"Combo1.Change"});
    EXPECT_EQ(form.Combo1.listIndex(), 2);
    EXPECT_EQ(after([&] { form.Combo1.setText("Chair"); }), Events{"Combo1.Change"});
    EXPECT_EQ(form.Combo1.listIndex(), -1);
    EXPECT_EQ(after([&] { form.Combo1.clear(); }), Events{});
    EXPECT_EQ(form.Combo1.text(), "");
    EXPECT_EQ(after([&] { form.Combo1.setText("chair"); }), Events{"Combo1.Change"});
    EXPECT_EQ(form.Combo1.listIndex(), -1);
}

TEST_F(EventsTest, DropDownListTakesOnlyTextsThatItHolds) {
    EXPECT_EQ(after([&] { form.Combo2.setText("window"); }), Events{"Combo2.Click"});
    EXPECT_EQ(after([&] { form.Combo2.setText("window"); }), Events{});
    EXPECT_EQ(errorOf([&] { form.Combo2.setText(""); }), basic::kReadOnlyText);
    EXPECT_EQ(form.Combo2.text(), "window");
    // Blanking raises nothing: a handler that stores the text must not store the blank.
    EXPECT_EQ(after([&] { form.Combo2.setListIndex(-1); }), Events{});
    EXPECT_EQ(form.Combo2.text(), "");
}

TEST_F(EventsTest, SortedListsKeepOrderAndTheCurrentEntry) {
    EXPECT_EQ(form.Combo2.list(0) + form.Combo2.list(1) + form.Combo2.list(2), "chairdoorwindow");
    form.Combo2.setListIndex(1);
    form.Combo2.addItem("Bed");
    form.Combo2.addItem("zzz first", 0);  // an index overrules the order
    EXPECT_EQ(form.Combo2.list(0), "zzz first");
    EXPECT_EQ(form.Combo2.text(), "door");
    EXPECT_EQ(form.Combo2.listIndex(), form.Combo2.indexOf("door"));
    form.Combo2.removeItem(0);
    EXPECT_EQ(form.Combo2.list(0), "Bed");
    EXPECT_EQ(form.Combo2.text(), "door");
    form.Combo2.removeItem(form.Combo2.listIndex());
    EXPECT_EQ(form.Combo2.listIndex(), -1);
    EXPECT_EQ(form.Combo2.list(99), "");
}

TEST_F(EventsTest, AFailingHandlerFailsTheAssignment) {
    form.Text1.onChange = [] { throw basic::Error(basic::kTypeMismatch); };
    EXPECT_EQ(errorOf([&] { form.Text1.setText("new"); }), basic::kTypeMismatch);
    EXPECT_EQ(form.Text1.text(), "new");
}

TEST_F(EventsTest, ListViewRows) {
    forms::ListView& view = form.ListView1;
    EXPECT_EQ(view.selectedItem().index(), 1);
    view.selectItem(3);
    view.listItems().item(3).setSubItem(1, "x");
    EXPECT_EQ(form.taken(), Events{});
    EXPECT_EQ(view.selectedItem().subItem(1), "x");
    EXPECT_EQ(view.listItems().item(1).subItem(1), "");
    EXPECT_EQ(errorOf([&] { view.selectedItem().setSubItem(2, "x"); }), basic::kInvalidProperty);
    EXPECT_EQ(errorOf([&] { view.selectedItem().subItem(0); }), basic::kInvalidProperty);
    EXPECT_EQ(errorOf([&] { view.listItems().item(4); }), basic::kSubscript);
    EXPECT_EQ(errorOf([&] { view.columnHeaders().item(0); }), basic::kSubscript);
    view.listItems().clear();
    EXPECT_EQ(errorOf([&] { view.selectedItem(); }), basic::kObjectNotSet);
    view.listItems().add("again");
    EXPECT_EQ(view.selectedItem().text(), "again");
}

TEST_F(EventsTest, ControlsByIndexLackSomeProperties) {
    EXPECT_EQ(form.control(0).caption(), "Values");
    EXPECT_EQ(&form.control(form.controlCount() - 1), &form.CommonDialog1);
    EXPECT_EQ(form.findControl("LISTVIEW1"), &form.ListView1);
    EXPECT_EQ(form.findControl("ListView"), nullptr);
    EXPECT_EQ(errorOf([&] { form.control(form.controlCount()); }), basic::kSubscript);
    EXPECT_EQ(errorOf([&] { form.Text1.caption(); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { form.Picture1.setCaption("x"); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { form.Line1.setEnabled(true); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { form.CommonDialog1.setEnabled(true); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { form.Line1.setHelpContextId(1); }), basic::kNoSuchMember);
    forms::Label label(form, "Label1");
    EXPECT_EQ(errorOf([&] { label.setHelpContextId(1); }), basic::kNoSuchMember);
    label.setCaption("text");
    EXPECT_EQ(form.control(14).caption(), "text");
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
