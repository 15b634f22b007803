#include "desk/lisp/printer.h"

#include <cstdio>

namespace lisp {

namespace {

/// Nesting that no one reads, and that must not use up the stack.
constexpr int kDeepest = 500;

void printString(std::string& out, const std::string& text) {
    out += '"';
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        switch (code) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\r':
                out += "\\r";
                break;
            case 27:
                out += "\\e";
                break;
            default:
                if (code < 32) {
                    char octal[8];
                    std::snprintf(octal, sizeof octal, "\\%03o", static_cast<unsigned>(code));
                    out += octal;
                } else {
                    out += character;
                }
        }
    }
    out += '"';
}

class Printer {
  public:
    Printer(std::string& out, Style style, std::size_t most) : out_(out), style_(style), most_(most) {}

    void print(const Value& value, int depth) {
        switch (value.kind()) {
            case Value::Kind::Nil:
                out_ += "nil";
                break;
            case Value::Kind::Integer:
                out_ += std::to_string(*value.integer());
                break;
            case Value::Kind::Real:
                out_ += printedReal(*value.real());
                break;
            case Value::Kind::Text:
                if (style_ == Style::Readable) {
                    printString(out_, *value.text());
                } else {
                    out_ += *value.text();
                }
                break;
            case Value::Kind::Symbol:
                out_ += value.symbol()->name;
                break;
            case Value::Kind::Cons:
                printList(value, depth);
                break;
            case Value::Kind::Subr:
                out_ += "#<SUBR " + value.subr()->name + ">";
                break;
            case Value::Kind::Usubr:
                out_ += "#<USUBR " + value.usubr()->name + ">";
                break;
            case Value::Kind::Variant:
                out_ += "#<variant " + std::to_string(value.variant()->type) + " ";
                print(value.variant()->content, depth + 1);
                out_ += ">";
                break;
            case Value::Kind::SafeArray:
                out_ += "#<safearray " + std::to_string(value.safeArray()->elements.size()) + " of type " +
                        std::to_string(value.safeArray()->type) + ">";
                break;
            case Value::Kind::Object:
                out_ += value.object()->object ? "#<VLA-OBJECT>" : "#<VLA-OBJECT released>";
                break;
            case Value::Kind::Caught:
                out_ += "#<%catch-all-apply-error%>";
                break;
        }
    }

  private:
    void printList(const Value& list, int depth) {
        if (depth >= kDeepest) {
            out_ += "...";
            return;
        }
        char before = '(';
        const Value* rest = &list;
        while (const Cons* cell = rest->cons()) {
            out_ += before;
            if (out_.size() > most_) {
                out_ += "...)";
                return;
            }
            print(cell->first, depth + 1);
            before = ' ';
            rest = &cell->rest;
        }
        if (rest->isTrue()) {
            out_ += " . ";
            print(*rest, depth + 1);
        }
        out_ += ')';
    }

    std::string& out_;
    Style style_;
    std::size_t most_;
};

}  // namespace

std::string printed(const Value& value, Style style, std::size_t most) {
    std::string out;
    Printer(out, style, most).print(value, 0);
    return out;
}

std::string printedReal(double number) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.6g", number);
    std::string text = digits;
    if (text.find_first_of(".n") != std::string::npos) return text;  // has its point, or is inf or nan
    const std::size_t exponent = text.find('e');
    text.insert(exponent == std::string::npos ? text.size() : exponent, ".0");
    return text;
}

}  // namespace lisp
