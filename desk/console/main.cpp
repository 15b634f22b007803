#include "basic/error.h"
#include "desk/console/arguments.h"
#include "desk/console/session_loop.h"
#include "desk/console/text_prompter.h"
#include "desk/shell/surroundings.h"
#include "faces/text/text_screen.h"

#include <csignal>
#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <unistd.h>

namespace {

enum ExitCode { kDone = 0, kScriptStopped = 1, kNotStarted = 2 };

int fail(const std::string& text, ExitCode code) {
    std::cout.flush();
    std::cerr << "vorlane-console: " << text << "\n";
    return code;
}

shell::DeskOptions deskOptions(const console::CommandLine& line) {
    shell::DeskOptions options;
    options.installFolder = shell::installFolder(shell::readEnvironment);
    options.resources = shell::resourceFolder();
    options.regional = line.regional.value_or(shell::desktopRegional(shell::readEnvironment));
    options.frenchDesktop = shell::isFrenchDesktop(shell::readEnvironment);
    return options;
}

int run(const console::CommandLine& line) {
    std::ifstream script;
    if (!line.script.empty()) {
        script.open(line.script);
        if (!script) return fail("the script " + line.script + " can't be read", kNotStarted);
    }
    const bool interactive = line.script.empty() && isatty(STDIN_FILENO) != 0;
    text_face::StreamLines source(line.script.empty() ? std::cin : script, interactive);
    std::unique_ptr<shell::Desk> desk;
    text_face::TextScreen screen(source, std::cout, [&desk](int context) { desk->showHelp(context); });
    console::TextPrompter prompter(source, std::cout);
    try {
        desk = std::make_unique<shell::Desk>(deskOptions(line), screen, prompter, std::cout);
        desk->open(line.drawing);
    } catch (const basic::Error& error) {
        return fail(error.description(), kNotStarted);
    }
    try {
        console::runCommandLine(*desk, source);
    } catch (const text_face::ScriptError& error) {
        return fail(error.what(), kScriptStopped);
    }
    return kDone;
}

}  // namespace

int main(int argc, char** argv) {
    // A full disk or a file limit is an error of the write that meets it, not the end of the program.
    std::signal(SIGXFSZ, SIG_IGN);
    std::ios::sync_with_stdio(false);
    try {
        const console::CommandLine line = console::parseCommandLine({argv + 1, argv + argc});
        if (line.help) {
            std::cout << console::kUsage;
            return kDone;
        }
        return run(line);
    } catch (const std::invalid_argument& error) {
        return fail(std::string(error.what()) + "\n" + console::kUsage, kNotStarted);
    } catch (const std::exception& error) {
        return fail(error.what(), kNotStarted);
    }
}
