#include "desk/console/console.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/console/arguments.h"
#include "desk/console/session_loop.h"
#include "desk/console/terminal_lines.h"
#include "desk/console/text_prompter.h"
#include "desk/drawing/errors.h"
#include "desk/jobs/run.h"
#include "desk/shell/surroundings.h"
#include "desk/shell/temporary_folder.h"
#include "faces/text/text_screen.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <unistd.h>

namespace console {

namespace fs = std::filesystem;

namespace {

/// The folder of settings; one that goes with the session for --fresh.
class SettingsFolder {
  public:
    explicit SettingsFolder(const CommandLine& line) {
        if (line.fresh) {
            folder_ = fresh_.emplace("vorlane").path();
        } else if (!line.settings.empty()) {
            folder_ = fs::absolute(line.settings);
        } else {
            folder_ = shell::installFolder(shell::readEnvironment);
        }
    }
    const fs::path& path() const { return folder_; }

  private:
    std::optional<shell::TemporaryFolder> fresh_;
    fs::path folder_;
};

shell::DeskOptions deskOptions(const CommandLine& line, const fs::path& settings) {
    shell::DeskOptions options;
    options.installFolder = settings;
    options.resources = shell::resourceFolder();
    options.regional = line.regional.empty() ? shell::desktopRegional(shell::readEnvironment)
                                             : shell::regionalByName(line.regional).value();
    options.frenchDesktop = shell::isFrenchDesktop(shell::readEnvironment);
    options.language = shell::languageByCode(line.language);
    options.stateFolder = shell::stateFolder(shell::readEnvironment);
    return options;
}

/// A person's yes; the end of the input is none.
bool confirms(text_face::LineSource& source, const std::string& question) {
    source.offer([](std::string_view) { return std::vector<std::string>{"yes", "no"}; });
    const std::optional<std::string> answer = source.next(std::cout, question + " [yes/no] ");
    return answer && basic::equalIgnoringCase(basic::trim(*answer), "yes");
}

std::unique_ptr<text_face::LineSource> openLines(const CommandLine& line, std::ifstream& script,
                                                 const fs::path& settings, const std::string& program) {
    const bool terminal = !line.isScript && isatty(STDIN_FILENO) != 0;
    if (terminal && isatty(STDOUT_FILENO) != 0) {
        return std::make_unique<TerminalLines>(line.fresh ? "" : (settings / "history").string());
    }
    auto lines = std::make_unique<text_face::StreamLines>(line.script.empty() ? std::cin : script, terminal);
    if (line.keepGoing) lines->keepGoing(std::cerr, program + ": ");
    lines->setEcho(!line.quiet);
    return lines;
}

}  // namespace

std::string adviceOn(std::int32_t number) {
    switch (number) {
        case basic::kOverflow:
            return "A command counts to 32,767: take fewer references at a time, zone by zone.";
        case drawing::kLockedLayer:
            return "Unlock the layer, or leave its objects out by selecting a zone. U takes back what was "
                   "done.";
        default:
            return {};
    }
}

int runConsole(const jobs::Arguments& arguments, const std::string& program) {
    const CommandLine line = readCommandLine(arguments);
    std::ifstream script;
    if (!line.script.empty()) {
        script.open(line.script);
        if (!script) throw basic::Error(basic::kFileNotFound, "the script " + line.script + " can't be read");
    }
    const SettingsFolder settings(line);
    const std::unique_ptr<text_face::LineSource> source = openLines(line, script, settings.path(), program);
    std::unique_ptr<shell::Desk> desk;
    text_face::TextScreen screen(*source, std::cout);
    screen.setExplain(adviceOn);
    TextPrompter prompter(*source, std::cout);
    prompter.setEvaluate([&desk](const std::string& expression) { return desk->answerOf(expression); });
    shell::DeskOptions options = deskOptions(line, settings.path());
    options.autosave = options.breakable = source->interactive();
    if (source->interactive())
        options.confirm = [&source](const std::string& question) { return confirms(*source, question); };
    desk = std::make_unique<shell::Desk>(options, screen, prompter, std::cout);
    if (!line.drawing.empty()) desk->open(line.drawing);
    if (source->interactive() && !line.quiet)
        std::cout << "HELP tells what can be typed, Tab completes it, QUIT ends.\n";
    try {
        runCommandLine(*desk, *source);
    } catch (const text_face::ScriptError& error) {
        std::cout.flush();
        std::cerr << program << ": " << error.what() << "\n";
        return jobs::kFailed;
    }
    if (source->failures() > 0) return jobs::kFailed;
    return jobs::kDone;
}

}  // namespace console
