#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/drawing/tag_edit.h"

namespace drawing {

namespace {

constexpr std::string_view kLayerPart = "AcDbLayerTableRecord";
constexpr int kFrozenBit = 1;
constexpr int kLockedBit = 4;

}  // namespace

void Drawing::setLayerState(std::string_view name, const LayerState& state) {
    const NameKey key = store_->names.find(name);
    Layer* layer = layers_.find(key);
    if (layer == nullptr || layer->record == kNoEntity || store_->isErased(layer->record)) {
        raise(kKeyNotFound, std::string(name));
    }
    if (state.color < 1 || state.color > 255) raise(kInvalidInput, "a layer's colour");
    std::int64_t flags = 0;
    dxf::TagReader reader = store_->reader(layer->record);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 70) flags = tag.integerOr(0);
    }
    const auto setBit = [&flags](int bit, bool on) { flags = on ? flags | bit : flags & ~bit; };
    setBit(kFrozenBit, state.frozen);
    setBit(kLockedBit, state.locked);
    const UndoStep step(*this);
    TagEdit& edit = store_->freshEdit();
    edit.integer(70, kLayerPart, flags);
    edit.integer(62, kLayerPart, state.on ? state.color : -state.color);
    // A true colour would go on hiding the number.
    if (state.color != layer->color) edit.remove(420, kLayerPart);
    applyEdit(layer->record, edit);
    layer->readState(store_->reader(layer->record));
}

void Drawing::refreshLayers(const StepLog& log) {
    for (const auto& [id, before] : log.records) {
        const Record record = store_->record(id);
        if (record.type != kLayerEntry) continue;
        Layer* layer = layers_.find(store_->names.key(record.name));
        if (layer != nullptr && layer->record == id) layer->readState(store_->reader(id));
    }
}

void Drawing::setCurrentLayer(std::string_view name) {
    const NameKey key = store_->names.find(name);
    if (key == NameKey::None || !layers_.contains(key)) raise(kKeyNotFound, std::string(name));
    setVariable("$CLAYER", 8, layers_[key].name);
}

}  // namespace drawing
