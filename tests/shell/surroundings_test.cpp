#include "desk/shell/surroundings.h"

#include "desk/shell/dwg_converter.h"
#include "desk/shell/linux_platform.h"
#include "desk/shell/process.h"
#include "shell_world.h"

#include <map>
#include <sys/wait.h>

namespace shell {
namespace {

namespace fs = std::filesystem;

using Variables = std::map<std::string, std::string>;

ReadVariable reading(const Variables& variables) {
    return [variables](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? std::string() : found->second;
    };
}

TEST(SurroundingsTest, TheFirstVariableThatIsSetDecides) {
    struct Row {
        Variables variables;
        bool frenchDesktop;
        bool frenchNumbers;
    };
    const Row rows[] = {
        {{}, false, false},
        {{{"LANG", "fr"}, {"LC_NUMERIC", "C"}}, true, false},
        {{{"LANG", "en_GB.UTF-8"}, {"LC_NUMERIC", "fr_CA.UTF-8"}}, false, true},
        {{{"LANG", "en_GB.UTF-8"}, {"LC_MESSAGES", "fr_BE.UTF-8"}}, true, false},
        {{{"LANG", "fr_FR.UTF-8"}, {"LC_ALL", "C"}}, false, false},
        {{{"LANG", "fr_FR.UTF-8"}, {"LC_ALL", ""}}, true, true},
    };
    for (const Row& row : rows) {
        const ReadVariable variable = reading(row.variables);
        EXPECT_EQ(isFrenchDesktop(variable), row.frenchDesktop);
        EXPECT_EQ(desktopRegional(variable).decimal, row.frenchNumbers ? "," : ".");
    }
}

TEST(SurroundingsTest, TheInstallFolder) {
    EXPECT_EQ(installFolder(reading({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/a"}})), "/data/vorlane");
    EXPECT_EQ(installFolder(reading({{"XDG_DATA_HOME", "data"}, {"HOME", "/home/a"}})),
              "/home/a/.local/share/vorlane")
        << "a relative path doesn't count";
    EXPECT_THROW(installFolder(reading({})), basic::Error);
}

TEST(LinuxPlatformTest, RegistryFilesAndNames) {
    fakes::TempFolder folder;
    for (const char* name : {"b.LNG", "a.LNG", "C.LNG"}) folder.write(name, "");
    fs::create_directories(folder.file("aa"));
    LinuxPlatform platform(folder.path(), basic::Regional::french(), [](const std::string&) {});
    const auto root = platform::RegistryRoot::LocalMachine;
    const auto value = platform.queryRegistry(root, "SOFTWARE\\Merovane\\Vorlane\\1.0", "installpath");
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->type, platform::kRegistryString);
    EXPECT_EQ(value->bytes, folder.path());
    EXPECT_FALSE(platform.queryRegistry(root, "Software\\Merovane\\Vorlane\\1.0", "Other").has_value());

    EXPECT_EQ(platform.folderFiles(folder.path()),
              (Texts{folder.file("C.LNG"), folder.file("a.LNG"), folder.file("b.LNG")}));
    EXPECT_THROW(platform.folderFiles(folder.file("none")), basic::Error);
    EXPECT_EQ(platform.baseName("/plans/porte.v2.dxf"), "porte.v2");
}

/// Programs of a test's own on PATH, and nothing else.
class ProgramsTest : public testing::Test {
  protected:
    void addProgram(const char* name, const std::string& script) {
        const std::string file = folder.write(name, "#!/bin/sh\n" + script + "\n");
        fs::permissions(file, fs::perms::owner_all);
    }
    /// The number and the description of the error that a conversion ends in.
    static std::pair<int, std::string> refusal(const std::string& dwg) {
        try {
            convertDwg(dwg);
        } catch (const basic::Error& error) {
            return {error.number(), error.description()};
        }
        return {};
    }
    fakes::TempFolder folder;
    ChangedVariable path{"PATH", folder.path()};
};

TEST_F(ProgramsTest, AreFoundRunAndLeftToThemselves) {
    addProgram("answer", "echo noise; test \"$1\" = 'a b;c' && exit 42");
    folder.write("plain", "not executable");
    EXPECT_EQ(findProgram("answer"), folder.file("answer"));
    EXPECT_FALSE(findProgram("plain").has_value());
    std::string printed;
    EXPECT_EQ(runProgram({"answer", "a b;c"}, &printed), 42) << "without a shell in between";
    EXPECT_EQ(printed, "noise\n");
    EXPECT_EQ(runProgram({"missing"}), 127);
    EXPECT_TRUE(startProgram({"answer", "x"}));
    EXPECT_FALSE(startProgram({"missing"}));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left behind";
}

TEST_F(ProgramsTest, AnAddressIsToldWhereNothingCanShowIt) {
    Texts told;
    LinuxPlatform platform(folder.path(), basic::Regional::english(),
                           [&](const std::string& text) { told.push_back(text); });
    const ChangedVariable wayland("WAYLAND_DISPLAY", "");
    for (const char* screen : {":7", "", ":7"}) {
        const ChangedVariable display("DISPLAY", screen);
        platform.openDocument("https://a.example/", "", "");
        addProgram("xdg-open", "exit 0");
    }
    EXPECT_EQ(told, Texts(2, "https://a.example/")) << "without xdg-open, and without a display";
}

TEST_F(ProgramsTest, ADwgNeedsAConverter) {
    const std::string dwg = folder.write("my plan.dwg", "DWG");
    EXPECT_EQ(refusal(folder.file("gone.dwg")).first, basic::kFileNotFound);
    const auto [number, description] = refusal(dwg);
    EXPECT_EQ(number, basic::kFileNotFound);
    EXPECT_NE(description.find("dwg2dxf"), std::string::npos) << description;
    EXPECT_NE(description.find(dwg), std::string::npos) << description;

    const auto firstLine = [&] {
        const std::string made = convertDwg(dwg);
        std::ifstream file(made);
        std::string line;
        std::getline(file, line);
        fs::remove(made);
        return line;
    };
    // The arguments are -y -o OUTPUT INPUT.
    addProgram("dwg2dxf", "read line < \"$4\"; echo \"dxf of $line\" > \"$3\"");
    EXPECT_EQ(firstLine(), "dxf of DWG");
    // The other converter takes folders: source, target, version, format, recursive, audit, name.
    fs::remove(folder.file("dwg2dxf"));
    addProgram("ODAFileConverter", "echo \"$1 $7\" > \"$2/my plan.dxf\"");
    EXPECT_EQ(firstLine(), folder.path() + " my plan.dwg");
}

TEST_F(ProgramsTest, AConversionThatFailsLeavesNothingBehind) {
    const std::string dwg = folder.write("plan.dwg", "DWG");
    const ChangedVariable temporary("TMPDIR", folder.path());
    const auto fileCount = [&] {
        return std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
    };
    addProgram("dwg2dxf", "");
    const auto before = fileCount();
    for (const char* script : {"exit 0", "echo half > \"$3\"; echo noise; echo it is damaged >&2; exit 1"}) {
        addProgram("dwg2dxf", script);
        const auto [number, description] = refusal(dwg);
        EXPECT_EQ(number, basic::kDeviceError) << script;
        const char* const reason = script[1] == 'x' ? "doesn't say why" : ": it is damaged";
        EXPECT_TRUE(description.ends_with(reason)) << description;
        EXPECT_EQ(fileCount(), before) << script;
    }
}

}  // namespace
}  // namespace shell
