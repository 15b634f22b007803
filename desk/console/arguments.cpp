#include "desk/console/arguments.h"

#include "faces/text/control_names.h"

#include <filesystem>

namespace console {

void refuseUnknownVerb(const jobs::Arguments& arguments) {
    if (arguments.operands.empty()) return;
    const std::string& word = arguments.operands.front();
    std::error_code ignored;
    const bool mayBeDrawing = word.find_first_of("./") != std::string::npos;
    if (mayBeDrawing || std::filesystem::exists(word, ignored)) return;
    std::vector<std::string> verbs;
    for (const jobs::VerbText& verb : jobs::allVerbs()) {
        if (*verb.name != 0) verbs.emplace_back(verb.name);
    }
    const std::string near = text_face::nearText(word, verbs);
    if (!near.empty() || arguments.operands.size() > 1)
        throw jobs::UsageError("there is no verb and no drawing " + word + near);
}

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
