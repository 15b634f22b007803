#include "replace/replacement_engine.h"

#include "basic/numbers.h"
#include "forms/screen.h"
#include "host/document.h"
#include "language/language.h"
#include "replace/messages.h"

#include <limits>

namespace replace {
namespace {

host::BlockReference insertInPlaceOf(const Session& session, const host::BlockReference& old,
                                     const ReplacementFields& fields) {
    const host::Variant point = old.InsertionPoint();
    const std::string& name = fields.blockName();
    const double xScale = old.XScaleFactor();
    const double yScale = old.YScaleFactor();
    const double zScale = old.ZScaleFactor();
    const double rotation = old.Rotation();
    return host::Document(session.AcadDoc)
        .ModelSpace()
        .InsertBlock(point, name, xScale, yScale, zScale, rotation);
}

/// The texts go to the host as they stand: it converts them, and it alone refuses.
void applyOverrides(const host::BlockReference& reference, const ReplacementFields& fields, bool visible) {
    if (const std::string* text = fields.xScale()) reference.setXScaleFactor(*text);
    if (const std::string* text = fields.yScale()) reference.setYScaleFactor(*text);
    if (const std::string* text = fields.zScale()) reference.setZScaleFactor(*text);
    if (const std::string* text = fields.rotation()) reference.setRotation(*text);
    // "Unchanged" makes no assignment: an invisible old reference gives a visible new one.
    if (fields.overridesVisibility() && fields.visibilityIndex() != kVisibilityUnchanged)
        reference.setVisible(visible);
}

void replaceOne(const Session& session, const host::BlockReference& old, const ReplacementFields& fields,
                bool visible) {
    const host::BlockReference reference = insertInPlaceOf(session, old, fields);
    applyOverrides(reference, fields, visible);
    if (fields.transcribesAttributes()) {
        transcribe(old, reference,
                   [&]() -> const TranscriptionTable& { return fields.transcriptionTable(); });
    }
    old.Delete();
    reference.Update();
}

/// The next value of a 16-bit counter.
std::int16_t next(std::int16_t counter) { return basic::toInt16(counter + 1.0); }

}  // namespace

void ReplaceBlocks(const Session& session, const ReplacementFields& fields) {
    const bool visible = fields.visibilityIndex() == kVisibilityOn;
    const host::SelectionSet set(session.ReplaceSelectionSet);
    const std::int16_t count = basic::toInt16(set.Count());
    // The counter goes one past the last reference, which 32,767 references don't leave room for.
    for (std::int16_t i = 1; i <= count; i = next(i))
        replaceOne(session, host::BlockReference(set.Item(i - 1)), fields, visible);

    using Box = forms::MessageDialog;
    session.screen().messageBox({language::GetMsg(session, kReplaced), language::GetMsg(session, kBoxTitle),
                                 Box::Buttons::Ok, Box::Icon::Information});
}

}  // namespace replace
