#include "forms/form.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using fakes::errorOf;
using session::Session;

std::vector<std::string> story;

/// Asks, as it is initialised, for itself and for the dialog named in its tag; "fail" makes it fail.
class Probe : public forms::Form {
  public:
    Probe(Session& session, const char* name, const char* tag) : Form(name, tag, ""), session_(session) {}
    ~Probe() override { story.push_back("~" + name()); }

  protected:
    void Form_Initialize() override {
        story.push_back(name());
        if (tag() == "fail") throw basic::Error(1000, "no");
        EXPECT_EQ(&session_.form(name()), this);
        if (!tag().empty()) session_.form(tag());
    }

  private:
    Session& session_;
};

struct FormsByName : testing::Test, fakes::SessionWorld {
    FormsByName() { story.clear(); }
    void add(const char* name, const char* tag = "") {
        session.registerForm(name, [=](Session& s) { return std::make_unique<Probe>(s, name, tag); });
    }
};

TEST_F(FormsByName, ADialogIsMadeAtItsFirstUseAndDroppedByName) {
    add("fmFirst", "fmSecond");
    add("fmSecond", "fmFirst");
    forms::Form& first = session.form("fmFirst");
    EXPECT_EQ(&session.form<Probe>("fmfirst"), &first);
    session.dropForm("fmFirst");
    EXPECT_FALSE(session.hasForm("fmFirst"));
    session.form("fmFirst");
    EXPECT_EQ(story, (std::vector<std::string>{"fmFirst", "fmSecond", "~fmFirst", "fmFirst"}));
}

TEST_F(FormsByName, AFailedInitialisationLeavesNoDialog) {
    add("fmBad", "fail");
    EXPECT_EQ(errorOf([&] { session.form("fmBad"); }), 1000);
    EXPECT_FALSE(session.hasForm("fmBad"));
    EXPECT_EQ(errorOf([&] { session.form("fmNone"); }), basic::kObjectNotSet);
}

}  // namespace
