#pragma once

#include "extract/extract_command.h"
#include "extract/fm_extract.h"
#include "extract/fm_re_insert.h"
#include "extract/fm_vn_message.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

/// A session with the dialogs of extraction and re-insertion, on a drawing in memory behind the host that can
/// fail, with the English texts.
struct ExtractWorld : fakes::SessionWorld {
    ExtractWorld() {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
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
    static Texts entries(const forms::ListControl& list) {
        Texts found;
        for (int i = 0; i < list.listCount(); ++i) found.push_back(list.list(i));
        return found;
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

    fakes::FakeHost host;
    fakes::FaultyHost faulty{host.document()};
};

inline const char* const kColumnLine =
    "N\xB0\tX insertion\tY insertion\tZ insertion\tEch. X\tEch. Y\tEch. Z\tRotation";
