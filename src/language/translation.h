#pragma once

#include "basic/variant.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace forms {
class Form;
}

namespace language {

/// Gives a dialog and its controls the captions of the current language: key `Prefix` + "_me" for the dialog,
/// `Prefix` + "_" + index for a control. An empty `Prefix` becomes the dialog's name. A missing key empties
/// the caption; an unreadable file leaves all as it is. Raises nothing.
void TranslateForm(const session::Session& session, forms::Form& Form, std::string& Prefix, std::int16_t Mode,
                   const std::string& Language);

/// The set-up that every dialog runs first in its Form_Initialize: common controls, automatic redrawing, the
/// common icon, translation, the product's title in front of the caption, the help context on all controls.
/// Raises nothing; returns an empty variant.
basic::Variant InitForm(session::Session& session, forms::Form& Form);

}  // namespace language
