#include "desk/console/session_loop.h"

#include "basic/text.h"

#include <optional>
#include <ostream>

namespace console {

namespace {

using Outcome = shell::Desk::Outcome;

constexpr const char* kPrompt = "Command: ";

/// Whether the session may end.
bool mayLeave(shell::Desk& desk, text_face::LineSource& source) {
    if (!desk.hasUnsavedChanges()) return true;
    if (!source.interactive()) {
        desk.output() << "The changes to " << desk.document().drawing().path() << " were not saved.\n";
        return true;
    }
    const std::optional<std::string> answer = source.next(
        desk.output(), "The drawing has changes that aren't saved. Leave all the same? [yes/no] ");
    return !answer || basic::equalIgnoringCase(basic::trim(*answer), "yes");
}

/// A line, continued by further ones as long as a Lisp expression in it is incomplete.
Outcome runLine(shell::Desk& desk, text_face::LineSource& source, std::string line) {
    Outcome outcome = desk.run(line);
    while (outcome == Outcome::Incomplete) {
        const std::optional<std::string> more = source.next(desk.output(), "(_> ");
        if (!more) text_face::endedWhile("an unfinished Lisp expression");
        line += "\n" + *more;
        outcome = desk.run(line);
    }
    if (!source.interactive() && (outcome == Outcome::Failed || outcome == Outcome::Unknown)) {
        text_face::refuseLine(source, desk.output(), line, "could not be carried out");
    }
    return outcome;
}

bool isOpening(const std::string& line) {
    return basic::equalIgnoringCase(basic::trim(line).substr(0, 5), "open ");
}

}  // namespace

void runCommandLine(shell::Desk& desk, text_face::LineSource& source) {
    while (true) {
        const std::optional<std::string> line = source.nextAct(desk.output(), kPrompt);
        if (!line) {
            mayLeave(desk, source);
            return;
        }
        if (isOpening(*line) && !mayLeave(desk, source)) continue;
        if (runLine(desk, source, *line) == Outcome::Quit && mayLeave(desk, source)) return;
    }
}

}  // namespace console
