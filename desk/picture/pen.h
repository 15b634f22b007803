#pragma once

#include "desk/picture/color.h"
#include "desk/picture/line_type.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace picture {

/// Where a property of a pen comes from: the entity or its layer, the reference that places it (ByBlock), or
/// that reference's layer (ByLayer on layer 0).
enum class From : std::uint8_t { Own, Reference, ReferenceLayer };

/// A lineweight in hundredths of a millimetre.
using Weight = std::int16_t;
/// That of entities and layers which leave it to the drawing.
inline constexpr Weight kDefaultWeight = 25;

/// What of a pen a reference hands down.
struct Look {
    Color color{255, 255, 255, true};
    LineTypes::Number lineType = 0;
    Weight weight = kDefaultWeight;
    std::uint8_t opacity = 255;  ///< 0 shows nothing

    friend bool operator==(const Look&, const Look&) = default;
};

/// With what an entity of a block is drawn.
struct Pen {
    Look look;
    float lineTypeScale = 1;
    From colorFrom = From::Own;
    From lineTypeFrom = From::Own;
    From weightFrom = From::Own;
    From opacityFrom = From::Own;

    friend bool operator==(const Pen&, const Pen&) = default;
};
using PenId = std::uint32_t;

/// What a reference hands down to what its block holds.
struct Context {
    Look reference;       ///< its own colour, linetype, weight and opacity: for ByBlock
    Look referenceLayer;  ///< those of its layer: for ByLayer on layer 0

    /// The pen's look in a reference.
    Look resolve(const Pen& pen) const;
};

/// The pens of a picture, each once.
class PenTable {
  public:
    PenId intern(const Pen& pen);
    const Pen& operator[](PenId id) const { return pens_[id]; }

  private:
    struct Hash {
        std::size_t operator()(const Pen& pen) const;
    };
    std::vector<Pen> pens_;
    std::unordered_map<Pen, PenId, Hash> ids_;
    PenId last_ = 0;  ///< neighbours often share a pen
};

}  // namespace picture
