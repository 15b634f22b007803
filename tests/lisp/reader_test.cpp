#include "desk/lisp/reader.h"

#include "tests/lisp/evaluation.h"

namespace {

TEST(Reader, ReadsAtoms) {
    expectRows({
        {"'(1 -2 +3)", "(1 -2 3)"},
        {"'(1.5 -.5 2. 1e3 1.5E-7)", "(1.5 -0.5 2.0 1000.0 1.5e-07)"},
        {"'(1+ 1- - + 12a e5 1e .x)", "(1+ 1- - + 12A E5 1E .X)"},
        {"-2147483648", "-2147483648"},
        {"2147483648", "2.14748e+09"},  // beyond 32 bits an integer is a real
        {"1e999", "error: floating-point number out of range on input: 1e999"},
    });
}

TEST(Reader, ReadsStringEscapes) {
    expectRows({
        {R"("a\"b\\c")", R"("a\"b\\c")"},
        {R"((mapcar 'ascii '("\n" "\t" "\r" "\e" "\101" "\1" "\351" "\U+0416x")))",
         "(10 9 13 27 65 1 233 1046)"},
        {R"((strlen "\q"))", "1"},
        {"(strlen \"a\nb\")", "3"},
        {R"("a\001b")", R"("a\001b")"},
    });
}

TEST(Reader, ReadsListsQuotesAndComments) {
    expectRows({
        {"'(a b . (c d))", "(A B C D)"},
        {"'(a .5)", "(A 0.5)"},
        {"'('a \"s\"b)", "((QUOTE A) \"s\" B)"},
        {"(setq X(list 1 2))", "(1 2)"},  // no blank before the bracket
        {"; all of it\n(+ 1 ; one\n 2)", "3"},
        {"(+ 1 ;| two\nlines |; 2)", "3"},
    });
}

TEST(Reader, NamesWhatIsWrong) {
    expectRows({
        {"\"abc", "error: malformed string on input"},
        {"(+ 1 2))", "error: extra right paren on input"},
        {"'(a . )", "error: misplaced dot on input"},
        {"'(a . b c)", "error: extra cdrs in dotted pair on input"},
        {";| open", "error: unclosed comment on input"},
    });
}

TEST(Reader, TellsIncompleteFromWrong) {
    Session session;
    const auto isIncomplete = [&](const char* text) {
        try {
            session.lisp.eval(text);
        } catch (const lisp::LispError& error) {
            return dynamic_cast<const lisp::IncompleteInput*>(&error) != nullptr;
        }
        return false;
    };
    for (const char* text : {"(", "\"", "'", "(a .", ";|"}) EXPECT_TRUE(isIncomplete(text)) << text;
    for (const char* text : {")", "(a . b c)"}) EXPECT_FALSE(isIncomplete(text)) << text;
}

TEST(Reader, ReadGivesTheFirstForm) {
    expectRows({
        {"(read \"(a b) c\")", "(A B)"},
        {"(read \"abc def\")", "ABC"},
        {"(read \"\")", "nil"},
    });
}

}  // namespace
