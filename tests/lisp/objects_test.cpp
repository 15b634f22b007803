#include "tests/lisp/evaluation.h"
#include "tests/lisp/fake_object.h"

namespace {

using basic::Variant;

TEST(Variants, WrapAndUnwrap) {
    expectRows({
        {"(mapcar 'vlax-variant-type (mapcar 'vlax-make-variant (list nil 1 1.5 \"a\" :vlax-true)))",
         "(0 3 5 8 11)"},
        {"(mapcar 'vlax-variant-value (mapcar 'vlax-make-variant (list nil 1 1.5 \"a\" :vlax-false)))",
         "(nil 1 1.5 \"a\" :VLAX-FALSE)"},
        {"(vlax-make-variant 2.5 vlax-vbInteger)", "#<variant 2 2>"},
        {"(vlax-make-variant \"3.5\" vlax-vbDouble)", "#<variant 5 3.5>"},
        {"(vlax-make-variant 70000 vlax-vbInteger)", "error: Automation Error. Overflow"},
        {"(vlax-make-variant \"x\" vlax-vbLong)", "error: Automation Error. Type mismatch"},
        {"(vlax-variant-value 1)", "error: bad argument type: variantp: 1"},
    });
}

TEST(Variants, SafeArraysHoldTheirType) {
    expectRows({
        {"(setq a (vlax-make-safearray vlax-vbDouble '(0 . 2))) (vlax-safearray-fill a '(1 2.5)) "
         "(vlax-safearray->list a)",
         "(1.0 2.5 0.0)"},
        {"(vlax-safearray->list (vlax-safearray-fill (vlax-make-safearray vlax-vbString '(1 . 2)) '(\"b\")))",
         "(\"b\" \"\")"},
        {"(mapcar 'vlax-variant-value (vlax-safearray->list (vlax-safearray-fill (vlax-make-safearray "
         "vlax-vbVariant '(0 . 1)) '(\"a\" 8))))",
         "(\"a\" 8)"},
        {"(vlax-safearray-fill (vlax-make-safearray vlax-vbLong '(0 . 0)) '(1 2))",
         "error: bad argument value: array size: (1 2)"},
        {"(vlax-make-safearray vlax-vbLong '(5 . 1))", "error: bad argument value: dimension: (5 . 1)"},
        {"(vlax-make-safearray vlax-vbLong '(0 . 1) '(0 . 1))", "error: safe arrays have one dimension here"},
        // A variant has an array of its own, so an array can't come to hold itself.
        {"(setq a (vlax-make-safearray vlax-vbVariant '(0 . 0))) (vlax-safearray-fill a (list a)) "
         "(vlax-variant-type (car (vlax-safearray->list (vlax-variant-value (car (vlax-safearray->list "
         "a))))))",
         "0"},
    });
}

/// An application whose one document has a property of every kind and some methods.
struct Host : testing::Test, Session {
    Host() {
        application->properties["ACTIVEDOCUMENT"] = document;
        auto& properties = document->properties;
        properties["NAME"] = "plan";
        properties["COUNT"] = std::int16_t{3};
        properties["VISIBLE"] = true;
        properties["POINT"] = basic::Doubles{1, 2.5, 0};
        properties["MIXED"] = basic::Array{Variant("a"), Variant(2), basic::Array{Variant(true)}};
        properties["NOTHING"] = host::ObjectPtr();
        document->members["Echo"] = [this](host::Arguments& arguments) {
            received = arguments;
            return arguments.empty() ? Variant() : arguments[0];
        };
        document->members["Bounds"] = [](host::Arguments& arguments) {
            arguments.at(0) = basic::Doubles{0, 0};
            arguments.at(1) = basic::Doubles{4, 5};
            return Variant();
        };
        document->members["Fail"] = [](host::Arguments&) -> Variant {
            throw basic::Error(-77, "Key not found");
        };
        lisp.setAcadObject(application);
        lisp.eval("(vl-load-com) (setq doc (vla-get-ActiveDocument (vlax-get-acad-object)))");
    }

    std::shared_ptr<FakeObject> application = std::make_shared<FakeObject>();
    std::shared_ptr<FakeObject> document = std::make_shared<FakeObject>();
    host::Arguments received;
};

TEST_F(Host, PropertiesComeWrappedOrPlain) {
    EXPECT_EQ(
        show("(list (vla-get-Name doc) (vla-get-count doc) (vla-get-visible doc) (vla-get-nothing doc))"),
        "(\"plan\" 3 :VLAX-TRUE nil)");
    EXPECT_EQ(show("(vlax-safearray->list (vlax-variant-value (vlax-get-property doc 'Point)))"),
              "(1.0 2.5 0.0)");
    EXPECT_EQ(show("(list (vlax-get doc 'Point) (vlax-get doc \"Visible\") (vlax-get doc 'Mixed))"),
              "((1.0 2.5 0.0) -1 (\"a\" 2 (-1)))");
    EXPECT_EQ(
        show("(mapcar 'vlax-variant-type (vlax-safearray->list (vlax-variant-value (vla-get-Mixed doc))))"),
        "(8 3 8204)");
    EXPECT_EQ(show("(vla-get-Color doc)").find("error: Automation Error. "), 0U);
    EXPECT_EQ(show("(vla-get-Name 5)"), "error: bad argument type: VLA-OBJECT: 5");
}

TEST_F(Host, PropertiesAreSet) {
    lisp.eval(
        "(vla-put-Name doc \"new\") (vlax-put-property doc 'Visible :vlax-false) (vlax-put doc 'Point '(1 2 "
        "3))");
    EXPECT_EQ(document->get("Name").text(), "new");
    EXPECT_FALSE(document->get("Visible").boolean());
    EXPECT_EQ(document->get("Point").doubles(), (basic::Doubles{1, 2, 3}));
    EXPECT_EQ(show("(vla-put-Name doc 'symbol)"), "error: bad argument type: variantp: SYMBOL");
}

TEST_F(Host, MethodsTakeEveryKindOfArgument) {
    lisp.eval("(setq codes (vlax-safearray-fill (vlax-make-safearray vlax-vbInteger '(0 . 1)) '(100 2)))");
    lisp.eval(
        "(vlax-invoke-method doc 'Echo 1 2.5 \"t\" T nil codes (vlax-make-variant codes) '(\"a\" 1) doc "
        "(vlax-make-variant 7 vlax-vbInteger))");
    using Kind = Variant::Kind;
    const std::vector<Kind> kinds = {Kind::Int32,   Kind::Double,     Kind::Text,       Kind::Boolean,
                                     Kind::Missing, Kind::ShortArray, Kind::ShortArray, Kind::VariantArray,
                                     Kind::Object,  Kind::Int16};
    ASSERT_EQ(received.size(), kinds.size());
    for (std::size_t i = 0; i < kinds.size(); ++i) EXPECT_EQ(received[i].kind(), kinds[i]) << i;
    EXPECT_EQ(received[5].shorts(), (basic::Shorts{100, 2}));
    EXPECT_EQ(received[8].object(), document);
    EXPECT_EQ(show("(vlax-invoke doc 'Echo '(1 2))"), "(1.0 2.0)");
    EXPECT_EQ(show("(vla-Echo doc 'undefined-function-object car)"),
              "error: bad argument type: variantp: #<SUBR CAR>");
}

TEST_F(Host, DeepNestingEndsInAnError) {
    lisp.eval("(repeat 60000 (setq l (list l \"x\")))");
    EXPECT_EQ(show("(vlax-invoke doc 'Echo l)"), "error: lists nested too deep for the host");
    lisp.eval("(repeat 100000 (setq f (eval (list 'lambda nil f)))) (setq f nil l nil)");
}

TEST_F(Host, OutArgumentsReachQuotedSymbols) {
    EXPECT_EQ(show("(vla-Bounds doc 'low 'high) (vlax-safearray->list (vlax-variant-value high))"),
              "(4.0 5.0)");
    EXPECT_EQ(show("(vlax-invoke doc 'Bounds 'low 'high) (list low high)"), "((0.0 0.0) (4.0 5.0))");
}

TEST_F(Host, CollectionsAreWalked) {
    document->elements = {Variant("a"), Variant(std::make_shared<FakeObject>()), Variant(3)};
    EXPECT_EQ(show("(setq l nil x 'kept) (vlax-for x doc (setq l (cons x l))) (list l x)"),
              "((3 #<VLA-OBJECT> \"a\") KEPT)");
}

TEST_F(Host, FailuresKeepTheirNumberAndText) {
    EXPECT_EQ(show("(vl-catch-all-error-message (vl-catch-all-apply 'vla-Fail (list doc)))"),
              "\"Automation Error. Key not found\"");
    try {
        lisp.eval("(vlax-invoke doc 'Fail)");
        ADD_FAILURE();
    } catch (const basic::Error& error) {
        EXPECT_EQ(error.number(), -77);
    }
}

TEST_F(Host, CreatedObjectsGoWhenReleased) {
    std::weak_ptr<FakeObject> watched;
    lisp.registerObjectFactory("Some.Class", [&watched] {
        auto made = std::make_shared<FakeObject>();
        watched = made;
        return made;
    });
    EXPECT_EQ(show("(setq o (vlax-create-object \"some.class\"))"), "#<VLA-OBJECT>");
    EXPECT_EQ(show("(setq p o) p"), "#<VLA-OBJECT>");
    EXPECT_FALSE(watched.expired());
    EXPECT_EQ(show("(vlax-release-object o) (list o p)"), "(#<VLA-OBJECT released> #<VLA-OBJECT released>)");
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(show("(vla-get-Name o)"), "error: object was released: VLA-GET-NAME");
    EXPECT_EQ(show("(vlax-create-object \"No.Class\")"), "nil");
}

}  // namespace
