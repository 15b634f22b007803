#pragma once

#include "replace/fm_att_set.h"
#include "replace/fm_replace.h"
#include "replace/replace_command.h"
#include "tests/fakes/dialog_world.h"

#include <string>

using fakes::Texts;

/// The dialogs of the replacement on a drawing with two doors, whose block has the attributes MARK and ROOM,
/// a chair without any, and a lamp that isn't inserted, with the attributes ROOM and CODE.
struct ReplaceWorld : fakes::DialogWorld {
    ReplaceWorld() {
        replace::registerForms(session);
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
    void close() { screen.click("BtnClose"); }

    fakes::FakeReferencePtr firstDoor, secondDoor;
};

inline const char* const kSuccess = "Blocks references replaced succesfully.";
