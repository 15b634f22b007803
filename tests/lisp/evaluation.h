#pragma once

#include "desk/lisp/error.h"
#include "desk/lisp/interpreter.h"
#include "desk/lisp/printer.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

/// An expression and the value that the command line shows for it, or "error: " and the message.
struct Row {
    const char* expression;
    const char* shown;
};

/// A fresh interpreter with what it printed.
struct Session {
    std::ostringstream output;
    lisp::Interpreter lisp{output};

    std::string show(std::string_view expression) {
        try {
            return lisp::printed(lisp.eval(expression), lisp::Style::Readable);
        } catch (const basic::Error& error) {
            return "error: " + lisp::errorMessage(error);
        }
    }
};

inline void expectRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        Session session;
        EXPECT_EQ(session.show(row.expression), row.shown) << row.expression;
    }
}
