#include "replace/transcription.h"

namespace replace {
namespace {

/// The first row that feeds attributes of that tag, compared with case; 0 for none.
int rowFeeding(const TranscriptionTable& table, const std::string& tag) {
    const int rows = table.rowCount();
    for (int row = 1; row <= rows; ++row) {
        const std::string& destination = table.destination(row);
        if (!destination.empty() && destination == tag) return row;
    }
    return 0;
}

}  // namespace

void transcribe(const host::BlockReference& old, const host::BlockReference& reference,
                const std::function<const TranscriptionTable&()>& table) {
    const host::Attributes attributes = reference.GetAttributes();
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const host::AttributeReference attribute = attributes.at(i);
        const TranscriptionTable& rows = table();
        const int row = rowFeeding(rows, attribute.TagString());
        if (row == 0) continue;
        // The old array is taken afresh for each attribute; its element counts by position, not by its tag.
        const host::Attributes oldAttributes = old.GetAttributes();
        attribute.setTextString(oldAttributes.at(static_cast<std::size_t>(row - 1)).TextString());
    }
}

}  // namespace replace
