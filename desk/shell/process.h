#pragma once

#include <optional>
#include <string>
#include <vector>

namespace shell {

/// The full path of a program on PATH; nothing if there is none.
std::optional<std::string> findProgram(const std::string& name);

/// Runs a program without a shell and waits for its end; its exit code, 127 where it couldn't be started.
/// What it prints, on either stream, goes to `printed`, or nowhere.
int runProgram(const std::vector<std::string>& command, std::string* printed = nullptr);

/// Starts a program without a shell and leaves it to itself: it goes on when we end and leaves no zombie.
/// Returns whether it could be started.
bool startProgram(const std::vector<std::string>& command);

}  // namespace shell
