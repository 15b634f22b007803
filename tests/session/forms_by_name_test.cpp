#include "forms/form.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

using session::Session;

std::vector<std::string> story;

/// Asks, as it is initialised, for itself and for another dialog.
class Probe : public forms::Form {
  public:
    Probe(Session& session, const char* name, const char* other)
        : Form(name, "", ""), session_(session), other_(other) {}
    ~Probe() override { story.push_back("~" + name()); }

  protected:
    void Form_Initialize() override {
        story.push_back(name());
        EXPECT_EQ(&session_.form(name()), this);
        session_.form(other_);
    }

  private:
    Session& session_;
    const char* other_;
};

struct FormsByName : testing::Test, fakes::SessionWorld {
    FormsByName() { story.clear(); }
    void add(const char* name, const char* other) {
        session.registerForm(name, [=](Session& s) { return std::make_unique<Probe>(s, name, other); });
    }
};

TEST_F(FormsByName, ADialogIsMadeAtItsFirstUseAndDroppedByName) {
    add("fmFirst", "fmSecond");
    add("fmSecond", "fmFirst");
    forms::Form& first = session.form("fmFirst");
    EXPECT_EQ(&session.form<Probe>("fmfirst"), &first);
    session.dropForm("fmFirst");
    session.form("fmFirst");
    EXPECT_EQ(story, (std::vector<std::string>{"fmFirst", "fmSecond", "~fmFirst", "fmFirst"}));

    add("fmBad", "fmNone");
    for (int time = 1; time <= 2; ++time)  // nothing half made stays
        EXPECT_EQ(fakes::errorOf([&] { session.form("fmBad"); }), basic::kObjectNotSet);
}

}  // namespace
