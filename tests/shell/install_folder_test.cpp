#include "desk/shell/install_folder.h"

#include "basic/error.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/temp_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

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
    write("Vorlane.ini", "Mode=1\r\nlng=Deutsch\r\n");
    prepare();
    EXPECT_EQ(read("Vorlane.ini"), "Mode=1\r\nlng=Deutsch\r\n");
    // Without a choice ours is added on a line of its own.
    for (const char* before : {"Mode=1", "Mode=1\n", "Lng="}) {
        write("Vorlane.ini", before);
        prepare();
        EXPECT_EQ(read("Vorlane.ini"), std::string(before) + "\r\nLng=English\r\n");
    }
}

TEST_F(InstallFolderTest, ANameThatLeadsToItselfIsSaid) {
    fs::create_directories(path(""));
    fs::create_symlink("English.LNG", path("English.LNG"));
    EXPECT_EQ(fakes::errorOf([&] { prepare(); }), basic::kPermissionDenied);
    fs::remove(path("English.LNG"));
    fs::create_symlink("Vorlane.ini", path("Vorlane.ini"));
    EXPECT_EQ(fakes::errorOf([&] { prepare(); }), basic::kPermissionDenied);
    fs::remove(path("Vorlane.ini"));
    fs::create_symlink("x", resources.file("languages/x"));
    fs::create_symlink("x", resources.file("help/x"));
    prepare();
    EXPECT_EQ(read("English.LNG"), "english 1");
}

TEST_F(InstallFolderTest, OnlyFilesThatTheUserLeftAloneAreUpdated) {
    fs::create_directories(path(""));
    write("English.LNG", "translated before the first start");
    prepare();
    write("Francais.LNG", "my own french");
    write("Deutsch.LNG", "a file of mine");
    resources.write("languages/English.LNG", "english 2");
    resources.write("languages/Francais.LNG", "french 2");
    resources.write("help/pages/start.html", "help 2");
    for (int start = 0; start < 2; ++start) {
        prepare();
        EXPECT_EQ(read("English.LNG"), "translated before the first start");
        EXPECT_EQ(read("Francais.LNG"), "my own french");
        EXPECT_EQ(read("Deutsch.LNG"), "a file of mine");
        EXPECT_EQ(read("help/pages/start.html"), "help 2");
    }
    fs::remove(path("Francais.LNG"));
    prepare();
    EXPECT_EQ(read("Francais.LNG"), "french 2") << "removed, it comes back as delivered";
}

TEST_F(InstallFolderTest, WhatIsKnownToBeInOrderIsReadAgainWhenItChanges) {
    const auto age = [](const fs::path& path) {
        for (const auto& entry : fs::recursive_directory_iterator(path)) {
            if (entry.is_regular_file())
                fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::hours(1));
        }
    };
    prepare();
    age(path(""));
    age(resources.path());
    EXPECT_FALSE(fs::exists(path("delivered.states"))) << "what was just written may change again unseen";
    prepare();
    ASSERT_TRUE(fs::exists(path("delivered.states")));
    prepare();
    resources.write("languages/English.LNG", "english 2");
    prepare();
    EXPECT_EQ(read("English.LNG"), "english 2") << "of the same size";
    age(path(""));
    age(resources.path());
    prepare();
    fs::remove(path("help/pages/start.html"));
    resources.write("help/pages/more.html", "help 2");
    prepare();
    EXPECT_EQ(read("help/pages/start.html"), "help 1");
    EXPECT_EQ(read("help/pages/more.html"), "help 2");
}

TEST_F(InstallFolderTest, WhatHindersItIsToldWithTheFoldersName) {
    fs::create_directories(path(""));
    write("help", "a file where the help's folder should be");
    try {
        prepare();
        FAIL();
    } catch (const basic::Error& error) {
        EXPECT_NE(error.description().find(folder.file("deep/er")), std::string::npos) << error.description();
    }
    EXPECT_EQ(read("help"), "a file where the help's folder should be");
}

}  // namespace
}  // namespace shell
