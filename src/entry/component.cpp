#include "entry/component.h"

#include "about/register_forms.h"
#include "entry/fm_owner.h"
#include "extract/extract_command.h"
#include "labels/labels_command.h"
#include "replace/replace_command.h"

namespace entry {

Component::Component(platform::Platform& platform, forms::Screen& screen)
    : session_(std::make_shared<session::Session>(platform, screen)) {
    session_->registerForm("fmOwner", [](session::Session& s) { return std::make_unique<fmOwner>(s); });
    about::registerForms(*session_);
    labels::registerForms(*session_);
    replace::registerForms(*session_);
    extract::registerForms(*session_);
}

std::shared_ptr<VnObj0100> Component::createVnObj0100() { return std::make_shared<VnObj0100>(session_); }

}  // namespace entry
