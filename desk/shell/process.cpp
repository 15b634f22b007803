#include "desk/shell/process.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace shell {

namespace {

std::vector<char*> arguments(const std::vector<std::string>& command) {
    std::vector<char*> list;
    list.reserve(command.size() + 1);
    for (const std::string& word : command) list.push_back(const_cast<char*>(word.c_str()));
    list.push_back(nullptr);
    return list;
}

constexpr int kNotStarted = 127;

int waitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return kNotStarted;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kNotStarted;
}

/// What comes until the other end is closed.
std::string readAll(int file) {
    std::string all;
    char bytes[4096];
    for (ssize_t count = 0; (count = read(file, bytes, sizeof bytes)) != 0;) {
        if (count > 0) {
            all.append(bytes, static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            break;
        }
    }
    return all;
}

/// In a child process: starts the program in a child of its own, which the system's first process takes over,
/// so that nobody has to wait for it.
[[noreturn]] void runDetached(std::vector<char*>& words, int failure) {
    setsid();
    const int null = open("/dev/null", O_RDWR);
    for (int descriptor = 0; descriptor < 3; ++descriptor) dup2(null, descriptor);
    const pid_t grandchild = fork();
    if (grandchild == 0) execvp(words[0], words.data());
    if (grandchild <= 0 && write(failure, "!", 1) != 1) _exit(126);
    _exit(grandchild > 0 ? 0 : 127);
}

}  // namespace

std::optional<std::string> findProgram(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (folder.empty()) continue;
        std::string candidate = folder.append("/").append(name);
        if (access(candidate.c_str(), X_OK) == 0) return candidate;
    }
    return std::nullopt;
}

int runProgram(const std::vector<std::string>& command, std::string* printed) {
    int ends[2] = {-1, -1};
    if (printed != nullptr && pipe2(ends, O_CLOEXEC) != 0) return kNotStarted;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    for (const int stream : {1, 2}) {
        if (printed != nullptr) {
            posix_spawn_file_actions_adddup2(&actions, ends[1], stream);
        } else {
            posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
        }
    }
    pid_t child = 0;
    std::vector<char*> words = arguments(command);
    const int failed = posix_spawnp(&child, words[0], &actions, nullptr, words.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (printed != nullptr) {
        close(ends[1]);
        *printed = readAll(ends[0]);
        close(ends[0]);
    }
    return failed != 0 ? kNotStarted : waitFor(child);
}

bool startProgram(const std::vector<std::string>& command) {
    // The pipe closes when the program has started; a byte in it says that it couldn't be.
    int failure[2];
    if (pipe2(failure, O_CLOEXEC) != 0) return false;
    std::vector<char*> words = arguments(command);
    const pid_t child = fork();
    if (child == 0) runDetached(words, failure[1]);
    close(failure[1]);
    char byte = 0;
    ssize_t count = 0;
    if (child > 0) {
        waitFor(child);
        while ((count = read(failure[0], &byte, 1)) < 0 && errno == EINTR) {
        }
    }
    close(failure[0]);
    return child > 0 && count == 0;
}

}  // namespace shell
