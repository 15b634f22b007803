#include "basic/error.h"
#include "desk/console/arguments.h"
#include "desk/console/console.h"
#include "desk/console/start_window.h"
#include "desk/dxf/transient.h"
#include "desk/jobs/help_texts.h"
#include "desk/jobs/run.h"
#include "desk/shell/surroundings.h"
#include "faces/text/shown_controls.h"
#include "platform/version.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>

namespace {

int fail(const std::string& program, const std::string& text) {
    std::cout.flush();
    std::cerr << program << ": " << text << "\n";
    return jobs::kNotStarted;
}

void printVersion() {
    const platform::VersionResource& version = platform::kVersion;
    std::cout << version.productName << " " << version.major << "." << version.minor << "\n"
              << version.legalCopyright << " " << version.companyName << "\n";
}

/// What the build makes files of. Returns false for any other word.
bool printForBuild(const std::string& word) {
    if (word == "--print-manual") {
        std::cout << jobs::manualPage();
    } else if (word == "--print-completion") {
        std::cout << jobs::bashCompletion();
    } else {
        return false;
    }
    return true;
}

int run(const std::string& program, std::vector<std::string> words) {
    if (words.size() == 1 && printForBuild(words.front())) return jobs::kDone;
    const jobs::VerbText* verb = words.empty() ? nullptr : jobs::findVerb(words.front());
    if (verb != nullptr) words.erase(words.begin());
    const jobs::Arguments arguments =
        jobs::parseArguments(verb == nullptr ? jobs::kConsole : verb->verb, words);
    if (arguments.has("--help")) {
        std::cout << jobs::helpText(arguments.verb);
        return jobs::kDone;
    }
    if (arguments.has("--version")) {
        printVersion();
        return jobs::kDone;
    }
    if (verb != nullptr) return jobs::runVerb(arguments, std::cout, std::cerr);
    console::refuseUnknownVerb(arguments);
    if (program != "vorlane-console" && console::wantsWindow(arguments)) console::startWindow(words);
    return console::runConsole(arguments, program);
}

/// The program with what it prints guarded from control characters.
int runShown(int argc, char** argv) {
    const text_face::ShownControls output(std::cout), errors(std::cerr);
    const std::string program = argc > 0 ? std::filesystem::path(argv[0]).filename().string() : "vorlane";
    try {
        return run(program, {argv + 1, argv + argc});
    } catch (const jobs::UsageError& error) {
        return fail(program, std::string(error.what()) + "\nTry " + program + " --help.");
    } catch (const basic::Error& error) {
        return fail(program, error.description());
    } catch (const std::exception& error) {
        return fail(program, error.what());
    }
}

}  // namespace

int main(int argc, char** argv) {
    // A full disk or a file limit is an error of the write that meets it, not the end of the program, and so
    // is a reader that has gone.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    dxf::removeTransientsAtSignals();
    try {
        std::ios::sync_with_stdio(false);
        return runShown(argc, argv);
    } catch (const std::exception& error) {  // no memory even to tell of it as usual
        std::fprintf(stderr, "vorlane: %s\n", error.what());
        return jobs::kNotStarted;
    }
}
