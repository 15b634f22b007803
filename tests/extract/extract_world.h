#pragma once

#include "extract/extract_command.h"
#include "extract/fm_extract.h"
#include "extract/fm_re_insert.h"
#include "extract/fm_vn_message.h"
#include "tests/fakes/dialog_world.h"

#include <string>

using fakes::Texts;

/// The dialogs of extraction and re-insertion.
struct ExtractWorld : fakes::DialogWorld {
    ExtractWorld()
        : ExtractWorld(fakes::drawingOf(
              {{"TREE", {{"SPECIES", "oak"}, {"GIRTH", "?"}}},
               {"bench", {}},
               {"ODD", {{"SPECIES", "s"}, {"SPECIES", "t"}, {"X_", "x"}, {"AGE", "a"}, {"GIRTH", "g"}}}})) {}
    explicit ExtractWorld(const drawing::PlainDrawing& plain) : DialogWorld(plain) {
        extract::registerForms(session);
    }

    extract::fmExtract& extraction() { return session.form<extract::fmExtract>("fmExtract"); }
    extract::fmReInsert& insertion() { return session.form<extract::fmReInsert>("fmReInsert"); }

    /// Show the dialog as its command does; the queued acts end it.
    void runExtraction() {
        extraction().show(screen, &session.form("fmOwner"));
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
    }
    void runInsertion() {
        extract::StartReInsert(session);
        EXPECT_TRUE(screen.acts.empty()) << "acts that nobody did";
    }
    static Texts headers(const forms::ListView& view) {
        Texts found;
        for (int i = 1; i <= view.columnHeaders().count(); ++i)
            found.push_back(view.columnHeaders().item(i).text);
        return found;
    }
    /// A row with all its cells, set or not.
    static Texts row(const forms::ListView& view, int index) {
        const forms::ListItem& item = view.listItems().item(index);
        Texts found{item.text()};
        for (int i = 1; i < view.columnHeaders().count(); ++i) found.push_back(item.subItem(i));
        return found;
    }
    /// The mappings of the parameters, in their order.
    static Texts mappings(const forms::ListView& parameters) {
        Texts found;
        for (int i = 1; i <= parameters.listItems().count(); ++i)
            found.push_back(parameters.listItems().item(i).subItem(1));
        return found;
    }
};
