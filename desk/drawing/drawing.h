#pragma once

#include "desk/drawing/block_table.h"
#include "desk/drawing/companion.h"
#include "desk/drawing/entity_data.h"
#include "desk/drawing/errors.h"
#include "desk/drawing/header_variables.h"
#include "desk/drawing/ids.h"
#include "desk/drawing/journal.h"
#include "desk/drawing/layer_table.h"
#include "desk/drawing/selection.h"
#include "desk/dxf/file.h"

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace dxf {
struct Finding;
struct Format;
class Source;
class TagReader;
}  // namespace dxf

namespace drawing {

class Creator;
class Store;
struct StepLog;
struct UndoneStep;
class TagEdit;

/// How a file's faults are taken: Strict raises on what Lenient repairs or lives with.
enum class Reading { Strict, Lenient };

/// The parts of a main entity: attributes of an INSERT, vertices of a POLYLINE, its SEQEND at the end. A
/// range of entity numbers.
struct PartRange {
    EntityId first = 0;
    std::uint32_t count = 0;
};

/// A value of a variable of the header.
using HeaderValue = std::variant<std::string, double, std::int64_t, Point3>;

/// A drawing: a DXF file as ranges of its bytes, of which only what is changed gets bytes of its own. An
/// unchanged drawing is saved as it was, to the byte.
///
/// Members that take an entity raise kObjectErased where it is erased. Edits and deletions raise kLockedLayer
/// for an entity on a locked layer. Points are world coordinates, angles radians, unless the name says
/// otherwise.
class Drawing {
  public:
    /// Reads a file. Raises dxf::ReadError ("file:line: what") for what can't be read.
    static std::unique_ptr<Drawing> open(const std::string& path, Reading reading = Reading::Lenient);
    /// The same from bytes; `name` stands for the file in messages.
    static std::unique_ptr<Drawing> parse(std::string_view bytes, const std::string& name,
                                          Reading reading = Reading::Lenient);
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    /// The file that was opened or last saved to.
    const std::string& path() const { return path_; }
    /// What lenient reading repaired or lived with.
    const std::vector<dxf::Finding>& findings() const;
    const dxf::Format& format() const;
    /// Writes the drawing: a new file beside the old one, renamed over it; or the file itself, where its
    /// folder takes no new one, after a copy went to `backupFolder` (empty: never). Raises kDiskFull and its
    /// like; the old file then stays as it was.
    dxf::Saved save(const std::string& path, const std::string& backupFolder = {});
    /// The bytes that `save` writes.
    std::string savedBytes() const;
    /// Whether something was changed since opening or the last save.
    bool isModified() const { return state_ != savedState_; }
    /// Counts changes; what was derived from the drawing is out of date when it differs.
    std::uint64_t revision() const { return revision_; }
    /// The place in the journal of changes behind the last one, and what changed since a place.
    std::uint64_t journalEnd() const;
    Changes changesSince(std::uint64_t place) const;
    /// What is kept beside the drawing, see shapes::sceneOf.
    std::unique_ptr<Companion>& companion() const { return companion_; }

    const HeaderVariables& header() const { return header_; }
    const LayerTable& layers() const { return layers_; }
    const BlockTable& blocks() const { return blocks_; }
    BlockId modelSpace() const { return blocks_.modelSpace(); }
    /// The entries of the tables of a type ("LTYPE"), in the file's order.
    std::vector<EntityId> tableEntries(std::string_view type) const;
    /// Number of entities of a block or space that aren't erased.
    std::size_t entityCount(BlockId block) const;
    /// Walks the main entities of a block or space that aren't erased, in drawing order, until `visit`
    /// returns false. Entities added meanwhile are walked too.
    template <typename Visit>
    void forEachEntity(BlockId block, Visit&& visit) const {
        for (std::size_t i = 0; i < blocks_[block].entities.size(); ++i) {
            const EntityId id = blocks_[block].entities[i];
            if (!isErased(id) && !visit(id)) return;
        }
    }

    // One entity.

    bool isErased(EntityId id) const;
    /// Raises kObjectErased where it is erased.
    void requireAlive(EntityId id) const;
    /// The entity's type as the file spells it, "INSERT".
    std::string_view type(EntityId id) const;
    /// The same of an entity that may be erased.
    std::string_view typeEvenErased(EntityId id) const;
    /// The class name in the host, "AcDbBlockReference"; for a type that the host doesn't know its last
    /// subclass marker.
    std::string objectName(EntityId id) const;
    /// An object of the file that has no handle gets one that stands for it as long as the drawing is open;
    /// it isn't written.
    Handle handle(EntityId id) const;
    /// The object of a handle that isn't erased, entity or not; kNoEntity if there is none.
    EntityId byHandle(Handle handle) const;
    /// The block or space that the entity (or the entity that it is a part of) stands in; kNoBlock for table
    /// entries and objects.
    BlockId owner(EntityId id) const;
    /// The entity that a part belongs to, the entity itself if it is none.
    EntityId mainEntity(EntityId id) const;
    PartRange parts(EntityId id) const;
    /// The attribute references of an INSERT in the block's order; empty for others.
    std::vector<EntityId> attributes(EntityId id) const;
    /// Visits them without making a list.
    template <typename Visit>
    void forEachAttribute(EntityId id, Visit&& visit) const {
        const PartRange all = parts(id);
        for (EntityId part = all.first; part < all.first + all.count; ++part) {
            if (isAttribute(part)) visit(part);
        }
    }

    /// The entity's tags as bytes of the file's format, its parts not among them.
    std::string_view bytes(EntityId id) const;
    dxf::TagReader tags(EntityId id) const;

    const Layer& layer(EntityId id) const;
    std::string_view layerName(EntityId id) const;
    bool isOnLockedLayer(EntityId id) const;
    /// Whether group 60 hides it.
    bool isInvisible(EntityId id) const;
    /// Whether it can be seen: not invisible (60), its layer neither off nor frozen.
    bool isDisplayed(EntityId id) const;
    CommonData common(EntityId id) const;
    /// A block reference; raises kNotApplicable for another type.
    InsertData insert(EntityId id) const;
    /// The block that a reference shows; kNoBlock where the drawing lacks it.
    BlockId referencedBlock(EntityId id) const;
    /// Where a block reference stands, for those who need nothing else.
    Placement placement(EntityId id) const;
    /// The tag and the text of an attribute alone.
    std::string attributeTag(EntityId id) const;
    std::string attributeText(EntityId id) const;
    /// An ATTRIB or ATTDEF; raises kNotApplicable for another type.
    AttribData attribute(EntityId id) const;
    /// The name (group 2) of a reference as the block's definition spells it; of another entity its group 2.
    std::string name(EntityId id) const;

    // Edits. Each keeps every other tag's bytes as they stand.

    /// Sets a block reference's insertion point, scale factors (raising kInvalidInput for 0) and rotation.
    /// Its attributes move with it.
    void setInsertionPoint(EntityId id, const Point3& point);
    void setScale(EntityId id, const Vector3& scale);
    void setRotation(EntityId id, double radians);
    /// Group 60. A reference's attributes follow.
    void setVisible(EntityId id, bool visible);
    /// The text of an attribute, group 1; of a multi-line one its embedded text too.
    void setAttributeText(EntityId id, std::string_view text);
    /// Sets the first group of that code behind the subclass marker (empty: anywhere), adding it where
    /// absent.
    void setText(EntityId id, int code, std::string_view subclass, std::string_view value);
    void setNumber(EntityId id, int code, std::string_view subclass, double value);
    void setInteger(EntityId id, int code, std::string_view subclass, std::int64_t value);

    /// Sets a variable of the header ("$CLAYER") to a group of that code; a point has three groups. Raises
    /// kInvalidInput where the file has no section of variables.
    void setVariable(std::string_view name, int code, const HeaderValue& value);

    /// Deletes an entity with its parts and what it hard-owns (extension dictionary).
    void erase(EntityId id);

    /// The definitions that nothing uses, see BlockUses.
    std::vector<BlockId> unusedBlocks() const;
    /// Deletes them; their names.
    std::vector<std::string> purgeBlocks();

    // New entities. They go to the end of model space with the current layer, colour, linetype and so on.

    /// A reference of a block, with attribute references made from the block's attribute definitions that
    /// aren't constant. Raises kInvalidInput for a scale of 0 and for a block that is a space, kKeyNotFound
    /// for an erased one.
    EntityId insertBlock(BlockId block, const Point3& point, const Vector3& scale, double rotation);
    EntityId addLine(const Point3& start, const Point3& end);
    /// Puts an entity that was made since the drawing was opened at the end of another space. Raises
    /// kNotApplicable for one of the file.
    void moveToSpace(EntityId id, BlockId space);

    // Selection.

    /// The main entities of all spaces (layouts too, block definitions not) that pass the filter, in drawing
    /// order.
    std::vector<EntityId> select(const Filter& filter) const;
    /// Those of `among` that are such entities and pass, in the order of `among`.
    std::vector<EntityId> select(const Filter& filter, const std::vector<EntityId>& among) const;

    // Layers and the current one. They raise kKeyNotFound for a layer that the table lacks.

    void setLayerState(std::string_view name, const LayerState& state);
    /// $CLAYER.
    void setCurrentLayer(std::string_view name);

    // Undo. An edit outside a step is a step of its own; steps nest, the outermost counts.

    void beginStep(std::string name = {});
    /// A step that leaves the drawing as it was is none, and no change of the drawing.
    void endStep();
    /// Gives the open step another name.
    void nameStep(std::string name);
    bool canUndo() const;
    bool canRedo() const;
    /// Names of the step that would be undone or redone; empty for one without.
    std::string undoName() const;
    std::string redoName() const;
    /// Restores the drawing of before the last step, handle seed and bytes included. False if there is none.
    bool undo();
    /// Brings the step back that was undone last, with the numbers and handles that it gave. False if there
    /// is none: any edit gives up what was undone.
    bool redo();
    /// Numbers from here on are still free: what a command makes begins here.
    EntityId firstFree() const;

  private:
    friend class Opener;
    friend class Inside;
    explicit Drawing(dxf::Source source);
    void noteChange() { state_ = ++revision_; }
    bool isAttribute(EntityId id) const;
    /// Raises kObjectErased or kLockedLayer.
    void requireEditable(EntityId id) const;
    /// Applies an edit inside an open step; bytes that come out the same are no change.
    void applyEdit(EntityId id, TagEdit& edit);
    void setReference(EntityId id, const Placement& placement);
    void moveAttributes(EntityId id, const Placement& from, const Placement& to);
    /// Brings a record in line with its groups after an edit that may have touched what the record tells.
    void refreshRecord(EntityId id);
    void eraseOwned(EntityId id);
    void eraseObject(EntityId id);
    void eraseDefinition(BlockId id);
    /// Group 330 outside of braces, 0 where there is none.
    Handle ownerHandle(EntityId id) const;
    /// The first of the handles that stand for objects without one.
    Handle standInBase() const;
    EntityId addToModelSpace(EntityId id);
    /// Takes a new entity from the list of its space to that of another.
    void changeSpace(EntityId id, BlockId space);
    void undoRecords(const StepLog& log);
    /// The state that a step led to, as it stands before the step is undone.
    UndoneStep undoneStep(const StepLog& log) const;
    /// Takes the last step back, its log and the variables' values into `undone`.
    void unwind(UndoneStep& undone);
    void redoRecords(UndoneStep& undone);
    /// Brings the layer table in line with LAYER records that a step changed.
    void refreshLayers(const StepLog& log);
    /// Whether everything is as it was before the step: what it made is erased again, as trial insertions
    /// are.
    bool leavesNothing(const StepLog& log) const;

    std::string path_;
    std::unique_ptr<Store> store_;
    HeaderVariables header_;
    LayerTable layers_;
    BlockTable blocks_;
    std::unique_ptr<Creator> creator_;
    mutable std::unique_ptr<Companion> companion_;
    std::uint64_t revision_ = 0;
    std::uint64_t state_ = 0;  ///< names the content: an undone step gives the one of before back
    std::uint64_t savedState_ = 0;
};

/// Runs a stretch of edits as one undo step.
class UndoStep {
  public:
    explicit UndoStep(Drawing& drawing, std::string name = {}) : drawing_(drawing) {
        drawing_.beginStep(std::move(name));
    }
    ~UndoStep() { drawing_.endStep(); }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

  private:
    Drawing& drawing_;
};

}  // namespace drawing
