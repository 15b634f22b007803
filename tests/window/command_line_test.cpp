#include "desk/window/command_line.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace window {
namespace {

class CommandLineTest : public testing::Test {
  protected:
    CommandLineTest() {
        line_.setWords({"VNLABEL", "VNREPLACE", "LIST", "OPEN"});
        line_.setArgumentWords({"OPEN"});
        line_.resize(800, 102);
        line_.show();
        line_.focusInput();
    }
    void key(int key) { QTest::keyClick(input_, static_cast<Qt::Key>(key)); }
    void keys(const QString& text) { QTest::keyClicks(input_, text); }
    QStringList offered() {
        QStringList words;
        auto* list = line_.findChild<QListWidget*>("offeredWords");
        for (int i = 0; list->isVisible() && i < list->count(); ++i) words.append(list->item(i)->text());
        return words;
    }

    CommandLine line_;
    QLineEdit* input_ = line_.findChild<QLineEdit*>("commandInput");
    QSignalSpy entered_{&line_, &CommandLine::lineEntered};
    QSignalSpy brokenOff_{&line_, &CommandLine::brokenOff};
};

TEST_F(CommandLineTest, SpaceEntersExceptWhereABlankBelongs) {
    keys("list ");
    keys("open a b.dxf");
    key(Qt::Key_Return);
    keys("(+ 1 2)");
    key(Qt::Key_Return);
    keys(" ");
    ASSERT_EQ(entered_.count(), 4);
    EXPECT_EQ(entered_[0][0], "list");
    EXPECT_EQ(entered_[1][0], "open a b.dxf");
    EXPECT_EQ(entered_[2][0], "(+ 1 2)");
    EXPECT_EQ(entered_[3][0], "") << "Space alone repeats";
}

TEST_F(CommandLineTest, CompletionOffersBeginningsBeforeMiddles) {
    keys("l");
    EXPECT_EQ(offered(), QStringList());
    keys("i");
    EXPECT_EQ(offered(), QStringList({"LIST"}));
    line_.clear();
    keys("la");
    EXPECT_EQ(offered(), QStringList({"VNLABEL", "VNREPLACE"}));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Tab);
    EXPECT_EQ(line_.text(), "VNREPLACE");
    keys("X");
    key(Qt::Key_Escape);
    EXPECT_EQ(line_.text(), "") << "Esc empties the line first";
    key(Qt::Key_Escape);
    EXPECT_EQ(brokenOff_.count(), 1);
}

TEST_F(CommandLineTest, HistoryHoldsEachLineOnceAndComesBackToTheUnfinishedOne) {
    for (const char* text : {"one", "two", "one"}) {
        keys(text);
        key(Qt::Key_Return);
    }
    keys("new");
    key(Qt::Key_Up);
    EXPECT_EQ(line_.text(), "one");
    key(Qt::Key_Up);
    key(Qt::Key_Up);
    EXPECT_EQ(line_.text(), "two");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(line_.text(), "new");
}

TEST_F(CommandLineTest, OptionsOfAQuestionAreLinksThatAnswerIt) {
    line_.ask("Select:", {{"All", "ALL"}, {"Previous", "P"}}, "Enter ends");
    keys("half");
    const auto links = line_.findChildren<QPushButton*>();
    ASSERT_EQ(links.size(), 2);
    links[1]->click();
    ASSERT_EQ(entered_.count(), 1);
    EXPECT_EQ(entered_[0][0], "P");
    EXPECT_EQ(line_.text(), "") << "what was begun isn't part of the answer";
    line_.setPrompt("Command:", {});
    EXPECT_FALSE(links[0]->isVisible());
}

TEST_F(CommandLineTest, BlockedItTakesNothing) {
    line_.setBlocked(true, "busy");
    line_.type("x");
    key(Qt::Key_Return);
    EXPECT_EQ(entered_.count(), 0);
    EXPECT_EQ(line_.text(), "");
}

}  // namespace
}  // namespace window
