#include "extract/extract_command.h"

#include "extract/fm_extract.h"
#include "extract/fm_re_insert.h"
#include "extract/fm_vn_message.h"
#include "language/dialog.h"

#include <memory>

namespace extract {

void registerForms(Session& session) {
    session.registerForm("fmExtract", [](Session& s) { return std::make_unique<fmExtract>(s); });
    session.registerForm("fmVnMessage", [](Session& s) { return std::make_unique<fmVnMessage>(s); });
    session.registerForm("fmReInsert", [](Session& s) { return std::make_unique<fmReInsert>(s); });
}

void StartReInsert(Session& session) {
    auto& dialog = session.form<fmReInsert>("fmReInsert");
    do {
        language::showOwned(session, dialog);
    } while (!dialog.IsClosed);
}

}  // namespace extract
