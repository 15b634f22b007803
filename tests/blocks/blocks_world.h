#pragma once

#include "tests/fakes/fake_host.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"

#include <string>
#include <vector>

/// A session on a drawing in memory, behind the host that can fail, with the English texts.
struct BlocksWorld : fakes::SessionWorld {
    BlocksWorld() {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
    }

    fakes::FakeHost host;
    fakes::FaultyHost faulty{host.document()};
};

using Texts = std::vector<std::string>;
