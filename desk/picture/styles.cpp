#include "desk/picture/styles.h"

#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/dxf/tag_reader.h"

#include <cstdlib>
#include <functional>

namespace picture {

namespace {

/// Values of group 370.
enum : int { kByLayer = -1, kByBlock = -2, kDefault = -3 };

/// Of group 440, and of the extended data of a layer.
enum : std::int64_t { kTransparencyByBlock = 1, kTransparencyOwn = 2 };

std::uint8_t opacityOf(std::int64_t value) {
    return value >> 24 == kTransparencyOwn ? static_cast<std::uint8_t>(value & 0xFF) : 255;
}

}  // namespace

Styles::Styles(const Drawing& drawing) : drawing_(drawing), lineTypes_(drawing) {
    const std::vector<drawing::Layer>& layers = drawing.layers().all();
    layers_.reserve(layers.size());
    for (const drawing::Layer& layer : layers) {
        layers_.push_back(layer.record == kNoEntity ? Look{} : readLayer(layer.record));
    }
}

Look Styles::readLayer(EntityId record) const {
    Look look;
    bool hasTrueColor = false;
    dxf::TagReader reader = drawing_.tags(record);
    bool isTransparency = false;
    for (dxf::Tag tag; reader.next(tag);) {
        if (tag.code == 1001) isTransparency = tag.raw == "AcCmTransparency";
        if (tag.code == 1071 && isTransparency) look.opacity = opacityOf(tag.integerOr(0));
        if (tag.code >= 1000) continue;
        if (tag.code == 62 && !hasTrueColor) look.color = paletteColor(static_cast<int>(tag.integerOr(7)));
        if (tag.code == 420) {
            look.color = trueColor(tag.integerOr(0));
            hasTrueColor = true;
        }
        if (tag.code == 6) look.lineType = lineTypes_.find(tag.text());
        if (tag.code == 370 && tag.integerOr(kDefault) >= 0)
            look.weight = static_cast<Weight>(tag.integerOr(0));
    }
    return look;
}

std::uint32_t Styles::layerNumber(EntityId id) const {
    const drawing::Layer& layer = drawing_.layer(id);
    const std::vector<drawing::Layer>& all = drawing_.layers().all();
    const std::less<> before;
    if (before(&layer, all.data()) || !before(&layer, all.data() + all.size())) return 0xFFFFFFFF;
    return static_cast<std::uint32_t>(&layer - all.data());
}

const Look& Styles::layerLook(EntityId id) const {
    const std::uint32_t number = layerNumber(id);
    return number < layers_.size() ? layers_[number] : missingLayer_;
}

Styles::EntityStyle Styles::of(EntityId id) const {
    EntityStyle style;
    style.onLayerZero = drawing_.layerName(id) == "0";
    style.layer = layerLook(id);
    Pen& pen = style.pen;
    pen.look = style.layer;
    const From layer = style.onLayerZero ? From::ReferenceLayer : From::Own;
    pen.colorFrom = pen.lineTypeFrom = pen.weightFrom = pen.opacityFrom = layer;
    const auto takeColor = [&](const Color& color) {
        pen.look.color = color;
        pen.colorFrom = From::Own;
    };
    bool hasTrueColor = false;
    std::string scratch;
    dxf::TagReader reader = drawing_.tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000 && tag.code != 101;) {
        switch (tag.code) {
            case 6: {
                const std::string_view name = tag.text(scratch);
                if (basic::equalIgnoringCase(name, "BYLAYER")) break;
                pen.lineTypeFrom = basic::equalIgnoringCase(name, "BYBLOCK") ? From::Reference : From::Own;
                pen.look.lineType = lineTypes_.find(name);
                break;
            }
            case 48:
                pen.lineTypeScale = static_cast<float>(tag.numberOr(1));
                break;
            case 62: {
                const auto number = static_cast<int>(tag.integerOr(256));
                if (number == 0) pen.colorFrom = From::Reference;
                if (number != 0 && std::abs(number) < 256 && !hasTrueColor) takeColor(paletteColor(number));
                break;
            }
            case 370: {
                const auto weight = static_cast<int>(tag.integerOr(kByLayer));
                if (weight == kByBlock) pen.weightFrom = From::Reference;
                if (weight == kDefault || weight >= 0) {
                    pen.weightFrom = From::Own;
                    pen.look.weight = weight >= 0 ? static_cast<Weight>(weight) : kDefaultWeight;
                }
                break;
            }
            case 420:
                hasTrueColor = true;
                takeColor(trueColor(tag.integerOr(0)));
                break;
            case 440: {
                const std::int64_t value = tag.integerOr(0);
                if (value >> 24 == kTransparencyByBlock) pen.opacityFrom = From::Reference;
                if (value >> 24 != kTransparencyOwn) break;
                pen.opacityFrom = From::Own;
                pen.look.opacity = opacityOf(value);
                break;
            }
            default:
                break;
        }
    }
    if (!(pen.lineTypeScale > 0)) pen.lineTypeScale = 1;
    return style;
}

}  // namespace picture
