#include "language/language.h"
#include "tests/fakes/session_world.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <string>

namespace {

/// The delivered files, read as the program reads them and as bytes.
struct DeliveredFiles : testing::Test, fakes::SessionWorld {
    DeliveredFiles() {
        folder.write("Vorlane.ini", "");
        session.LngFolder = VORLANE_ROOT "/resources/languages";
        language::LoadLanguages(session);
    }
    static std::string bytes(const std::string& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::string message(const char* name, int id) {
        language::SetLanguage(session, name);
        EXPECT_EQ(session.CurLng.Name, name);
        return language::GetMsg(session, id);
    }
};

TEST_F(DeliveredFiles, AreSingleByteTextWithFullLineEndsAndKeysOnce) {
    ASSERT_EQ(session.LngList.size(), 2U);
    std::map<std::string, std::set<std::string>> keys;
    for (const session::LngRecord& language : session.LngList) {
        const std::string text = bytes(language.File);
        ASSERT_TRUE(text.ends_with("\r\n"));
        std::size_t start = 0;
        while (start < text.size()) {
            const std::size_t end = text.find("\r\n", start);
            const std::string line = text.substr(start, end - start);
            EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
            EXPECT_EQ(line.find("\xC3"), std::string::npos) << "UTF-8 in " << line;
            const std::size_t equals = line.find('=');
            ASSERT_NE(equals, std::string::npos) << line;
            EXPECT_TRUE(keys[language.Name].insert(line.substr(0, equals)).second) << "twice: " << line;
            start = end + 2;
        }
    }
    // The French splits in two messages what the English says in one; else both hold the same keys.
    keys["English"].insert("msg_130");
    EXPECT_EQ(keys["English"], keys["Français"]);
    for (int id = 101; id <= 130; ++id)
        EXPECT_EQ(keys["Français"].count("msg_" + std::to_string(id)), id == 123 ? 0U : 1U) << id;
}

TEST_F(DeliveredFiles, KeepTheMessagesThatLookLikeMistakes) {
    EXPECT_EQ(message("Français", 128), "Select language");
    EXPECT_EQ(message("English", 128), "Choisir la langue");
    EXPECT_EQ(message("English", 130), "");
    for (const char* name : {"Français", "English"}) EXPECT_EQ(message(name, 101), "Quillet 1.0");
    EXPECT_EQ(message("English", 102), "No block références were found in this drawing.");
    EXPECT_EQ(message("English", 119), "Blocks references replaced succesfully.");
    // Blanks at the ends are part of the texts that others are put together with.
    EXPECT_EQ(message("Français", 54), "A propos de ");
    EXPECT_EQ(message("English", 104), "Select a block reference : ");
    EXPECT_EQ(message("Français", 112), "Sélectionner une occurence de bloc du groupe à remplacer : ");
    EXPECT_EQ(message("English", 112), "Select one block reference of the group to be replaced :");
    EXPECT_EQ(message("Français", 122), " non inserée!");
}

}  // namespace
