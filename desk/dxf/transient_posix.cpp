#include "desk/dxf/transient.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace dxf {

namespace {

// A signal handler reaches only what is global, and may neither allocate nor wait for a lock. A slot belongs
// to the process whose number stands in it: a child that inherited the list takes nothing of its parent's.

struct Slot {
    std::atomic<pid_t> owner = 0;  ///< 0: free, -1: being filled
    Transient::Kind kind = Transient::Kind::File;
    std::array<char, 4096> path{};
};

std::array<Slot, 32> slots;
termios terminalBefore;
std::atomic<bool> hasTerminal = false;

static_assert(std::atomic<pid_t>::is_always_lock_free);

/// rm(1) does what no function that a handler may call does.
void removeFolder(const char* path) {
    const pid_t child = _Fork();
    if (child == 0) {
        execl("/bin/rm", "rm", "-rf", "--", path, nullptr);
        _exit(127);
    }
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

extern "C" void onEnd(int signal) {
    removeTransients();
    // A program in the background would be stopped by setting the terminal.
    std::signal(SIGTTOU, SIG_IGN);
    if (hasTerminal) tcsetattr(STDIN_FILENO, TCSANOW, &terminalBefore);
    std::signal(signal, SIG_DFL);
    raise(signal);
}

}  // namespace

void Transient::hold(const std::string& path, Kind kind) {
    release();
    if (path.size() >= slots[0].path.size()) return;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        pid_t free = 0;
        if (!slots[i].owner.compare_exchange_strong(free, -1)) continue;
        std::memcpy(slots[i].path.data(), path.c_str(), path.size() + 1);
        slots[i].kind = kind;
        slots[i].owner = getpid();
        slot_ = i;
        return;
    }
}

void Transient::release() {
    if (slot_ == kNone) return;
    slots[slot_].owner = 0;
    slot_ = kNone;
}

void removeTransients() {
    const pid_t self = getpid();
    for (const Slot& slot : slots) {
        if (slot.owner != self) continue;
        if (slot.kind == Transient::Kind::File) {
            unlink(slot.path.data());
        } else {
            removeFolder(slot.path.data());
        }
    }
}

void removeTransientsAtSignals() {
    hasTerminal = tcgetattr(STDIN_FILENO, &terminalBefore) == 0;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;
        action = {};
        action.sa_handler = onEnd;
        sigemptyset(&action.sa_mask);
        for (const int other : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&action.sa_mask, other);
        sigaction(signal, &action, nullptr);
    }
}

}  // namespace dxf
