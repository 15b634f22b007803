#pragma once

#include "basic/border.h"

#include <csignal>

namespace shell {

/// The user broke off what runs. It passes every handler, and the desk takes back what was done so far.
class UserBreak : public basic::Interruption {
  public:
    UserBreak() : Interruption("*Cancel*") {}
};

/// Keeps Ctrl-C (SIGINT) from ending the program as long as it lives: the signal waits until it is asked for.
class HeldBreak {
  public:
    /// Without `wanted` it does nothing.
    explicit HeldBreak(bool wanted);
    /// A signal that still waits came too late to break anything off, and is dropped.
    ~HeldBreak();
    HeldBreak(const HeldBreak&) = delete;
    HeldBreak& operator=(const HeldBreak&) = delete;

    /// Raises UserBreak once for each time the user asked for it.
    void check() const;

  private:
    bool take() const;

    bool wanted_;
    sigset_t before_{};
};

}  // namespace shell
