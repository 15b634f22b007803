#include "language/language.h"

#include "session/settings.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using fakes::errorOf;
using language::GetMsg;
using session::LngRecord;

struct Languages : testing::Test, fakes::SessionWorld {
    Languages() {
        folder.write("Vorlane.ini", "");
        folder.write("b.lng",
                     ":Language=Fran\xE7"
                     "ais\r\nmsg_1=un\r\nmsg_2=\r\nMSG_2=deux\r\n");
        folder.write("aLNG", ":language=English\r\nmsg_1=one\r\n");
        folder.write("c.Lng", "msg_1=sans nom\r\n");
        folder.write("d.lng.txt", ":Language=No\r\n");
        std::filesystem::create_directory(folder.file("folder.lng"));
        platform.order = {"c.Lng"};
    }
    std::string saved() const { return session::readSetting(session, "Lng"); }
    void load(const std::string& choice) {
        session.CurLng.Name = choice;
        language::LoadLanguages(session);
    }
};

TEST_F(Languages, AreListedInTheFoldersOrder) {
    load("English");
    const std::vector<LngRecord> expected{
        {"", folder.file("c.Lng")}, {"English", folder.file("aLNG")}, {"Français", folder.file("b.lng")}};
    EXPECT_EQ(session.LngList, expected);
    EXPECT_EQ(GetMsg(session, 1), "one");
    // A second command builds the list anew; of two files with one name the first serves.
    folder.write("z.lng", ":Language=English\r\nmsg_1=autre\r\n");
    platform.order = {"z.lng"};
    load("English");
    EXPECT_EQ(session.LngList.size(), 4U);
    EXPECT_EQ(GetMsg(session, 1), "autre");
    EXPECT_EQ(GetMsg(session, -3), "");
    language::SetLanguage(session, "Français");
    EXPECT_EQ(GetMsg(session, 2), "deux");
}

TEST_F(Languages, AStaleChoiceFallsToTheFirstAndIsSaved) {
    platform.order = {"b.lng"};
    load("français");
    EXPECT_EQ(session.CurLng.Name, "Français");
    EXPECT_EQ(saved(), "Français");
    language::SetLanguage(session, "English");
    EXPECT_EQ(saved(), "English");
    language::SetLanguage(session, "Klingon");
    EXPECT_EQ(saved(), "Français");
    // The choice counts though it can't be saved.
    std::filesystem::remove(session.IniFile);
    language::SetLanguage(session, "English");
    EXPECT_EQ(GetMsg(session, 1), "one");
}

TEST_F(Languages, FoldersThatFail) {
    session.LngFolder = folder.file("absent");
    EXPECT_EQ(errorOf([&] { load(""); }), basic::kPathNotFound);

    platform.own = folder.path();
    session.LngFolder.clear();
    std::filesystem::create_directory(folder.file("Languages"));
    load("English");
    EXPECT_EQ(session.LngFolder, folder.file("Languages"));
    EXPECT_TRUE(session.LngList.empty());
    EXPECT_EQ(session.CurLng, (LngRecord{"English", ""}));
    EXPECT_EQ(saved(), "");
    EXPECT_EQ(errorOf([&] { GetMsg(session, 1); }), basic::kBadFileName);
}

TEST_F(Languages, AWrittenDefaultNeverDisplacesATranslation) {
    load("Français");
    std::string file;
    EXPECT_EQ(language::LngValue(session, "msg_1", file, session::kWriteEntry, "x"), "x");
    EXPECT_EQ(file, session.CurLng.File);
    language::LngValue(session, "msg_2", file, session::kWriteEntry, "y");
    language::LngValue(session, "msg_4", file, session::kWriteEntry, "quatre");
    EXPECT_EQ(folder.read("b.lng"),
              ":Language=Fran\xE7"
              "ais\r\nmsg_1=un\r\nmsg_2=y\r\nMSG_2=deux\r\nmsg_4=quatre\r\n");
}

TEST_F(Languages, FormattedTextsTakeLineBreaksAndElements) {
    folder.write("b.lng", ":Language=F\r\nfound={1} de {0}\\\\\\{2}, {1}\r\n");
    load("F");
    platform.numbers = basic::Regional::french();
    EXPECT_EQ(language::LngFormat(session, "found", {2.5, "{0}"}), "{0} de 2,5\r\n\\{2}, {0}");
    EXPECT_EQ(language::LngFormat(session, "absent", {"x"}), "");
}

}  // namespace
