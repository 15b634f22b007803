#pragma once

#include "about/register_forms.h"
#include "language/language.h"
#include "session/settings.h"
#include "tests/fakes/session_world.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace about {

/// A session with the delivered language files, and a third that a user dropped beside them.
struct AboutWorld : testing::Test, fakes::SessionWorld {
    AboutWorld() {
        for (const char* name : {"Francais.LNG", "English.LNG"})
            std::filesystem::copy(std::string(VORLANE_ROOT "/resources/languages/") + name, folder.path());
        folder.write("my.own.lng", ":Language=Espa\xF1ol\r\n001_6=P\xE1gina\r\nmsg_54=Acerca de \r\n");
        folder.write("Vorlane.ini", "Lng=English\r\n");
        load();
        about::registerForms(session);
    }
    /// What the set-up of a command does about languages.
    void load() {
        session.CurLng.Name = setting();
        language::LoadLanguages(session);
    }
    /// The stored choice, as UTF-8.
    std::string setting() { return session::readSetting(session, "Lng"); }
};

}  // namespace about
