#include "basic/numbers.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace basic {

namespace {

bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

constexpr std::string_view kExponentMarks = "EeDd";

/// The separators that are blanks, which stand for one another as thousands separators: blank, no-break space
/// and narrow no-break space.
constexpr std::string_view kBlanks[] = {" ", "\u00A0", "\u202F"};

bool isBlankSeparator(std::string_view separator) {
    return std::find(std::begin(kBlanks), std::end(kBlanks), separator) != std::end(kBlanks);
}

/// A decimal number with its separators and blanks taken out: digits, at most one point.
struct Plain {
    std::string text;
    long exponent = 0;
    bool negative = false;

    /// Raises kOverflow beyond a 64-bit float; a magnitude too small for one is 0.
    double value() const;
};

constexpr long kExponentLimit = 100000;  // far beyond a float, and sums with it still fit

double Plain::value() const {
    std::string digits = text;
    if (exponent != 0) digits.append("e").append(std::to_string(exponent));
    double magnitude = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    if (read.ec == std::errc::result_out_of_range) {
        const std::size_t first = text.find_first_of("123456789");
        const std::size_t point = std::min(text.find('.'), text.size());
        const long power = static_cast<long>(point) - static_cast<long>(first) + exponent;
        if (power > 0) throw Error(kOverflow);
        magnitude = 0;
    }
    return negative ? -magnitude : magnitude;
}

/// Walks over a text from its start.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    bool atEnd() const { return rest_.empty(); }
    char peek(std::size_t ahead = 0) const { return ahead < rest_.size() ? rest_[ahead] : '\0'; }
    void advance(std::size_t count = 1) { rest_.remove_prefix(count); }
    bool take(char wanted) { return take(std::string_view(&wanted, 1)); }
    bool take(std::string_view wanted) {
        if (wanted.empty() || !rest_.starts_with(wanted)) return false;
        advance(wanted.size());
        return true;
    }
    void skipBlanks() {
        while (!atEnd() && (rest_.front() == ' ' || (rest_.front() >= '\t' && rest_.front() <= '\r')))
            advance();
    }
    bool takeThousands(std::string_view separator) {
        if (take(separator)) return true;
        return isBlankSeparator(separator) && (take(kBlanks[0]) || take(kBlanks[1]) || take(kBlanks[2]));
    }
    /// "+" or "-": 1 or -1, no sign: 0.
    int takeSign() {
        if (take('+')) return 1;
        return take('-') ? -1 : 0;
    }
    /// An exponent mark with its digits. A mark without digits stays where it is.
    void takeExponent(long& exponent, std::string_view marks) {
        if (atEnd() || marks.find(peek()) == std::string_view::npos) return;
        const std::size_t signs = peek(1) == '+' || peek(1) == '-' ? 1 : 0;
        if (!isDigit(peek(1 + signs))) return;
        const bool negative = peek(1) == '-';
        advance(1 + signs);
        for (; isDigit(peek()); advance())
            exponent = std::min(exponent * 10 + (peek() - '0'), kExponentLimit);
        if (negative) exponent = -exponent;
    }

  private:
    std::string_view rest_;
};

int digitValue(char byte) {
    if (isDigit(byte)) return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 99;
}

/// The number behind "&H" (base 16) or "&O" (base 8), empty where the text begins with neither or no digit
/// follows.
std::optional<double> takeBased(Scanner& scanner) {
    const char mark = static_cast<char>(scanner.peek(1) | 0x20);
    if (scanner.peek() != '&' || (mark != 'h' && mark != 'o')) return std::nullopt;
    const int base = mark == 'h' ? 16 : 8;
    if (digitValue(scanner.peek(2)) >= base) return std::nullopt;
    scanner.advance(2);
    double value = 0;
    for (; digitValue(scanner.peek()) < base; scanner.advance())
        value = value * base + digitValue(scanner.peek());
    return value;
}

/// Digits with thousands separators and a decimal separator, then an exponent. False without any digit.
bool takeDecimal(Scanner& scanner, const Regional& regional, Plain& plain,
                 std::string_view exponentMarks = kExponentMarks) {
    bool digits = false, behindPoint = false;
    while (!scanner.atEnd()) {
        if (isDigit(scanner.peek())) {
            plain.text += scanner.peek();
            scanner.advance();
            digits = true;
        } else if (!behindPoint && scanner.take(regional.decimal)) {
            plain.text += '.';
            behindPoint = true;
        } else if (behindPoint || !scanner.takeThousands(regional.thousands)) {
            break;
        }
    }
    if (digits) scanner.takeExponent(plain.exponent, exponentMarks);
    return digits;
}

/// The whole text as a number; empty where it isn't one.
std::optional<Plain> readWhole(std::string_view text, const Regional& regional) {
    Scanner scanner(text);
    Plain plain;
    scanner.skipBlanks();
    int sign = scanner.takeSign();
    const bool parenthesis = sign == 0 && scanner.take('(');
    if (parenthesis) sign = -1;
    scanner.skipBlanks();
    if (!takeDecimal(scanner, regional, plain)) return std::nullopt;
    scanner.skipBlanks();
    if (parenthesis && !scanner.take(')')) return std::nullopt;
    if (sign == 0) sign = scanner.takeSign();
    scanner.skipBlanks();
    if (!scanner.atEnd()) return std::nullopt;
    plain.negative = sign < 0;
    return plain;
}

/// The whole text as a number in base 16 or 8; empty where it isn't one.
std::optional<double> readBased(std::string_view text) {
    Scanner scanner(text);
    scanner.skipBlanks();
    const std::optional<double> value = takeBased(scanner);
    scanner.skipBlanks();
    return scanner.atEnd() ? value : std::nullopt;
}

}  // namespace

bool isNumeric(std::string_view text, const Regional& regional) {
    return readWhole(text, regional).has_value() || readBased(text).has_value();
}

double toDouble(std::string_view text, const Regional& regional) {
    if (const std::optional<Plain> plain = readWhole(text, regional)) return plain->value();
    if (const std::optional<double> based = readBased(text)) return *based;
    throw Error(kTypeMismatch);
}

double leadingNumber(std::string_view text) {
    Scanner scanner(text);
    scanner.skipBlanks();
    Plain plain;
    plain.negative = scanner.takeSign() < 0;
    return takeDecimal(scanner, {".", ""}, plain, "Ee") ? plain.value() : 0;
}

}  // namespace basic
