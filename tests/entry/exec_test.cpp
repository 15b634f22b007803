#include "entry/component.h"
#include "forms/form.h"
#include "tests/entry/lisp_world.h"
#include "tests/fakes/fake_platform.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/session_world.h"
#include "tests/fakes/temp_folder.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using fakes::errorOf;
using session::Session;

/// A dialog of a command that is built elsewhere: it tells its activation and hides itself.
class Probe : public forms::Form {
  public:
    Probe(const char* name, std::vector<std::string>& story) : Form(name, "", ""), story_(story) {}
    ~Probe() override { story_.push_back("~" + name()); }
    bool fails = false;

  protected:
    void Form_Activate() override {
        story_.push_back(name() + " of " + (owner() ? owner()->name() : "nobody"));
        hide();
        if (fails) throw basic::Error(1234, "broken");
    }

  private:
    std::vector<std::string>& story_;
};

struct Exec : testing::Test, LispWorld {
    Exec() {
        platform.install(folder.path());
        folder.write("Vorlane.ini", "Lng=English\r\nV_0_1= m\r\nV_30_4=last\r\n");
        folder.write("a.lng",
                     ":Language=Fran\xE7"
                     "ais\r\n");
        folder.write("b.lng", ":Language=English\r\n");
    }
    Session& session() { return component.session(); }
    void add(const char* name) {
        session().registerForm(name, [=, this](Session&) { return std::make_unique<Probe>(name, story); });
    }
    /// Runs the command of a code, which is written as Lisp writes it.
    void exec(const std::string& code) {
        lisp.eval("(setq ZOL101 " + code + ")");
        object->Exec(document);
    }
    std::string onlyBox() {
        if (screen.boxes.size() != 1) return std::to_string(screen.boxes.size()) + " boxes";
        EXPECT_EQ(screen.boxes[0].title, "Vorlane 1.0");
        EXPECT_EQ(screen.boxes[0].icon, forms::MessageDialog::Icon::Exclamation);
        EXPECT_EQ(screen.boxes[0].buttons, forms::MessageDialog::Buttons::Ok);
        const std::string text = screen.boxes[0].text;
        screen.boxes.clear();
        return text.substr(0, text.find("\r\n"));
    }

    std::vector<std::string> story;
    fakes::TempFolder folder;
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    entry::Component component{platform, screen};
    std::shared_ptr<entry::VnObj0100> object = component.createVnObj0100();
};

TEST_F(Exec, SetsTheSessionUp) {
    exec("\"6\"");
    EXPECT_EQ(session().AppTitle, "Vorlane 1.0");
    EXPECT_EQ(session().InstallPath, folder.path());
    EXPECT_EQ(session().CurLng.Name, "English");
    EXPECT_EQ(session().LngList.size(), 2U);
    EXPECT_EQ(session().VTable[0][1], " m");
    EXPECT_EQ(session().VTable[30][4], "last");

    folder.write("c.lng", ":Language=Deutsch\r\n");
    exec("\"6\"");
    EXPECT_EQ(session().LngList.size(), 3U);
}

TEST_F(Exec, FilesWithLineFeedsAloneAreToldOnce) {
    folder.write("c.lng", ":Language=Deutsch\nmsg_101=Kasten\n");
    exec("6");
    EXPECT_EQ(session().LngList[2].Name, "Deutsch\nmsg_101=Kasten\n");
    EXPECT_EQ(onlyBox(), folder.file("c.lng"));
    exec("6");
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(Exec, UnknownCodesDoNothing) {
    for (const char* code : {"\"6\"", "\"01\"", "\" 4\"", "\"\"", "nil"}) exec(code);
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_FALSE(session().form("fmOwner").visible());
    for (const std::string& line : screen.log) EXPECT_EQ(line, "hide fmOwner");
}

TEST_F(Exec, CommandsShowTheirDialogOnceWithTheHiddenOwner) {
    for (const char* name : {"fmExtract", "fmHelpHidden", "fmAbout"}) add(name);
    exec("\"2\"");
    exec("4");
    exec("5.0");
    EXPECT_EQ(story, (std::vector<std::string>{"fmExtract of fmOwner", "fmHelpHidden of fmOwner",
                                               "fmAbout of fmOwner"}));
}

TEST_F(Exec, AFailureOfACommandStaysInItsEvent) {
    add("fmAbout");
    session().form<Probe>("fmAbout").fails = true;
    exec("\"5\"");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(screen.log.back(), "failure 1234: broken");

    session().registerForm("fmHelpHidden", [](Session&) -> std::unique_ptr<forms::Form> {
        throw basic::Error(77, "can't be made");
    });
    exec("\"4\"");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(screen.log.back(), "failure 77: can't be made");
}

TEST_F(Exec, AFailedSetUpEndsInOneBox) {
    available.clear();
    exec("\"1\"");
    EXPECT_EQ(onlyBox(), "Erreur 91");
    object->Exec("no document");
    EXPECT_EQ(onlyBox(), "Erreur 424");
    available.insert("VL.Application");

    std::filesystem::create_symlink("nowhere", folder.file("unreadable.lng"));
    exec("\"1\"");
    EXPECT_EQ(onlyBox(), "Erreur 53");
    std::filesystem::remove(folder.file("Vorlane.ini"));
    exec("\"1\"");
    EXPECT_EQ(onlyBox(), "Erreur 53");
    platform.registry.clear();
    exec("\"1\"");
    EXPECT_EQ(onlyBox(), "Erreur 53") << "without an install folder the settings lie nowhere";
    EXPECT_EQ(session().IniFile, "/Vorlane.ini");
    EXPECT_EQ(screen.log.size(), 5U) << "boxes and nothing else";
}

TEST_F(Exec, IsTheOneMemberByName) {
    lisp.eval("(setq ZOL101 \"6\")");
    host::Arguments arguments{document};
    EXPECT_TRUE(object->call("exec", arguments).isEmpty());
    EXPECT_EQ(session().CmdCode, "6");
    EXPECT_EQ(errorOf([&] { object->invoke("Execute", {1}); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { object->invoke("Exec"); }), 450);
}

TEST_F(Exec, TheEndOfTheObjectSavesAndDrops) {
    exec("\"6\"");
    for (const char* name : {"fmOwner", "fmAttFormat", "fmLabels", "fmParamIns", "fmReplace", "fmExtract",
                             "fmReInsert", "fmVnMessage", "fmHelp", "fmAttSet", "fmHelpHidden", "fmAbout"}) {
        session().dropForm(name);
        add(name);
        session().form(name);
    }
    session().VTable[21][0] = "n° ";
    object.reset();
    EXPECT_EQ(story,
              (std::vector<std::string>{"~fmAttFormat", "~fmLabels", "~fmParamIns", "~fmReplace",
                                        "~fmExtract", "~fmReInsert", "~fmVnMessage", "~fmHelp", "~fmOwner"}));
    const std::string saved = folder.read("Vorlane.ini");
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 156);
    EXPECT_TRUE(saved.starts_with("Lng=English\r\nV_0_1= m\r\nV_30_4=last\r\nV_0_0=\r\nV_0_2=\r\n")) << saved;
    EXPECT_NE(saved.find("\r\nV_21_0=n\xB0 \r\n"), std::string::npos) << "in the system's code page";
    EXPECT_EQ(session().VTable[21][0], "n° ") << "the public variables stay";

    // Errors are ignored on the way: the dialogs go though nothing can be saved.
    object = component.createVnObj0100();
    session().form("fmHelp");
    std::filesystem::remove(folder.file("Vorlane.ini"));
    object.reset();
    EXPECT_EQ(story.size(), 10U);
    EXPECT_FALSE(std::filesystem::exists(folder.file("Vorlane.ini")));
}

}  // namespace
