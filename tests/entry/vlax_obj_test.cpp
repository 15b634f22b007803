#include "entry/vlax_obj.h"

#include "desk/lisp/interpreter.h"
#include "tests/fakes/fake_lisp.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace {

using basic::Variant;
using entry::VlaxObj;
using fakes::errorOf;

struct Bridge : testing::Test, fakes::SessionWorld {
    Bridge() { session.AcadDoc = lisp.document(); }
    fakes::FakeLisp lisp;
};

TEST_F(Bridge, NumberedNamesServeUpToNineteen) {
    lisp.symbols["ZOL101"] = "1";
    EXPECT_EQ(entry::ReadLispCommand(session, "ZOL101"), "1");
    EXPECT_EQ(lisp.requested, std::vector<std::string>{"VL.Application"});

    for (const int last : {1, 19}) {
        lisp.requested.clear();
        lisp.available = {"VL.Application." + std::to_string(last)};
        EXPECT_EQ(entry::ReadLispCommand(session, "ZOL101"), "1");
        EXPECT_EQ(lisp.requested.size(), 1U + last);
        EXPECT_EQ(lisp.requested.back(), *lisp.available.begin());
    }

    lisp.requested.clear();
    lisp.available = {"VL.Application.20"};
    VlaxObj bridge(session);
    EXPECT_EQ(lisp.requested.size(), 21U) << "found at the last try, too late for its functions";
    EXPECT_EQ(errorOf([&] { bridge.EvalLispExpression("1"); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { bridge.SetLispSymbol("X", 1); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { bridge.NullifySymbol("X"); }), basic::kObjectNotSet);
    bridge.NullifySymbol();
}

TEST_F(Bridge, OnlyEvaluationSwallowsItsErrors) {
    VlaxObj bridge(session);
    lisp.failing = "eval";
    EXPECT_EQ(bridge.EvalLispExpression("(boom)").text(), "");
    bridge.NullifySymbol("A", std::string("B"));
    EXPECT_EQ(lisp.called,
              (std::vector<std::string>{"read (boom)", "eval (boom)", "read (setq A nil)",
                                        "eval (setq A nil)", "read (setq B nil)", "eval (setq B nil)"}));
    EXPECT_EQ(errorOf([&] { bridge.GetLispSymbol("A"); }), fakes::FakeLisp::kLispError);
    EXPECT_EQ(errorOf([&] { bridge.GetLispList("A"); }), fakes::FakeLisp::kLispError);
    lisp.failing = "read";
    EXPECT_EQ(errorOf([&] { bridge.EvalLispExpression("("); }), fakes::FakeLisp::kLispError);
    lisp.failing = "set";
    EXPECT_EQ(errorOf([&] { bridge.SetLispSymbol("A", 1); }), fakes::FakeLisp::kLispError);
}

/// The bridge over the desk's own Lisp.
struct DeskBridge : testing::Test, fakes::SessionWorld {
    DeskBridge() {
        auto application = std::make_shared<fakes::FakeMembers>();
        application->members["GetInterfaceObject"] = [this](host::Arguments& a) -> Variant {
            auto made = lisp.createObject(a.at(0).text());
            if (!made) throw basic::Error(429, "no such class");
            return made;
        };
        auto document = std::make_shared<fakes::FakeMembers>();
        document->members["Application"] = [application](auto&) -> Variant { return application; };
        session.AcadDoc = document;
    }
    std::ostringstream output;
    lisp::Interpreter lisp{output};
};

TEST_F(DeskBridge, ValuesGoToLispAndComeBack) {
    VlaxObj bridge(session);
    bridge.SetLispSymbol("texte", "été");
    bridge.SetLispSymbol("tout", basic::Array{1, "deux", 3.5});
    EXPECT_EQ(bridge.GetLispSymbol("TEXTE").text(), "été");
    EXPECT_EQ(bridge.EvalLispExpression("(strcat (cadr tout) (itoa (length tout)))").text(), "deux3")
        << "an array is a plain list in Lisp";
    EXPECT_TRUE(bridge.GetLispSymbol("translate-variant").isEmpty());
    const Variant list = bridge.GetLispList("tout");
    ASSERT_EQ(list.array().size(), 3U);
    EXPECT_EQ(list.array()[1].text(), "deux");
    EXPECT_EQ(list.array()[2].number(), 3.5);
    EXPECT_TRUE(bridge.GetLispList("unset").array().empty());
    EXPECT_EQ(bridge.EvalLispExpression("(car 1)").text(), "");
    EXPECT_NE(errorOf([&] { bridge.EvalLispExpression("(+ 1"); }), 0);
    bridge.NullifySymbol("texte", "tout");
    EXPECT_TRUE(bridge.GetLispSymbol("tout").isEmpty());
}

}  // namespace
