#pragma once

#include "platform/version.h"
#include "session/session.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_platform.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/temp_folder.h"

#include <string>

namespace fakes {

/// A session as a command's set-up leaves it, with its install folder in a temporary one.
struct SessionWorld {
    SessionWorld() {
        session.AppName = platform::kVersion.productName;
        session.AppTitle = "Vorlane 1.0";
        session.InstallPath = folder.path();
        session.IniFile = folder.file("Vorlane.ini");
        session.LngFolder = folder.path();
    }

    TempFolder folder;
    FakePlatform platform;
    RecordingScreen screen;
    session::Session session{platform, screen};
};

}  // namespace fakes
