#pragma once

#include "bench/big_drawing.h"
#include "desk/shell/desk.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/scripted_prompter.h"
#include "tests/fakes/temp_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace shell {

using Texts = std::vector<std::string>;

/// A desk with its install folder in a temporary one, a house.dxf of three LAMPs and one SPOT opened in it.
struct ShellWorld {
    ShellWorld() { desk.open(house); }

    static DeskOptions optionsIn(const fakes::TempFolder& folder) {
        DeskOptions options;
        options.installFolder = folder.file("install");
        options.resources = VORLANE_ROOT "/resources";
        options.regional = basic::Regional::english();
        return options;
    }
    /// What was printed since the last look.
    std::string told() { return std::exchange(output, {}).str(); }
    /// Runs a line and gives what it printed.
    std::string tell(const std::string& line, Desk::Outcome wanted = Desk::Outcome::Done) {
        told();
        EXPECT_EQ(desk.run(line), wanted) << line;
        return told();
    }

    fakes::TempFolder folder;
    fakes::RecordingScreen screen;
    fakes::ScriptedPrompter prompter;
    std::ostringstream output;
    std::string bytes = bench::BigDrawing::make(3);
    std::string house = folder.write("house.dxf", bytes);
    Desk desk{optionsIn(folder), screen, prompter, output};
};

/// An environment variable with another value for a while.
class ChangedVariable {
  public:
    ChangedVariable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        ::setenv(name, value.c_str(), 1);
    }
    ~ChangedVariable() {
        if (before_.empty()) {
            ::unsetenv(name_);
        } else {
            ::setenv(name_, before_.c_str(), 1);
        }
    }
    ChangedVariable(const ChangedVariable&) = delete;
    ChangedVariable& operator=(const ChangedVariable&) = delete;

  private:
    const char* name_;
    std::string before_;
};

}  // namespace shell
