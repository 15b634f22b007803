#pragma once

#include "forms/controls.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace fakes {

using Texts = std::vector<std::string>;

/// A session for dialogs, on a drawing in memory behind the host that can fail, with the English texts.
struct DialogWorld : SessionWorld {
    DialogWorld() {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
    }

    /// Queues a look at the state in the middle of the acts.
    template <typename Look>
    void look(Look look) {
        screen.acts.push_back([look](forms::Form&) { look(); });
    }
    int shows(const std::string& form) const {
        return static_cast<int>(std::count(screen.log.begin(), screen.log.end(), "show " + form));
    }
    /// The failures that left a handler.
    Texts failures() const {
        Texts found;
        for (const std::string& entry : screen.log)
            if (entry.starts_with("failure")) found.push_back(entry);
        return found;
    }
    Texts boxTexts() const {
        Texts found;
        for (const forms::MessageBox& box : screen.boxes) found.push_back(box.text);
        return found;
    }
    static Texts entries(const forms::ListControl& list) {
        Texts found;
        for (int i = 0; i < list.listCount(); ++i) found.push_back(list.list(i));
        return found;
    }

    FakeHost host;
    FaultyHost faulty{host.document()};
};

}  // namespace fakes
