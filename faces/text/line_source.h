#pragma once

#include <iosfwd>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace text_face {

/// Where lines come from: a person's terminal, or a script, whose lines are echoed so that the output reads
/// as a transcript.
class LineSource {
  public:
    virtual ~LineSource() = default;

    /// The next line without its end, or nothing at the end. A person sees the prompt; of a script's line
    /// prompt and line are printed.
    std::optional<std::string> next(std::ostream& output, std::string_view prompt = "> ");
    /// The same without blank lines and without comments (";"), which are printed as they stand.
    std::optional<std::string> nextAct(std::ostream& output, std::string_view prompt = "> ");

    /// The number of the line read last, from 1.
    int lineNumber() const { return lineNumber_; }
    /// Whether a person is there to be asked again after a mistake.
    virtual bool interactive() const = 0;

  protected:
    virtual std::optional<std::string> read() = 0;

  private:
    std::optional<std::string> readCounted();

    int lineNumber_ = 0;
};

/// Lines of a stream. Carriage returns at line ends and a byte order mark at the start are dropped.
class StreamLines : public LineSource {
  public:
    StreamLines(std::istream& input, bool interactive) : input_(input), interactive_(interactive) {}
    bool interactive() const override { return interactive_; }

  protected:
    std::optional<std::string> read() override;

  private:
    std::istream& input_;
    bool interactive_;
    bool started_ = false;
};

/// A script can't go on: a line that means nothing or can't be done where it stands, or the end in the middle
/// of something. It is no basic::Error, so that it passes all handlers.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A mistake in the line read last: tells a person on `output`, stops a script with a ScriptError that names
/// the line.
void refuseLine(const LineSource& source, std::ostream& output, std::string_view line,
                std::string_view reason);
/// The error of an input that ends while something waits: "the script ended while fmReplace was waiting".
[[noreturn]] void endedWhile(std::string_view waiting);

}  // namespace text_face
