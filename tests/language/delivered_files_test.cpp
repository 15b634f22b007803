#include "language/language.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <string>

namespace {

/// The delivered files, read as the program reads them.
struct DeliveredFiles : testing::Test, fakes::SessionWorld {
    DeliveredFiles() {
        folder.write("Vorlane.ini", "");
        session.LngFolder = VORLANE_ROOT "/resources/languages";
        language::LoadLanguages(session);
    }
    std::string message(const char* name, int id) {
        language::SetLanguage(session, name);
        EXPECT_EQ(session.CurLng.Name, name);
        return language::GetMsg(session, id);
    }
};

TEST_F(DeliveredFiles, KeepTheMessagesThatLookLikeMistakes) {
    EXPECT_EQ(message("Français", 128), "Select language");
    EXPECT_EQ(message("English", 128), "Choisir la langue");
    EXPECT_EQ(message("English", 130), "") << "the English says in one message what the French says in two";
    for (int id = 101; id <= 130; ++id) EXPECT_EQ(message("Français", id).empty(), id == 123) << id;
    EXPECT_EQ(message("English", 101), "Quillet 1.0");
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
