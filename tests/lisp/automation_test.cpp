#include "desk/lisp/automation.h"

#include "tests/lisp/evaluation.h"
#include "tests/lisp/fake_object.h"

namespace {

using basic::Variant;
using host::asObject;

constexpr const char* kTranslateVariant =
    "(defun translate-variant (data) (cond ((= (type data) 'list) (mapcar 'translate-variant data)) "
    "((= (type data) 'variant) (translate-variant (vlax-variant-value data))) ((= (type data) 'safearray) "
    "(mapcar 'translate-variant (vlax-safearray->list data))) (t data)))";

/// The functions of Lisp as an automation client reaches them.
struct Functions : testing::Test, Session {
    host::ObjectPtr application = lisp.createObject("vl.application");
    host::ObjectPtr functions = asObject(asObject(application->get("ActiveDocument"))->get("Functions"));

    Variant funcall(const char* name, host::Arguments arguments) {
        return asObject(functions->invoke("Item", {name}))->invoke("funcall", std::move(arguments));
    }
    Variant evaluated(const char* text) { return funcall("eval", {funcall("read", {text})}); }
    void setSymbol(const char* symbol, const Variant& value) {
        funcall("set", {funcall("read", {symbol}), value});
        evaluated(kTranslateVariant);
        evaluated(("(setq " + std::string(symbol) + "(translate-variant " + symbol + "))").c_str());
        evaluated("(setq translate-variant nil)");
    }
    std::string failureOf(const char* name, host::Arguments arguments) {
        try {
            funcall(name, std::move(arguments));
            return "no failure";
        } catch (const basic::Error& error) {
            return error.description();
        }
    }
};

TEST_F(Functions, ValuesComeOutAsVariants) {
    EXPECT_EQ(evaluated("(strcat \"a\" \"é\")").text(), "aé");
    EXPECT_TRUE(evaluated("(= 1 1)").boolean());
    EXPECT_FALSE(evaluated(":vlax-false").boolean());
    EXPECT_TRUE(evaluated("never-set").isEmpty());
    EXPECT_EQ(evaluated("(vlax-make-variant 7)").integer(), 7);
    EXPECT_EQ(evaluated("(vlax-safearray-fill (vlax-make-safearray 5 '(0 . 1)) '(1 2))").doubles(),
              (basic::Doubles{1, 2}));
}

TEST_F(Functions, ListsAndFormsSurviveTheRoundTrip) {
    const Variant list = evaluated("'(10 (20 x) \"c\")");
    ASSERT_TRUE(list.is(Variant::Kind::Object));
    EXPECT_THROW(asObject(list)->get("Count"), basic::Error);
    EXPECT_EQ(funcall("length", {list}).integer(), 3);
    EXPECT_EQ(funcall("nth", {0, list}).integer(), 10);
    EXPECT_EQ(funcall("nth", {2, list, basic::Missing{}}).text(), "c");
    EXPECT_EQ(funcall("vl-prin1-to-string", {list}).text(), "(10 (20 X) \"c\")");
    EXPECT_EQ(funcall("apply", {evaluated("car"), funcall("list", {list})}).integer(), 10);
}

TEST_F(Functions, SetUnwrapsWhatAutomationWrapped) {
    const std::vector<std::pair<Variant, const char*>> cases{
        {basic::Array{Variant("x"), Variant(2), Variant(0.5), basic::Array{Variant(true), Variant()}},
         "(\"x\" 2 0.5 (:VLAX-TRUE nil))"},
        {basic::Doubles{1, 2.5}, "(1.0 2.5)"},
        {basic::Shorts{100, 2}, "(100 2)"},
        {true, ":VLAX-TRUE"},
        {evaluated("'(1 (b))"), "(1 (B))"},
        {std::make_shared<FakeObject>(), "#<VLA-OBJECT>"},
        {Variant(), "nil"},
    };
    for (const auto& [value, shown] : cases) {
        setSymbol("a", value);
        EXPECT_EQ(show("a"), shown);
    }
    // Until it is unwrapped, an array is a variant that holds a safe array.
    funcall("set", {funcall("read", {"raw"}), basic::Array{Variant(1)}});
    EXPECT_EQ(show("(list (type raw) (type (vlax-variant-value raw)))"), "(VARIANT SAFEARRAY)");
}

TEST_F(Functions, FailuresReachTheCaller) {
    EXPECT_EQ(failureOf("read", {"(a"}), "malformed list on input");
    EXPECT_EQ(failureOf("eval", {funcall("read", {"(car 1)"})}), "bad argument type: consp: 1");
    EXPECT_EQ(failureOf("setq", {}), "no function definition: SETQ");
    EXPECT_THROW(application->get("Documents"), basic::Error);
}

TEST_F(Functions, FunctionsOfTheUsersOwnAreReached) {
    lisp.eval("(defun twice (x) (* 2 x))");
    const auto twice = asObject(functions->invoke("Item", {"Twice"}));
    EXPECT_EQ(twice->invoke("FUNCALL", {21}).integer(), 42);
    lisp.eval("(defun twice (x) (list x))");  // what the name means counts at the call
    EXPECT_TRUE(twice->invoke("funcall", {21}).is(Variant::Kind::Object));
}

TEST(LispApplication, OutlivesItsInterpreterWithAnError) {
    std::ostringstream output;
    auto lisp = std::make_unique<lisp::Interpreter>(output);
    const auto application = lisp->createObject("VL.Application");
    const auto functions = asObject(asObject(application->get("ActiveDocument"))->get("Functions"));
    const auto read = asObject(functions->invoke("Item", {"read"}));
    const Variant form = read->invoke("funcall", {"(a b)"});
    lisp.reset();
    EXPECT_THROW(read->invoke("funcall", {"a"}), lisp::LispError);
    EXPECT_THROW(functions->invoke("Item", {"read"}), lisp::LispError);
}

}  // namespace
