#pragma once

#include "desk/picture/display_list.h"
#include "desk/picture/styles.h"
#include "desk/shapes/text_style.h"

#include <cstddef>
#include <map>
#include <string>

namespace picture {

/// What became of an entity in a list.
enum class Shown : std::uint8_t {
    Drawn,
    Empty,      ///< it has nothing to show, as an empty text
    Invisible,  ///< group 60
    Frozen,     ///< on a frozen layer
    Off,        ///< on a layer that is off
    NotDrawn,   ///< of a kind, or with a content, that no picture shows
};

/// Entities that a picture doesn't show, counted apart.
struct Counts {
    std::size_t invisible = 0;
    std::size_t frozen = 0;
    std::size_t off = 0;
    std::map<std::string, std::size_t> notDrawn;  ///< by type

    std::size_t hidden() const { return invisible + frozen + off; }
    std::size_t notDrawnTotal() const;
};

/// Fills display lists from a drawing's entities.
class ListBuilder {
  public:
    ListBuilder(const Drawing& drawing, const Styles& styles, const shapes::TextStyles& textStyles,
                PenTable& pens)
        : drawing_(drawing), styles_(styles), textStyles_(textStyles), pens_(pens) {}

    /// Appends what the entity draws by itself as an item, if it draws anything; the bounds of what it places
    /// aren't in it yet. `inBlock` tells that attribute definitions don't show.
    Shown add(EntityId id, bool inBlock, DisplayList& list);
    /// Whether it takes what is invisible, frozen or off for visible.
    void setShowsHidden(bool on) { showsHidden_ = on; }

  private:
    void addOwn(EntityId id, PenId pen, bool inBlock, DisplayList& list);
    void addAttributes(EntityId id, DisplayList& list, Item& item);
    void addPlacement(EntityId id, const Styles::EntityStyle& style, DisplayList& list, Item& item);
    void addGeometry(EntityId id, PenId pen, DisplayList& list);
    void addTexts(std::vector<shapes::TextPiece> pieces, PenId pen, DisplayList& list);
    void addTextGround(EntityId id, PenId pen, DisplayList& list);
    /// The pen with the colour of a text, see shapes::TextPiece; without one the pen itself.
    PenId penOf(PenId pen, const std::optional<std::int32_t>& color);

    const Drawing& drawing_;
    const Styles& styles_;
    const shapes::TextStyles& textStyles_;
    PenTable& pens_;
    bool showsHidden_ = false;
};

}  // namespace picture
