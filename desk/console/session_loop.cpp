#include "desk/console/session_loop.h"

#include "basic/text.h"
#include "desk/model/listing.h"
#include "faces/text/completions.h"
#include "faces/text/control_names.h"

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
    // The end of the input (Ctrl-D) is no answer, unless it comes again and again: then nobody is there.
    constexpr int kMostEnds = 3;
    for (int ends = 0; ends < kMostEnds;) {
        source.offer([](std::string_view) { return std::vector<std::string>{"yes", "no"}; });
        const std::optional<std::string> answer = source.next(
            desk.output(), "The drawing has changes that aren't saved. Leave all the same? [yes/no] ");
        if (!answer) {
            ++ends;
            continue;
        }
        if (basic::equalIgnoringCase(basic::trim(*answer), "yes")) return true;
        if (basic::equalIgnoringCase(basic::trim(*answer), "no") || *answer == text_face::kBreakOff)
            return false;
    }
    desk.leaveCopy();  // nobody said that the changes may go
    return true;
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
    if (source.interactive() && outcome == Outcome::Unknown) {
        desk.output() << "HELP tells what can be typed" << text_face::nearText(line, desk.commandNames())
                      << ".\n";
    }
    if (!source.interactive() && (outcome == Outcome::Failed || outcome == Outcome::Unknown)) {
        source.fail(desk.failure());
    }
    return outcome;
}

bool isOpening(const std::string& line) {
    return basic::equalIgnoringCase(basic::trim(line).substr(0, 5), "open ");
}

/// What Tab offers at "Command:".
std::vector<std::string> commandCompletions(const shell::Desk& desk, std::string_view beginning) {
    const std::size_t blank = beginning.find(' ');
    if (blank == std::string_view::npos) return desk.commandNames();
    const std::string command = basic::toUpper(beginning.substr(0, blank));
    const std::string before(beginning.substr(0, blank + 1));
    if (command == "OPEN" || command == "SAVE" || command == "SAVE!" || command == "PICTURE")
        return text_face::fileCompletions(before, beginning.substr(blank + 1), {".dxf", ".dwg"});
    std::vector<std::string> lines;
    if (command == "LIST" && desk.hasDrawing()) {
        for (const model::BlockLine& line : model::listBlocks(desk.document().drawing()).lines)
            lines.push_back(before + line.name);
    } else if (command == "LAYER" && desk.hasDrawing()) {
        for (const drawing::Layer& layer : desk.document().drawing().layers().all())
            lines.push_back(before + layer.name);
    }
    return lines;
}

}  // namespace

void runCommandLine(shell::Desk& desk, text_face::LineSource& source) {
    std::string last;
    while (true) {
        source.offer([&desk](std::string_view beginning) { return commandCompletions(desk, beginning); });
        const bool repeats = source.interactive();
        std::optional<std::string> line =
            repeats ? source.next(desk.output(), kPrompt) : source.nextAct(desk.output(), kPrompt);
        if (!line) {
            if (mayLeave(desk, source)) return;
            continue;
        }
        if (*line == text_face::kBreakOff || basic::trim(*line).starts_with(';')) continue;
        // An empty line repeats the last one, as at the host's command line.
        if (basic::trim(*line).empty()) line = last;
        last = *line;
        if (isOpening(*line) && !mayLeave(desk, source)) continue;
        if (runLine(desk, source, *line) == Outcome::Quit && mayLeave(desk, source)) return;
    }
}

}  // namespace console
