#pragma once

#include "basic/numbers.h"
#include "desk/jobs/dialog_run.h"
#include "desk/jobs/options.h"
#include "desk/jobs/result.h"
#include "desk/shell/desk.h"

namespace jobs {

/// What a job on one drawing works with.
struct Job {
    const Arguments& arguments;
    const basic::Regional& regional;
    shell::Desk& desk;
    DialogRun& dialogs;
    PlannedPrompter& prompter;
    Result& result;
    /// Where an extraction or a picture of this drawing goes; empty where its table goes into a file with
    /// others.
    std::string output;

    drawing::Drawing& drawing() const { return desk.document().drawing(); }
    /// Runs a command of the add-in by the planned acts. Raises JobError.
    void runCommand(const char* name) const;
};

// The jobs. Each works on the open drawing and doesn't save it. They raise JobError and basic::Error.

void replaceBlocks(Job& job);
void extractBlocks(Job& job);
void insertRows(Job& job);
void updateAttributes(Job& job);
void listBlocks(Job& job);
void checkDrawing(Job& job);
void drawPicture(Job& job);

/// Tests what the options of a verb say before any drawing is opened. Raises UsageError.
void checkOptions(const Arguments& arguments);
void checkPictureOptions(const Arguments& arguments);

}  // namespace jobs
