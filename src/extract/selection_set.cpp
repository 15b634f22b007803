#include "extract/selection_set.h"

#include "host/document.h"

namespace extract {

host::SelectionSet firstSelectionSet(const session::Session& session, basic::ErrorState& errors) {
    const auto sets = [&] { return host::Document(session.AcadDoc).SelectionSets(); };
    host::SelectionSet set;
    if (errors.test([&] { return sets().Count() < 1; })) {
        errors.skip([&] { set = sets().Add("Selx0"); });
    } else {
        errors.skip([&] { set = sets().Item(std::int16_t{0}); });
    }
    return set;
}

}  // namespace extract
