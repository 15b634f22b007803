#include "tests/fakes/temp_folder.h"
#include "tests/lisp/evaluation.h"
#include "tests/lisp/fake_object.h"

namespace {

using basic::Variant;

/// A component that notes the command code which it finds, and its own end.
class Component : public FakeObject {
  public:
    explicit Component(std::vector<std::string>& log) : log_(log) {}
    ~Component() override { log_.push_back("released"); }

  private:
    std::vector<std::string>& log_;
};

struct Commands : testing::Test, Session {
    Commands() {
        application->properties["ACTIVEDOCUMENT"] = document;
        application->members["GetInterfaceObject"] = [this](host::Arguments& arguments) -> Variant {
            if (!isInstalled) throw basic::Error(429, "Problem in loading application");
            return lisp.createObject(arguments.at(0).text());
        };
        lisp.registerObjectFactory("Vorlane.VnObj0100", [this] {
            auto component = std::make_shared<Component>(log);
            component->members["Exec"] = [this](host::Arguments& arguments) -> Variant {
                EXPECT_EQ(arguments.at(0).object(), document);
                log.push_back("Exec " + *lisp.symbols().find("ZOL101")->value.text());
                if (isFailing) throw basic::Error(5, "no good");
                return {};
            };
            return component;
        });
        lisp.setAcadObject(application);
        lisp.setSupportFolders({VORLANE_ROOT "/resources"});
        EXPECT_EQ(show("(load \"vorlane\")"), "");
    }

    bool isInstalled = true;
    bool isFailing = false;
    std::vector<std::string> log;
    std::shared_ptr<FakeObject> application = std::make_shared<FakeObject>();
    std::shared_ptr<FakeObject> document = std::make_shared<FakeObject>();
};

using Log = std::vector<std::string>;

TEST_F(Commands, HandTheirCodeAndTheDocumentToTheComponent) {
    const char* names[] = {"VNLABEL", "VNREPLACE", "VNEXTRACT", "VNINSERT", "VNHELP", "VNABOUT"};
    for (int code = 0; code < 6; ++code) {
        log.clear();
        ASSERT_TRUE(lisp.hasCommand(names[code]));
        EXPECT_EQ(lisp::printed(lisp.command(names[code]), lisp::Style::Readable), "");
        EXPECT_EQ(log, (Log{"Exec " + std::to_string(code), "released"}));
    }
    EXPECT_EQ(output.str(), "");
    EXPECT_THROW(lisp.command("VNOTHER"), lisp::LispError);
}

TEST_F(Commands, TellFailuresAndReleaseTheComponent) {
    isFailing = true;
    lisp.command("VNREPLACE");
    EXPECT_EQ(log, (Log{"Exec 1", "released"}));
    isInstalled = false;
    lisp.command("vnreplace");
    EXPECT_EQ(log.size(), 2U);
    EXPECT_EQ(output.str(),
              "\nVorlane: Automation Error. no good\n"
              "\nVorlane: Automation Error. Problem in loading application\n");
}

struct Loading : testing::Test, Session {
    fakes::TempFolder folder;
};

TEST_F(Loading, FindsFilesInTheSupportFolders) {
    folder.write("a.lsp", "(setq a 1)\r\n(list a \"\xC3\xA9\")");
    folder.write("b", "\xEF\xBB\xBF(strcat \"\xE9\")");  // marked as UTF-8, but it is in the code page
    EXPECT_EQ(show("(load \"a\")"), "error: LOAD failed: \"a\"");
    lisp.setSupportFolders({"/nowhere", folder.path()});
    EXPECT_EQ(show("(load \"a\")"), "(1 \"é\")");
    EXPECT_EQ(show("(load \"b\")"), "\"é\"");
    EXPECT_EQ(show("(load \"c\" 'absent)"), "ABSENT");
    EXPECT_EQ(show("(load \"c\" '(lambda () (+ 1 1)))"), "(LAMBDA nil (+ 1 1))");
    EXPECT_EQ(show("(load \"c\" (lambda () (+ 1 1)))"), "2");
}

TEST_F(Loading, NamesFileAndLineOfWhatItCantRead) {
    lisp.setSupportFolders({folder.path()});
    folder.write("open.lsp", "(setq done 1)\n\n; a remark\n(defun f ()\n  (car '(1))\n");
    EXPECT_EQ(show("(load \"open\")"), "error: open.lsp:4: malformed list on input");
    EXPECT_EQ(show("done"), "1");
    folder.write("extra.lsp", "(setq a 1))\n");
    EXPECT_EQ(show("(load \"extra\")"), "error: extra.lsp:1: extra right paren on input");
}

}  // namespace
