#include "language/dialog.h"

#include "language/language.h"
#include "platform/platform.h"

#include <optional>

namespace language {

void showOwned(session::Session& session, forms::Form& dialog) {
    dialog.show(session.screen(), &session.form("fmOwner"));
}

void Dialog::Form_Help(int context) {
    session_.platform().showHelp(session_.HelpFile,
                                 context == 0 ? std::nullopt : std::optional<std::int32_t>(context));
}

std::string Dialog::message(std::int32_t id) const { return GetMsg(session_, id); }

}  // namespace language
