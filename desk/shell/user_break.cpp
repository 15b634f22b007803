#include "desk/shell/user_break.h"

#include <ctime>

namespace shell {

namespace {

sigset_t breakSignal() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    return signals;
}

}  // namespace

HeldBreak::HeldBreak(bool wanted) : wanted_(wanted) {
    const sigset_t signals = breakSignal();
    if (wanted_) pthread_sigmask(SIG_BLOCK, &signals, &before_);
}

HeldBreak::~HeldBreak() {
    if (!wanted_) return;
    take();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool HeldBreak::take() const {
    const sigset_t signals = breakSignal();
    const timespec atOnce{};
    return sigtimedwait(&signals, nullptr, &atOnce) == SIGINT;
}

void HeldBreak::check() const {
    if (wanted_ && take()) throw UserBreak();
}

}  // namespace shell
