#pragma once

#include "basic/error.h"

namespace fakes {

/// The number of the error that `act` raises, 0 for none.
template <typename Act>
int errorOf(Act&& act) {
    try {
        act();
    } catch (const basic::Error& error) {
        return error.number();
    }
    return 0;
}

}  // namespace fakes
