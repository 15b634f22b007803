#include "session/settings.h"

#include "tests/fakes/session_world.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>

namespace {

using fakes::errorOf;
using session::readSetting;
using session::writeSetting;

struct Settings : testing::Test, fakes::SessionWorld {
    void holds(std::string_view bytes) { folder.write("Vorlane.ini", bytes); }
    std::string bytes() const { return folder.read("Vorlane.ini"); }
};

TEST_F(Settings, ReadsTheFirstValueThatIsNotEmpty) {
    holds(
        "V_1_10=ten\r\nV_1_1=\r\nv_1_1=a=b \r\nV_1_1=late\r\nLng =blank\r\n =nothing\r\nCL\xC9=\xE9t\xE9\r\n"
        "Lng= Anglais");
    EXPECT_EQ(readSetting(session, "clé"), "été") << "without regard to case, in the code page";
    EXPECT_EQ(readSetting(session, "V_1_1"), "a=b ");
    EXPECT_EQ(readSetting(session, "  V_1_10 "), "ten");
    EXPECT_EQ(readSetting(session, "Lng"), " Anglais");
    std::string file;
    EXPECT_EQ(session::IniValue(session, "V_1_1", file, 7, "x"), "late");
    EXPECT_EQ(file, session.IniFile);
}

TEST_F(Settings, AWriteReplacesEveryLineOfTheKeyAndKeepsTheRest) {
    holds("; kept \x80\x81\r\nlng=x\r\n\r\nno entry\r\nLNG=\r\nV_0_0=p");
    writeSetting(session, " Lng ", "Français");
    EXPECT_EQ(bytes(),
              "; kept \x80\x81\r\nLng=Fran\xE7"
              "ais\r\n\r\nno entry\r\nLng=Fran\xE7"
              "ais\r\nV_0_0=p\r\n");
    EXPECT_FALSE(std::filesystem::exists(session.IniFile + "~"));
}

TEST_F(Settings, AWriteOfANewKeyAppendsALineOfItsOwn) {
    for (const char* before : {"", "a=1\r\n", "a=1\r"}) {
        for (const std::string unfinished : {"", "a=1", "a=1\n"}) {
            holds(before + unfinished);
            writeSetting(session, "V_0_0", "m");
            EXPECT_EQ(bytes(), before + unfinished + (unfinished.empty() ? "" : "\r\n") + "V_0_0=m\r\n");
        }
    }
}

TEST_F(Settings, ARewriteGoesThroughALinkAndKeepsTheRights) {
    namespace fs = std::filesystem;
    folder.write("real.ini", "Lng=a\r\n");
    fs::permissions(folder.file("real.ini"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.ini", session.IniFile);
    writeSetting(session, "Lng", "b");
    EXPECT_EQ(folder.read("real.ini"), "Lng=b\r\n");
    EXPECT_TRUE(fs::is_symlink(session.IniFile));
    EXPECT_EQ(fs::status(session.IniFile).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    // Another file of the name that a rewrite would use is nobody's to replace.
    folder.write("real.ini~", "mine");
    writeSetting(session, "Lng", "c");
    EXPECT_EQ(folder.read("real.ini~"), "mine");
}

TEST_F(Settings, TheFileIsNeverCreated) {
    EXPECT_EQ(errorOf([&] { readSetting(session, "Lng"); }), basic::kFileNotFound);
    EXPECT_EQ(errorOf([&] { writeSetting(session, "Lng", "x"); }), basic::kFileNotFound);
    EXPECT_FALSE(std::filesystem::exists(session.IniFile));
    EXPECT_EQ(readSetting(session, ""), "") << "an empty key asks for no file";
    std::filesystem::create_directory(session.IniFile);
    EXPECT_EQ(errorOf([&] { readSetting(session, "Lng"); }), basic::kPathFileAccess);
}

TEST_F(Settings, AFullDiskCostsNoSetting) {
    const std::string before = "Lng=a\r\n" + std::string(5000, 'x') + "\r\nV_0_0=\r\n";
    holds(before);
    // Files that may grow to 100 bytes only stand for the full disk.
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldSignal = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{100, old.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    const int number = errorOf([&] { writeSetting(session, "Lng", "b"); });
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldSignal);
    EXPECT_EQ(number, basic::kDiskFull);
    EXPECT_EQ(bytes(), before);
    EXPECT_FALSE(std::filesystem::exists(session.IniFile + "~"));
}

TEST_F(Settings, LinesAreCountedWithSixteenBits) {
    std::string lines;
    for (int i = 0; i < 32767; ++i) lines += "x\r\n";
    holds(lines);
    EXPECT_EQ(readSetting(session, "Lng"), "");
    holds("Lng=a\r\n" + lines);
    EXPECT_EQ(readSetting(session, "Lng"), "a") << "reading stops before the line too many";
    EXPECT_EQ(errorOf([&] { readSetting(session, "V_0_0"); }), basic::kOverflow);
    EXPECT_EQ(errorOf([&] { writeSetting(session, "Lng", "b"); }), basic::kOverflow);
    EXPECT_EQ(bytes(), "Lng=a\r\n" + lines);
}

TEST_F(Settings, AFileThatStaysAsItIsIsReadOnce) {
    namespace fs = std::filesystem;
    const auto written = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const auto holdsSince = [&](std::string_view bytes, fs::file_time_type time) {
        holds(bytes);
        fs::last_write_time(session.IniFile, time);
    };
    holdsSince("Lng=a\r\nV_0_0=\r\nv_0_0=p=q\r\nV_0_0=r\r\nV_0_1=\xE9", written);
    const auto holdsFirst = [&] {
        EXPECT_EQ(readSetting(session, "V_0_0"), "p=q");
        EXPECT_EQ(readSetting(session, " v_0_1 "), "é");
        EXPECT_EQ(readSetting(session, "V_0"), "");
        EXPECT_EQ(readSetting(session, "V_0_0=p"), "q") << "found line by line";
        std::string file;
        EXPECT_EQ(session::IniValue(session, "V_0_0", file, 7, ""), "r");
    };
    holdsFirst();
    writeSetting(session, "Lng", "a");
    EXPECT_EQ(fs::last_write_time(session.IniFile), written) << "it says so already";
    holdsFirst();

    holdsSince("Lng=b\r\n", written);
    EXPECT_EQ(readSetting(session, "Lng"), "b") << "another size";
    holdsSince("Lng=c\r\n", written + std::chrono::nanoseconds(1));
    EXPECT_EQ(readSetting(session, "Lng"), "c") << "another time";
    holdsSince("Lng=d\r\n", written + std::chrono::nanoseconds(1));
    EXPECT_EQ(readSetting(session, "Lng"), "c") << "nothing shows the change";
    for (const char* value : {"e", "f"}) {
        writeSetting(session, "Lng", value);
        EXPECT_EQ(readSetting(session, "Lng"), value) << "by our own write";
    }
    const auto now = fs::file_time_type::clock::now();
    for (const char* value : {"g", "h"}) {
        holdsSince(std::string("Lng=") + value + "\r\n", now);
        EXPECT_EQ(readSetting(session, "Lng"), value) << "of one moment";
    }
    fs::remove(session.IniFile);
    EXPECT_EQ(errorOf([&] { readSetting(session, "Lng"); }), basic::kFileNotFound);
}

TEST_F(Settings, RegistryValuesComeAsText) {
    const auto read = [&](std::uint32_t type, std::string bytes) {
        platform.registry["Key\\Value"] = {type, std::move(bytes)};
        return session::ReadRegistryValue(platform, platform::RegistryRoot::LocalMachine, "Key", "Value");
    };
    EXPECT_EQ(read(platform::kRegistryString, std::string("C:\\V\0junk", 9)).text(), "C:\\V");
    EXPECT_EQ(read(platform::kRegistryString, "unended").text(), "unended");
    EXPECT_EQ(read(platform::kRegistryBinary, "\xFE\xFFzz").text(), "-2");
    EXPECT_EQ(read(platform::kRegistryBinary, "\x07").text(), "7");
    EXPECT_TRUE(read(4, "1234").isEmpty());
    platform.registry.clear();
    EXPECT_TRUE(
        session::ReadRegistryValue(platform, platform::RegistryRoot::LocalMachine, "Key", "Value").isEmpty());
}

}  // namespace
