#include "desk/console/arguments.h"

namespace console {

CommandLine readCommandLine(const jobs::Arguments& arguments) {
    CommandLine line;
    if (arguments.operands.size() > 1)
        throw jobs::UsageError("more than one drawing: " + arguments.operands[1]);
    if (!arguments.operands.empty()) line.drawing = arguments.operands.front();
    line.isScript = arguments.has("--script");
    line.script = arguments.value("--script");
    if (line.script == "-") line.script.clear();
    line.quiet = arguments.has("--quiet");
    line.keepGoing = arguments.has("--keep-going");
    line.fresh = arguments.has("--fresh");
    line.settings = arguments.value("--settings");
    if (line.fresh && !line.settings.empty()) throw jobs::UsageError("--fresh keeps no settings in a folder");
    line.regional = arguments.value("--regional");
    line.language = arguments.value("--lang");
    return line;
}

}  // namespace console
