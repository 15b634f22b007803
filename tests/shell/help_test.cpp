#include "desk/shell/help_pages.h"
#include "desk/shell/html_text.h"
#include "desk/shell/linux_platform.h"
#include "tests/fakes/temp_folder.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace shell {
namespace {

namespace fs = std::filesystem;

TEST(HtmlTextTest, BlocksHaveTheirShapes) {
    EXPECT_EQ(htmlToText("<html><head><title>Hidden</title></head><body>\n"
                         "<p class=\"nav\"><a href=\"x\">Hidden</a> too</p>\n"
                         "<h1>Caf\u00E9</h1><p>One\n  <b>two</b>,\nthree.</p>\n"
                         "<h2>List</h2><ul>\n<li>a</li><li>b</li></ul><ol><li>c</li><li>d</li></ol>\n"
                         "<table><tr><th>Name</th><td>what it does</td></tr></table></body></html>"),
              "Caf\u00E9\n====\n\nOne two, three.\n\nList\n----\n"
              "  - a\n  - b\n  1. c\n  2. d\n  Name\n      what it does\n");
}

TEST(HtmlTextTest, LinesAreWrappedByCharactersUnderTheirBlock) {
    const std::string word = "\u00E9t\u00E9-\u00E9t\u00E9";  // 8 columns with the blank
    std::string words, line = "  - ";
    for (int i = 0; i < 11; ++i) words += word + " ";
    for (int i = 0; i < 9; ++i) line += (i > 0 ? " " : "") + word;
    EXPECT_EQ(htmlToText("<ul><li>" + words + "</li></ul>"), line + "\n    " + word + " " + word + "\n");
    const std::string longWord(100, 'x');
    EXPECT_EQ(htmlToText("<p>a " + longWord + " b</p>"), "a\n" + longWord + "\nb\n");
}

TEST(HtmlTextTest, EntitiesAndDamagedMarkup) {
    EXPECT_EQ(htmlToText("<p>&lt;&lt; &amp;amp; &#233;&#xe9; &quot;a&nbsp;b&quot;</p>"),
              "<< &amp; \u00E9\u00E9 \"a b\"\n");
    EXPECT_EQ(htmlToText("R&D &unknown; &#; &#12a; & end"), "R&D &unknown; &#; &#12a; & end\n");
    EXPECT_EQ(htmlToText("</li></ul><li>loose</li> text <p unfinished"), "  - loose\ntext\n");
    EXPECT_EQ(htmlToText(""), "");
}

struct HelpPages : testing::Test {
    std::string told() { return std::exchange(told_, {}); }
    void show(std::optional<std::int32_t> context) { platform.showHelp(folder.file("Vorlane.chm"), context); }

    fakes::TempFolder folder;
    std::string told_;
    LinuxPlatform platform{folder.path(), basic::Regional::english(),
                           [this](const std::string& text) { told_ += text + "\n"; }};
};

TEST_F(HelpPages, WhatTheChosenLanguageLacksComesInEnglish) {
    fs::copy(VORLANE_ROOT "/resources/help", folder.file("help"), fs::copy_options::recursive);
    folder.write("Vorlane.ini", "Lng=Deutsch\r\n");
    show(100500);
    EXPECT_EQ(told(), "There is no help page for topic 100500 in " + folder.file("help") + "\n");

    // A language brought by the user, with a single page so far.
    fs::create_directory(folder.file("help/de"));
    folder.write("help/de/start.html", "<h1>Hilfe</h1>");
    folder.write("help/languages.txt", "fr Fran\u00E7ais\nde Deutsch\n");
    show(std::nullopt);
    EXPECT_EQ(told(), "[help: de/start.html]\nHilfe\n=====\n[end of help]\n");
    show(100100);
    EXPECT_TRUE(told().starts_with("[help: en/about.html]\nAbout Vorlane\n"));

    // The table as a Windows editor saves it.
    folder.write("Vorlane.ini", "Lng=Espa\xF1ol\r\n");
    folder.write("help/languages.txt",
                 "fr Fran\xE7"
                 "ais\r\nde Espa\xF1ol\r\n");
    show(std::nullopt);
    EXPECT_TRUE(told().starts_with("[help: de/start.html]\n"));
}

TEST_F(HelpPages, AProgramWithADisplayShowsThePageItself) {
    const std::string page = folder.file("help/en/start.html");
    fs::create_directories(folder.file("help/en"));
    folder.write("help/en/start.html", "<p>Here");
    folder.write("help/contexts.txt", "0 start\n");
    bool hasBrowser = true;
    LinuxPlatform shows{folder.path(), basic::Regional::english(),
                        [this](const std::string& text) { told_ += text + "\n"; },
                        [&](const fs::path& shown) { return hasBrowser && shown == page; }};
    shows.showHelp(folder.file("Vorlane.chm"), std::nullopt);
    EXPECT_EQ(told(), "[help: " + page + "]\n");
    hasBrowser = false;
    shows.showHelp(folder.file("Vorlane.chm"), std::nullopt);
    EXPECT_EQ(told(), "[help: en/start.html]\nHere\n[end of help]\n");
}

TEST_F(HelpPages, OnlyFilesAreListed) {
    folder.write("English.LNG", "");
    fs::create_directory(folder.file("folder.LNG"));
    fs::create_symlink("itself.LNG", folder.file("itself.LNG"));
    fs::create_symlink("nowhere", folder.file("broken.LNG"));
    ASSERT_EQ(mkfifo(folder.file("pipe.LNG").c_str(), 0600), 0);
    EXPECT_EQ(platform.folderFiles(folder.path()), std::vector<std::string>{folder.file("English.LNG")});
}

TEST_F(HelpPages, WithoutSettingsOrPagesItSaysSo) {
    show(std::nullopt);
    EXPECT_EQ(told(), "There is no help page in " + folder.file("help") + "\n");
}

}  // namespace
}  // namespace shell
