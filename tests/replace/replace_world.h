#pragma once

#include "forms/controls.h"
#include "replace/fm_att_set.h"
#include "replace/fm_replace.h"
#include "replace/replace_command.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

/// A session with the dialogs of the replacement, on a drawing in memory behind the host that can fail, with
/// the English texts.
struct ReplaceWorld : fakes::SessionWorld {
    ReplaceWorld() {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
        replace::registerForms(session);
    }

    /// A drawing with two doors, whose block has the attributes MARK and ROOM, a chair without any, and a
    /// lamp that isn't inserted, with the attributes ROOM and CODE.
    void furnish() {
        host.addBlock("DOOR", {{"MARK", "D"}, {"ROOM", "?"}});
        host.addBlock("chair");
        host.addBlock("LAMP", {{"ROOM", "nowhere"}, {"CODE", "L"}});
        firstDoor = host.addReference("DOOR", {1, 2, 3}, {"D1", "hall"});
        secondDoor = host.addReference("DOOR", {4, 5, 6}, {"D2", "cellar"});
        host.addReference("chair");
    }

    replace::fmReplace& dialog() { return session.form<replace::fmReplace>("fmReplace"); }
    replace::fmAttSet& table() { return session.form<replace::fmAttSet>("fmAttSet"); }

    /// Runs the command; the queued acts end it.
    void run() {
        replace::RunReplaceCommand(session);
        EXPECT_FALSE(dialog().visible());
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
    }
    /// Queues a look at the state in the middle of the acts.
    template <typename Look>
    void look(Look look) {
        screen.acts.push_back([look](forms::Form&) { look(); });
    }
    void close() { screen.click("BtnClose"); }

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

    fakes::FakeHost host;
    fakes::FaultyHost faulty{host.document()};
    fakes::FakeReferencePtr firstDoor, secondDoor;
};

inline const char* const kSuccess = "Blocks references replaced succesfully.";
