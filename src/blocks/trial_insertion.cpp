#include "blocks/trial_insertion.h"

#include "host/document.h"
#include "host/object.h"

namespace blocks {

host::BlockReference insertTrial(const Session& session, std::string_view name) {
    constexpr std::int16_t kScale = 1;
    constexpr std::int16_t kRotation = 0;
    return host::Document(session.AcadDoc)
        .ModelSpace()
        .InsertBlock(host::toVariant({0, 0, 0}), name, kScale, kScale, kScale, kRotation);
}

host::BlockReference InsertTrialReference(const Session& session, std::string_view name) {
    if (name.empty()) return {};
    return insertTrial(session, name);
}

}  // namespace blocks
