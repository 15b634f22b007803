#include "desk/console/arguments.h"

#include "desk/shell/surroundings.h"

#include <stdexcept>

namespace console {

const char* const kUsage =
    "Usage: vorlane-console DRAWING [--script FILE] [--regional fr|en]\n"
    "\n"
    "  DRAWING           the DXF drawing to work on\n"
    "  --script FILE     takes its lines from FILE and echoes them; stops at the first\n"
    "                    line that can't be carried out, with exit code 1\n"
    "  --regional fr|en  decimal comma (fr) or decimal point (en); without it as the\n"
    "                    desktop has it\n"
    "\n"
    "At \"Command:\" type VNREPLACE, VNLABEL, VNEXTRACT, VNINSERT, VNHELP, VNABOUT, a Lisp\n"
    "expression, or OPEN f, SAVE [f], LIST, U, QUIT. docs/console.md tells the rest.\n";

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == arguments.size()) throw std::invalid_argument(word + " needs a value");
            return arguments[++i];
        };
        if (word == "--help" || word == "-h") {
            line.help = true;
        } else if (word == "--script") {
            line.script = value();
        } else if (word == "--regional") {
            line.regional = shell::regionalByName(value());
            if (!line.regional) throw std::invalid_argument("--regional takes fr or en, not " + arguments[i]);
        } else if (word.starts_with('-') && word.size() > 1) {
            throw std::invalid_argument("unknown option " + word);
        } else if (line.drawing.empty()) {
            line.drawing = word;
        } else {
            throw std::invalid_argument("more than one drawing: " + word);
        }
    }
    if (!line.help && line.drawing.empty()) throw std::invalid_argument("no drawing given");
    return line;
}

}  // namespace console
