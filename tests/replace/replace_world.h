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
    ReplaceWorld()
        : DialogWorld({{"DOOR", {{"MARK", "D"}, {"ROOM", "?"}}},
                       {"chair", {}},
                       {"LAMP", {{"ROOM", "nowhere"}, {"CODE", "L"}}},
                       {"TWIN", {{"ROOM", "1"}, {"room", "2"}, {"ROOM", "3"}, {"CODE", "4"}}}}) {
        replace::registerForms(session);
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

    host::ObjectPtr firstDoor = place("DOOR", {1, 2, 3}, {"D1", "hall"});
    host::ObjectPtr secondDoor = place("DOOR", {4, 5, 6}, {"D2", "cellar"});
    host::ObjectPtr chair = place("chair");
};
