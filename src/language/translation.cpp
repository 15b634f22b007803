#include "language/translation.h"

#include "basic/error_state.h"
#include "basic/text.h"
#include "forms/control.h"
#include "forms/form.h"
#include "language/language.h"
#include "platform/platform.h"
#include "session/settings.h"

#include <string_view>

namespace language {
namespace {

using basic::ErrorState;
using session::Session;

/// The first characters of `text`, as many as `model` has.
std::string_view firstCharacters(std::string_view text, std::string_view model) {
    std::size_t end = 0;
    for (std::size_t position = 0; position < model.size() && end < text.size();) {
        basic::nextCharacter(model, position);
        basic::nextCharacter(text, end);
    }
    return text.substr(0, end);
}

/// Steps through the controls from 0 to their count, one past the last on purpose: that step raises an error,
/// which is skipped with the rest of it.
template <typename Visit>
void forEachControlAndOnePast(ErrorState& error, forms::Form& Form, Visit&& visit) {
    const int count = Form.controlCount();
    for (int i = 0; i <= count; ++i) {
        error.clear();
        visit(i);
    }
}

}  // namespace

void TranslateForm(const Session& session, forms::Form& Form, std::string& Prefix, std::int16_t Mode,
                   const std::string& Language) {
    ErrorState error;
    const auto translated = [&](const std::string& key, const std::string& value) {
        std::string file;
        return LngValue(session, key, file, Mode, value);
    };
    if (Prefix.empty()) Prefix = Form.name();
    error.skip([&] { Form.setCaption(translated(Prefix + "_me", Form.caption())); });
    forEachControlAndOnePast(error, Form, [&](int i) {
        std::string current;
        error.skip([&] { current = Form.control(i).caption(); });
        if (error.failed()) return;  // a control without a caption
        // Only a write takes the value: the captions of one language serve as the start of its file.
        const bool own = basic::toUpper(session.CurLng.Name) == basic::toUpper(Language);
        error.skip([&] {
            Form.control(i).setCaption(translated(Prefix + "_" + std::to_string(i), own ? current : ""));
        });
    });
}

basic::Variant InitForm(Session& session, forms::Form& Form) {
    ErrorState error;
    error.skip([&] { session.platform().initCommonControls(); });
    // Automatic redrawing needs no switch here: every face draws a form's model whenever it changes.
    error.skip([&] { Form.setIcon(session.form("fmAbout").icon()); });  // creates it at the first time
    error.skip([&] {
        std::string prefix = Form.tag();
        TranslateForm(session, Form, prefix, session::kReadEntry, "");
    });
    const std::string caption = Form.caption();
    if (firstCharacters(caption, session.AppName) != session.AppName)
        error.skip([&] { Form.setCaption(session.AppTitle + " : " + caption); });
    forEachControlAndOnePast(error, Form, [&](int i) {
        error.skip([&] { Form.control(i).setHelpContextId(Form.helpContextId()); });
    });
    Form.rememberDesign();
    return {};
}

}  // namespace language
