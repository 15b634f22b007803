#include "tests/lisp/evaluation.h"

namespace {

TEST(Evaluator, EvaluatesForms) {
    expectRows({
        {"(setq a 1 b (+ a 1))", "2"},
        {"(setq a)", "error: too few arguments"},
        {"(setq \"a\" 1)", "error: bad argument type: symbolp: \"a\""},
        {"(set (read \"a\") 'b) a", "B"},
        {"(setq t 1)", "error: assignment to protected symbol: T"},
        {"(setq nil 1)", "error: bad argument type: symbolp: nil"},
        {"(if 0 1 2)", "1"},
        {"(if nil 2 3 4)", "error: too many arguments"},
        {"(cond ((= 1 2) 'a) ((+ 1 1)) (t 'c))", "2"},
        {"(and 1 nil (car 1))", "nil"},
        {"(or nil 2 (car 1))", "T"},
        {"(setq i 0) (while (< i 5) (setq i (1+ i)))", "5"},
        {"(setq i 0) (repeat 3 (setq i (+ i 2)))", "6"},
        {"(repeat 'a 1)", "error: bad argument type: fixnump: A"},
        {"(setq x 9 s 0) (foreach x '(1 2 3) (setq s (+ s x))) (list s x)", "(6 9)"},
    });
}

TEST(Evaluator, CallsFunctions) {
    expectRows({
        {"(defun F(x)(* x x))(f 4)", "16"},
        {"(defun f (x) x) (f)", "error: too few arguments"},
        {"(defun f (x) x) (f 1 2)", "error: too many arguments"},
        {"(defun f (x 1) x)", "error: bad argument type: symbolp: 1"},
        {"(defun f (t) t)", "error: assignment to protected symbol: T"},
        {"((lambda (x y) (- x y)) 5 3)", "2"},
        {"(setq g '(lambda (x) (1+ x))) (g 1)", "2"},
        {"(setq first car) (first '(1 2))", "1"},
        {"(defun fact (n) (if (< n 2) 1 (* n (fact (1- n))))) (fact 10)", "3628800"},
        {"(nowhere 1)", "error: no function definition: NOWHERE"},
        {"(5 1)", "error: bad function: 5"},
        {"(setq x 5) (x)", "error: no function definition: X"},
        {"(car '(1) 2)", "error: too many arguments"},
        {"(+ 1 . 2)", "error: bad argument list"},
    });
}

TEST(Evaluator, BindsDynamicallyAndPutsValuesBack) {
    expectRows({
        {"(setq x 1) (defun f (x / y) (setq y 2 x (+ x y)) (g)) (defun g () (list x y)) (list (f 5) x y)",
         "((7 2) 1 nil)"},
        {"(setq x 1) (defun f (x) (car 5)) (vl-catch-all-apply 'f '(2)) x", "1"},
        {"(setq x 1) (vl-catch-all-apply '(lambda () (foreach x '(1 2) (car 5)))) x", "1"},
        // A function may redefine itself while it runs.
        {"(defun f () (setq f nil) (list 1 2)) (list (f) f)", "((1 2) nil)"},
    });
}

TEST(Evaluator, AppliesAndMaps) {
    expectRows({
        {"(apply '+ '(1 2 3))", "6"},
        {"(apply 'quote '(1))", "error: no function definition: QUOTE"},
        {"(mapcar '+ '(1 2 3) '(10 20))", "(11 22)"},
        {"(mapcar 'car 5)", "error: bad argument type: listp: 5"},
        {"(vl-remove-if-not 'minusp '(1 -1 2))", "(-1)"},
    });
}

TEST(Evaluator, TellsTypes) {
    expectRows({
        {"(mapcar 'type (list 1 1.0 \"\" 'a '(1) nil car (lambda ())))",
         "(INT REAL STR SYM LIST nil SUBR USUBR)"},
        {"(mapcar 'type (list quote t :vlax-true (vlax-make-variant) (vlax-make-safearray 5 '(0 . 1))))",
         "(SUBR SYM SYM VARIANT SAFEARRAY)"},
        {"(type (vl-catch-all-apply 'car '(1)))", "VL-CATCH-ALL-APPLY-ERROR"},
        {"(lambda (x) x)", "#<USUBR LAMBDA>"},
        {"(defun f ()) f", "#<USUBR F>"},
    });
}

TEST(Evaluator, CatchesFailures) {
    expectRows({
        {"(vl-catch-all-error-message (vl-catch-all-apply '/ '(1 0)))", "\"divide by zero\""},
        {"(vl-catch-all-error-message 5)", "error: bad argument type: VL-CATCH-ALL-APPLY-ERROR: 5"},
        {"(exit)", "error: quit / exit abort"},
        {"(vl-catch-all-error-message (vl-catch-all-apply 'quit))", "\"quit / exit abort\""},
    });
}

TEST(Evaluator, StopsRunawayRecursionAndGoesOn) {
    Session session;
    constexpr const char* kLimit = "error: internal stack limit reached";
    EXPECT_EQ(session.show("(defun down (n) (+ 1 (down n))) (down 1)"), kLimit);
    EXPECT_EQ(session.show("(defun f (x) (mapcar 'f (list x))) (f 1)"), kLimit);
    EXPECT_EQ(session.show("(defun a (n) (if (= n 0) 0 (1+ (a (1- n))))) (a 1000)"), "1000");
    EXPECT_EQ(session.show("(setq l nil) (repeat 100000 (setq l (list l))) (equal l (read \"1\"))"), "nil");
    EXPECT_EQ(session.show("(setq m nil) (repeat 100000 (setq m (list m))) (equal l m)"), kLimit);
    EXPECT_NE(session.show("l").find("..."), std::string::npos);
    EXPECT_EQ(session.show("(setq l nil m nil)"), "nil");  // freeing them doesn't recurse
    EXPECT_EQ(session.show(std::string(1'000'000, '(')), kLimit);
    EXPECT_EQ(session.show("(setq l nil) (repeat 200000 (setq l (cons 1 l))) (length l)"), "200000");
}

TEST(Evaluator, FreesFormsThatHoldTheirOwnSymbol) {
    std::weak_ptr<const lisp::Symbol> watched;
    {
        Session session;
        session.lisp.eval("(setq watched '(watched)) (defun loop () (loop))");
        watched = session.lisp.symbols().find("watched");
        EXPECT_FALSE(watched.expired());
    }
    EXPECT_TRUE(watched.expired());
}

TEST(Evaluator, PrintsAsTheCommandLineDoes) {
    Session session;
    EXPECT_EQ(session.show(R"((princ "a\"b") (prin1 "a\"b") (print 'x) (terpri) (prompt "p"))"), "nil");
    EXPECT_EQ(session.output.str(), "a\"b\"a\\\"b\"\nX \np");
    EXPECT_EQ(session.show("(princ)"), "");
    EXPECT_EQ(session.show("(prompt 1)"), "error: bad argument type: stringp: 1");
    // A message shows no more than the beginning of a long value.
    EXPECT_LT(session.show("(setq l nil) (repeat 9999 (setq l (cons 1 l))) (1+ l)").size(), 300U);
}

}  // namespace
