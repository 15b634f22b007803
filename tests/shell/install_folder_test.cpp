#include "desk/shell/install_folder.h"

#include "basic/error.h"
#include "tests/fakes/temp_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace shell {
namespace {

namespace fs = std::filesystem;

class InstallFolderTest : public testing::Test {
  protected:
    InstallFolderTest() {
        fs::create_directories(resources.file("languages"));
        fs::create_directories(resources.file("help/pages"));
        resources.write("languages/English.LNG", "english 1");
        resources.write("languages/Francais.LNG", "french 1");
        resources.write("languages/.hidden", "no language");
        resources.write("help/pages/start.html", "help 1");
    }
    std::string path(const char* name) const { return folder.file(std::string("deep/er/") + name); }
    std::string read(const char* name) const { return folder.read(std::string("deep/er/") + name); }
    void write(const char* name, const char* bytes) { folder.write(std::string("deep/er/") + name, bytes); }
    void prepare(const char* language = "English") {
        prepareInstallFolder(folder.file("deep/er"), resources.path(), language);
    }
    /// The description of the error, "" for none.
    std::string failure() {
        try {
            prepare();
        } catch (const basic::Error& error) {
            return error.description();
        }
        return "";
    }

    fakes::TempFolder folder, resources;
};

TEST_F(InstallFolderTest, TheFirstStartMakesItComplete) {
    prepare("Fran\u00E7ais");
    EXPECT_EQ(read("English.LNG"), "english 1");
    EXPECT_EQ(read("Francais.LNG"), "french 1");
    EXPECT_EQ(read("help/pages/start.html"), "help 1");
    EXPECT_EQ(read("Vorlane.ini"),
              "Lng=Fran\xE7"
              "ais\r\n")
        << "in the code page of the settings";
    EXPECT_FALSE(fs::exists(path(".hidden")));
}

TEST_F(InstallFolderTest, AChosenLanguageAndTheUsersSettingsStay) {
    prepare();
    write("Vorlane.ini",
          "Mode=1\r\nlng=Fran\xE7"
          "ais\r\n");
    prepare();
    EXPECT_EQ(read("Vorlane.ini"),
              "Mode=1\r\nlng=Fran\xE7"
              "ais\r\n");
    // Without a choice ours is added on a line of its own.
    for (const char* before : {"Mode=1", "Mode=1\n", "Lng="}) {
        write("Vorlane.ini", before);
        prepare();
        EXPECT_EQ(read("Vorlane.ini"), std::string(before) + "\r\nLng=English\r\n");
    }
}

TEST_F(InstallFolderTest, OnlyFilesThatTheUserLeftAloneAreUpdated) {
    prepare();
    write("Francais.LNG", "my own french");
    write("Deutsch.LNG", "a file of mine");
    resources.write("languages/English.LNG", "english 2");
    resources.write("languages/Francais.LNG", "french 2");
    resources.write("help/pages/start.html", "help 2");
    for (int start = 0; start < 2; ++start) {
        prepare();
        EXPECT_EQ(read("English.LNG"), "english 2");
        EXPECT_EQ(read("Francais.LNG"), "my own french");
        EXPECT_EQ(read("Deutsch.LNG"), "a file of mine");
        EXPECT_EQ(read("help/pages/start.html"), "help 2");
    }
    fs::remove(path("Francais.LNG"));
    prepare();
    EXPECT_EQ(read("Francais.LNG"), "french 2") << "removed, it comes back as delivered";
    resources.write("languages/Francais.LNG", "french 3");
    prepare();
    EXPECT_EQ(read("Francais.LNG"), "french 3");
}

TEST_F(InstallFolderTest, AFileThatWasThereBeforeTheFirstStartIsTheUsers) {
    fs::create_directories(path(""));
    write("English.LNG", "translated long ago");
    prepare();
    resources.write("languages/English.LNG", "english 2");
    prepare();
    EXPECT_EQ(read("English.LNG"), "translated long ago");
}

TEST_F(InstallFolderTest, ASecondStartWritesNothing) {
    prepare();
    const auto stamp = [&](const char* name) {
        struct stat status {};
        ::stat(path(name).c_str(), &status);
        return std::pair(status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
    };
    const auto files = {"English.LNG", "Francais.LNG", "Vorlane.ini", "delivered.txt"};
    const auto past = fs::last_write_time(path("English.LNG")) - std::chrono::hours(1);
    for (const char* name : files) fs::last_write_time(path(name), past);
    const auto before = stamp("English.LNG");
    prepare();
    for (const char* name : files) EXPECT_EQ(stamp(name), before) << name;
}

TEST_F(InstallFolderTest, WhatHindersItIsToldWithTheFoldersName) {
    folder.write("deep", "a file where the folder should be");
    EXPECT_NE(failure().find(folder.file("deep/er")), std::string::npos) << failure();
    EXPECT_EQ(folder.read("deep"), "a file where the folder should be");
    fs::remove(folder.file("deep"));

    fs::create_directories(path("Vorlane.ini"));
    EXPECT_NE(failure().find("Vorlane.ini is not a file"), std::string::npos) << failure();
    fs::remove(path("Vorlane.ini"));

    fs::remove(path("English.LNG"));
    fs::create_directories(path("English.LNG"));
    EXPECT_NE(failure().find("English.LNG is not a file"), std::string::npos) << failure();
    fs::remove(path("English.LNG"));

    fs::remove_all(path("help"));
    write("help", "a file where the help's folder should be");
    EXPECT_NE(failure().find("can't be written"), std::string::npos) << failure();
}

}  // namespace
}  // namespace shell
