#include "blocks/pick.h"

#include "basic/error_state.h"
#include "blocks/filter.h"
#include "forms/screen.h"
#include "host/document.h"
#include "language/language.h"

#include <optional>

namespace blocks {
namespace {

constexpr std::int32_t kNotABlock = 105;
constexpr std::int32_t kPickTitle = 106;

forms::Answer askWhetherToGoOn(const Session& session) {
    using Box = forms::MessageDialog;
    return session.screen().messageBox({language::GetMsg(session, kNotABlock),
                                        session.AppTitle + language::GetMsg(session, kPickTitle),
                                        Box::Buttons::OkCancel, Box::Icon::Exclamation});
}

}  // namespace

host::BlockReference PickBlockReference(const Session& session, const std::string& prompt) {
    basic::ErrorState errors;  // errors are ignored throughout
    // A wrong object stays here while the next pick fails, and so takes the message's path again.
    host::ObjectPtr picked;
    for (;;) {
        errors.clear();
        host::Variant point;  // never read
        errors.skip([&] { host::Document(session.AcadDoc).Utility().GetEntity(picked, point, prompt); });
        const bool wrong =
            errors.test([&] { return host::Entity(picked).ObjectName() != "AcDbBlockReference"; });
        if (!wrong) return host::BlockReference(picked);

        std::optional<forms::Answer> answer;
        errors.skip([&] { answer = askWhetherToGoOn(session); });
        if (answer == forms::Answer::Ok) continue;
        if (answer == forms::Answer::Cancel) return {};
        return host::BlockReference(picked);
    }
}

void SelectBlockReferencesOnScreen(const host::SelectionSet& set, std::string_view name) {
    set.Clear();
    set.SelectOnScreen(nameFilter(kAnyBlockReference, name));
}

}  // namespace blocks
