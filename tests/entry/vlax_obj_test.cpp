#include "entry/vlax_obj.h"

#include "tests/entry/lisp_world.h"
#include "tests/fakes/session_world.h"

namespace {

using basic::Variant;
using entry::VlaxObj;
using fakes::errorOf;

struct Bridge : testing::Test, fakes::SessionWorld, LispWorld {
    Bridge() { session.AcadDoc = document; }
};

TEST_F(Bridge, NumberedNamesServeUpToNineteen) {
    lisp.eval("(setq ZOL101 \"1\")");
    EXPECT_EQ(entry::ReadLispCommand(session, "ZOL101"), "1");
    EXPECT_EQ(requested, std::vector<std::string>{"VL.Application"});

    for (const std::size_t last : {1, 19}) {
        requested.clear();
        available = {"VL.Application." + std::to_string(last)};
        EXPECT_EQ(entry::ReadLispCommand(session, "ZOL101"), "1");
        EXPECT_EQ(requested.size(), 1 + last);
        EXPECT_EQ(requested.back(), *available.begin());
    }

    requested.clear();
    available = {"VL.Application.20"};
    VlaxObj bridge(session);
    EXPECT_EQ(requested.size(), 21U) << "found at the last try, too late for its functions";
    EXPECT_EQ(errorOf([&] { bridge.EvalLispExpression("1"); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { bridge.SetLispSymbol("X", 1); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { bridge.NullifySymbol("X"); }), basic::kObjectNotSet);
}

TEST_F(Bridge, ValuesGoToLispAndComeBack) {
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
    EXPECT_EQ(bridge.EvalLispExpression("(car 1)").text(), "") << "only evaluation swallows its errors";
    EXPECT_NE(errorOf([&] { bridge.EvalLispExpression("(+ 1"); }), 0);
    bridge.NullifySymbol("texte", std::string("tout"));
    EXPECT_TRUE(bridge.GetLispSymbol("texte").isEmpty());
    EXPECT_TRUE(bridge.GetLispSymbol("tout").isEmpty());
}

}  // namespace
