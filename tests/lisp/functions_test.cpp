#include "tests/lisp/evaluation.h"

namespace {

TEST(ListFunctions, TakeApartAndBuild) {
    expectRows({
        {"(car nil)", "nil"},
        {"(car 5)", "error: bad argument type: consp: 5"},
        {"(mapcar '(lambda (f) (apply f '(((1 (2)) 3 (4 5))))) '(caar cadr cdar cddr caddr))",
         "(1 3 ((2)) ((4 5)) (4 5))"},
        {"(append '(1) 2)", "(1 . 2)"},
        {"(append 1 '(2))", "error: bad argument type: listp: 1"},
        {"(length '(1 . 2))", "error: bad argument type: listp: (1 . 2)"},
        {"(list (nth 0 '(a b)) (nth 2 '(a b)))", "(A nil)"},
        {"(nth -1 '(a b))", "error: bad argument value: positive: -1"},
    });
}

TEST(ListFunctions, SearchAndSort) {
    expectRows({
        {"(member '(2) '(1 (2) 3))", "((2) 3)"},
        {"(assoc 2 '((1 . a) (2 . b)))", "(2 . B)"},
        {"(assoc 1 '(5))", "error: bad argument type: consp: 5"},
        {"(subst 'x 'a '(a b a (a)))", "(X B X (A))"},
        {"(vl-remove 1 '(1 2 1.0 3))", "(2 3)"},
        {"(vl-sort '(3 1 2 1) '<)", "(1 1 2 3)"},
        {"(vl-sort '((2 a) (1 b) (2 c) (1 d)) '(lambda (x y) (< (car x) (car y))))",
         "((1 B) (1 D) (2 A) (2 C))"},
        {"(length (vl-sort '(3 1 2 5 4) '(lambda (a b) t)))", "5"},  // an order that contradicts itself
        {"(vl-sort '(1 a) '<)", "error: bad argument type: numberp: A"},
    });
}

TEST(ComparisonFunctions, CompareAsTheHost) {
    expectRows({
        {"(list (= 1 1.0) (= \"a\" \"a\") (= \"a\" \"A\") (= 'a 'A) (= nil nil) (= 1 \"1\") (= '(1) '(1)))",
         "(T T nil T T nil nil)"},
        {"(list (= 1 1 1) (= 1 1 2) (= 5))", "(T nil T)"},
        {"(list (/= 1 2) (/= 1 2 1) (/= 1 1) (/= 'a 'b))", "(T T nil T)"},
        {"(list (< 1 2 3) (< 1 3 2) (<= 1 1 2) (> 3 2.5) (>= 3 3 1) (< \"a\" \"b\"))", "(T nil T T T T)"},
        {"(< 1 nil)", "error: bad argument type: numberp: nil"},
        {"(< \"a\" 1)", "error: bad argument type: numberp: \"a\""},
        {"(setq l '(1)) (list (eq l l) (eq '(1) '(1)) (eq \"a\" \"a\") (eq 1 1) (eq 1 1.0))",
         "(T nil T T nil)"},
        {"(list (equal '(1 (2.0)) '(1.0 (2))) (equal \"a\" \"A\") (equal 1 '(1)))", "(T nil nil)"},
        {"(list (equal 1.0 1.01) (equal 1.0 1.01 0.1) (equal '(1 2) '(1.05 2) 0.1) (equal 1 \"1\" 9))",
         "(nil T T nil)"},
    });
}

TEST(NumberFunctions, Calculate) {
    expectRows({
        {"(list (+) (+ 1) (+ 1 2.5) (- 5) (- 5 1 1) (* 2 3) (* 2 0.5))", "(0 1 3.5 -5 3 6 1.0)"},
        {"(list (/ 7 2) (/ 7 2.0) (/ -7 2) (/ 24 2 3) (/ 5))", "(3 3.5 -3 4 5)"},
        {"(list (rem 7 3) (rem -7 3) (rem 7.5 2) (rem 26 7 2))", "(1 -1 1.5 1)"},
        {"(/ 1.0 0)", "error: divide by zero"},
        {"(+ 1 \"2\")", "error: bad argument type: numberp: \"2\""},
        {"(list (+ 2147483647 1) (* 65536 65536) (1- -2147483648) (/ -2147483648 -1) (abs -2147483648))",
         "(-2147483648 0 2147483647 -2147483648 -2147483648)"},  // integers wrap around
        {"(list (1+ 1) (1- 1.5) (abs -2) (abs -2.5) (min 1 2.0) (max 1 2 3))", "(2 0.5 2 2.5 1.0 3)"},
        {"(list (sqrt 4) (exp 0) (log 1) (sin 0) (cos 0) (atan 1) (atan -1 -1))",
         "(2.0 1.0 0.0 0.0 1.0 0.785398 -2.35619)"},
        {"(sqrt -1)", "error: bad argument value: function undefined: -1"},
        {"(log 0)", "error: bad argument value: function undefined: 0"},
        {"(list (expt 2 10) (expt 2 40) (expt 2 -1) (expt 2.0 3))", "(1024 1.09951e+12 0.5 8.0)"},
        {"(list (fix 2.9) (fix -2.9) (fix 1e10) (float 2))", "(2 -2 1.0e+10 2.0)"},
        {"(list (zerop 0.0) (minusp -1) (numberp nil) (numberp 1.5))", "(T T nil T)"},
        {"(list (distance '(0 0) '(3 4)) (distance '(1 2 2) '(0 0 0)))", "(5.0 3.0)"},
        {"(distance '(0) '(1 1))", "error: bad argument type: point: (0)"},
        {"(list (angle '(0 0) '(0 -1)) (polar '(1 1 5) 0 2) (polar '(1 1) 0.0 1))",
         "(4.71239 (3.0 1.0 5.0) (2.0 1.0))"},
        {"(list 100000.0 1234567.0 0.00001 123.456789 -0.5 1e100)",
         "(100000.0 1.23457e+06 1.0e-05 123.457 -0.5 1.0e+100)"},
    });
}

TEST(NumberFunctions, ConvertToAndFromText) {
    expectRows({
        {"(list (atoi \"12abc\") (atoi \"\") (atoi \" -3.9\") (atoi \"99999999999\"))",
         "(12 0 -3 2147483647)"},
        {"(list (atof \"1.5m\") (atof \"x\") (atof \"+2e2\") (itoa -5))", "(1.5 0.0 200.0 \"-5\")"},
        {"(itoa 1.5)", "error: bad argument type: fixnump: 1.5"},
        {"(list (rtos 17.5 1 4) (rtos 17.5 2 2) (rtos 17.5 3 2) (rtos 17.5 4 2) (rtos 17.5 5 2))",
         R"(("1.7500E+01" "17.50" "1'-5.50\"" "1'-5 1/2\"" "17 1/2"))"},
        {"(list (rtos 12.25 4 2) (rtos 24 4 2) (rtos -0.75 4 4) (rtos 11.999 4 2) (rtos 0.999 5 3))",
         R"(("1'-0 1/4\"" "2'-0\"" "-3/4\"" "1'-0\"" "1"))"},
        {"(list (rtos 2) (rtos -0.00001 2 2) (rtos 1e20 2 0))",
         "(\"2.0000\" \"0.00\" \"100000000000000000000\")"},
        {"(rtos 1 9)", "error: bad argument value: units mode: 9"},
        {"(list (angtos 0.785398 0 4) (angtos 0.785398 1 4) (angtos -1.5708 2 4) (angtos 0.785398 3 4))",
         R"(("45.0000" "45d0'0\"" "299.9998g" "0.7854r"))"},
        {"(list (angtos 0.785398 4 4) (angtos 4.0 4 1) (angtos pi) (angtos 1.0 1 6))",
         R"(("N 45d0'0\" E" "S 40d49' W" "180" "57d17'44.81\""))"},
    });
}

TEST(NumberFunctions, TakeUnitsFromTheHostsVariables) {
    Session session;
    session.lisp.setVariables({[](std::string_view name) -> basic::Variant {
                                   if (name == "LUPREC") return std::int16_t{3};
                                   if (name == "DIMZIN") return std::int16_t{12};
                                   return {};
                               },
                               nullptr});
    EXPECT_EQ(
        session.show("(list (rtos 0.5) (rtos -0.25) (rtos 2) (rtos 0 2 2) (getvar 'luprec) (getvar \"X\"))"),
        "(\".5\" \"-.25\" \"2\" \"0\" 3 nil)");
    EXPECT_EQ(session.show("(setvar \"LUPREC\" 2)"), "error: system variables can't be set here: LUPREC");
}

TEST(StringFunctions, CountCharacters) {
    expectRows({
        {"(list (strcat) (strcat \"a\" \"b\") (strlen) (strlen \"é€\" \"x\"))", "(\"\" \"ab\" 0 3)"},
        {"(list (substr \"héllo\" 2) (substr \"héllo\" 2 1) (substr \"ab\" 9) (substr \"ab\" 1 9))",
         "(\"éllo\" \"é\" \"\" \"ab\")"},
        {"(substr \"ab\" 0)", "error: bad argument value: positive: 0"},
        {"(list (strcase \"Été\") (strcase \"ÉTÉ\" t))", "(\"ÉTÉ\" \"été\")"},
        {"(list (ascii \"A\") (ascii \"é\") (ascii \"\") (chr 233))", "(65 233 0 \"é\")"},
        {"(chr -1)", "error: bad argument value: character code: -1"},
        {"(list (vl-princ-to-string '(\"a\" b)) (vl-prin1-to-string \"a\"))", "(\"(a B)\" \"\\\"a\\\"\")"},
    });
}

TEST(StringFunctions, SearchAndTrim) {
    expectRows({
        {"(list (vl-string-search \"b\" \"éb\") (vl-string-search \"a\" \"aa\" 1) (vl-string-search "
         "\"z\" \"a\"))",
         "(1 1 nil)"},
        {"(vl-string-search \"a\" \"a\" 5)", "error: bad argument value: position: 5"},
        {"(list (vl-string-subst \"X\" \"a\" \"banana\") (vl-string-subst \"X\" \"a\" \"banana\" 2))",
         "(\"bXnana\" \"banXna\")"},
        {"(list (vl-string-trim \" .\" \" .a.b \") (vl-string-trim \"x\" \"xx\") (vl-string-trim \"x\" "
         "\"\"))",
         "(\"a.b\" \"\" \"\")"},
    });
}

}  // namespace
