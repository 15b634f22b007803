#pragma once

#include "basic/border.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace text_face {

/// The line that stands for Ctrl-C or the Esc key of a person: it breaks off what waits.
inline constexpr std::string_view kBreakOff = "\x1B";

/// The whole lines that one could mean who has typed this beginning of a line.
using Completion = std::function<std::vector<std::string>(std::string_view beginning)>;

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

    /// What Tab offers in the next line that is asked for, and only there.
    void offer(Completion completion) { completion_ = std::move(completion); }

    /// The number of the line read last, from 1.
    int lineNumber() const { return lineNumber_; }
    /// Whether a person is there to be asked again after a mistake.
    virtual bool interactive() const = 0;

    /// Makes a script go on after what fails. Each failure is told on `errors`, behind `prefix`, and counted.
    void keepGoing(std::ostream& errors, std::string prefix) {
        errors_ = &errors;
        prefix_ = std::move(prefix);
    }
    int failures() const { return failures_; }
    /// Prints no lines of a script, only what they bring about.
    void setEcho(bool echo) { echo_ = echo; }

    /// Something failed that the line read last set off: tells a person nothing more, stops a script with a
    /// ScriptError that names the line, or counts it where the script is to go on.
    void fail(std::string_view reason);

  protected:
    virtual std::optional<std::string> read() = 0;
    /// Shows a person what is asked for.
    virtual void showPrompt(std::ostream& output, std::string_view prompt);
    std::vector<std::string> completions(std::string_view beginning) const {
        return completion_ ? completion_(beginning) : std::vector<std::string>();
    }

  private:
    std::optional<std::string> readCounted();

    int lineNumber_ = 0;
    std::string line_;  ///< read last
    int failures_ = 0;
    std::ostream* errors_ = nullptr;  ///< null: the first failure stops a script
    std::string prefix_;
    bool echo_ = true;
    Completion completion_;
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
class ScriptError : public basic::Interruption {
  public:
    using Interruption::Interruption;
};

/// A mistake in the line read last: tells a person on `output`, fails a script.
void refuseLine(LineSource& source, std::ostream& output, std::string_view reason);
/// The error of an input that ends while something waits: "the script ended while fmReplace was waiting".
[[noreturn]] void endedWhile(std::string_view waiting);

}  // namespace text_face
