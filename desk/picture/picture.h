#pragma once

#include "desk/picture/display_list.h"
#include "desk/picture/list_builder.h"
#include "desk/picture/styles.h"
#include "desk/shapes/scene.h"
#include "desk/shapes/text_style.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace picture {

/// How POINT entities look ($PDMODE, $PDSIZE).
struct PointStyle {
    int mode = 0;
    double size = 0;  ///< drawing units; 0 or below: percent of the view's height, 0 standing for 5
};

/// A drawing prepared for drawing it: each block and space as a display list, made when it is first asked
/// for. Layers, colours and linetypes are resolved in it once.
class Picture : public drawing::Companion {
  public:
    explicit Picture(const Drawing& drawing);

    /// Brings it in line with the drawing, by its journal. Of a space only entities that changed are prepared
    /// anew; a change of tables or of a block's content prepares everything anew, at the next question for
    /// it.
    void update();

    /// A block that stands in itself, or nests too deeply, is empty there.
    const DisplayList& list(BlockId block);
    /// The box about all that a space or a block shows.
    Box extents(BlockId block) { return list(block).bounds; }
    /// What isn't shown of a space; kinds that aren't drawn also of the blocks in it, each block once.
    Counts counts(BlockId space);
    /// The number of an entity's item in its space's list; nothing where it draws nothing.
    std::optional<std::size_t> itemOf(BlockId space, EntityId entity);
    /// Visits the numbers of a space's items that may meet an area, in drawing order.
    template <typename Visit>
    void forEachItemNear(BlockId space, const geometry::Rectangle& area, const Visit& visit) {
        shapes::sceneOf(drawing_).space(space).forEachNear(area,
                                                           [&](EntityId entity, const geometry::Rectangle&) {
                                                               if (const auto item = itemOf(space, entity))
                                                                   visit(*item);
                                                               return true;
                                                           });
    }
    /// Entities of a space whether they are hidden or not, for those who point at them.
    DisplayList listEvenHidden(const std::vector<EntityId>& entities);

    const Drawing& drawing() const { return drawing_; }
    const PenTable& pens() const { return pens_; }
    const LineTypes& lineTypes() const { return styles_->lineTypes(); }
    const shapes::TextStyles& textStyles() const { return *textStyles_; }
    /// A pen of the foreground's colour.
    PenId plainPen() { return pens_.intern({}); }
    const PointStyle& pointStyle() const { return pointStyle_; }

  private:
    /// An entity of a list as it was when it was prepared.
    struct Source {
        EntityId entity = kNoEntity;
        Shown shown = Shown::Drawn;
    };
    struct Prepared {
        DisplayList list;
        std::vector<Source>
            sources;  ///< in drawing order; of each that is drawn the list has an item, in order
        std::vector<std::uint32_t> itemByEntity;  ///< number + 1 of an item, from `firstEntity` on
        EntityId firstEntity = 0;
        std::size_t fullSize = 0;  ///< of the list's points when nothing in it was out of use
    };
    const Prepared& prepared(BlockId block);
    void prepare(BlockId block, Prepared& into);
    void renew(BlockId block, const std::vector<EntityId>& touched, Prepared& of);
    void finish(Prepared& of) const;
    void addPlacedBounds(DisplayList& list, Item& item);
    void addUndrawn(BlockId block, std::vector<bool>& seen, Counts& counts);
    Source add(ListBuilder& builder, EntityId id, bool inBlock, DisplayList& list);
    std::uint64_t stampOfSettings() const;
    void reset();

    const Drawing& drawing_;
    std::unique_ptr<Styles> styles_;
    std::unique_ptr<shapes::TextStyles> textStyles_;
    PenTable pens_;
    PointStyle pointStyle_;
    std::vector<std::unique_ptr<Prepared>> blocks_;
    std::vector<bool> open_;  ///< being prepared
    int depth_ = 0;
    bool lackedBlock_ = false;  ///< a reference was met whose block the drawing lacks
    std::uint64_t revision_ = 0;
    std::uint64_t seen_ = 0;      ///< place in the drawing's journal
    std::uint64_t settings_ = 0;  ///< stamp of tables and variables
};

/// The picture that is kept with a drawing, made when it is first asked for. Who asks brings it in line by
/// `update` when the drawing has changed.
Picture& pictureOf(const Drawing& drawing);
/// Makes what the first picture of model space and the first pick wait for, on the thread that calls.
void prepare(const Drawing& drawing);

/// Block coordinates to those of the space that it is placed in, for one copy of an array.
Transform placedTransform(const Drawing& drawing, const shapes::Placed& placed, int column, int row);

}  // namespace picture
