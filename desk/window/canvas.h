#pragma once

// What the window asks of the drawing area and is told by it. The prompter, the panels and the pages about
// the dialogs speak to the canvas through this header alone.

#include "desk/drawing/drawing.h"
#include "desk/drawing/placement.h"
#include "desk/geometry/vector.h"
#include "desk/window/theme.h"

#include <QColor>
#include <QKeyEvent>
#include <QPixmap>
#include <QWidget>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace window {

/// What the canvas is asked for. Nothing: the mouse selects references and other entities.
enum class Asking { Nothing, Entity, Point, Angle, Selection };

/// A prompt as it stands, until the next `ask`.
struct CanvasPrompt {
    Asking asking = Asking::Nothing;
    QString text;                          ///< shown at the cursor
    std::optional<geometry::Point3> base;  ///< a rubber band runs from here to the cursor
    bool isPolygon = false;  ///< the point is a corner; length, circumference and area are shown
    bool isFence = false;    ///< the point is a corner of a line that selects what it crosses
    std::vector<geometry::Point3> corners;     ///< those of the polygon or the fence so far
    drawing::BlockId job = drawing::kNoBlock;  ///< counted first in what a rectangle would take
    /// A reference of this block hangs at the cursor, with the values of its attributes known so far.
    drawing::BlockId hanging = drawing::kNoBlock;
    std::vector<std::pair<QString, QString>> hangingValues;  ///< tag and value
    geometry::Vector3 hangingScale{1, 1, 1};
    double hangingRotation = 0;  ///< radians
};

/// What is marked while a dialog is up or after a run; all of it replaces what was marked before.
struct CanvasMarks {
    std::vector<drawing::EntityId> lit;               ///< as selected; hidden ones are drawn dotted
    bool stepsBack = false;                           ///< all else at 42 %
    drawing::BlockId toCome = drawing::kNoBlock;      ///< drawn dashed in the place of each lit reference
    std::vector<drawing::Placement> toComeAt;         ///< and in these places of model space
    drawing::EntityId shownRow = drawing::kNoEntity;  ///< in corner brackets
    QString shownRowText;                             ///< "Row 4 of 16, P-A05"
    std::vector<geometry::Point3> failed;             ///< a cross in the error's colour, in model space
    QString legend;        ///< "PORTE_80, 16 lit", at the lower edge; empty for none
    QString legendToCome;  ///< "PORTE_90 to come"
};

class CanvasState;

/// The drawing area: the picture of a drawing's space, the view, and what the mouse does in it.
class Canvas : public QWidget {
    Q_OBJECT

  public:
    explicit Canvas(QWidget* parent = nullptr);
    ~Canvas() override;

    /// The drawing that is shown, null for none; it outlives its showing. The view goes to all of it.
    void setDrawing(const drawing::Drawing* drawing);
    /// To be called after edits, undo and layer changes: what was prepared of the drawing is brought up to
    /// date, and erased entities leave selection and marks.
    void drawingChanged();
    /// Model space or a layout.
    void setSpace(drawing::BlockId space);
    drawing::BlockId space() const;

    void setScheme(Scheme scheme);
    void setTrueColors(bool on);
    void setWeights(bool on);
    /// Cross hairs as large as the canvas.
    void setFullCross(bool on);
    void setSnap(bool on);
    void setOrtho(bool on);
    bool snap() const;
    bool ortho() const;

    /// Asks for something, or for nothing again.
    void ask(const CanvasPrompt& prompt);
    Asking asking() const;
    /// Whether the mouse picks at all. While a dialog is up it doesn't: wheel and middle button alone act.
    void setPicking(bool on);
    /// What is typed on the command line; the fields at the cursor show it.
    void setTyped(const QString& text);

    /// Selected entities in the order of selecting.
    const std::vector<drawing::EntityId>& selection() const;
    void setSelection(std::vector<drawing::EntityId> entities);
    void setMarks(const CanvasMarks& marks);
    /// Two flashes of 120 ms, as after a pick.
    void flash(const std::vector<drawing::EntityId>& entities);

    /// Where the cursor is, snapped where a point is asked for.
    geometry::Point3 cursor() const;
    /// Entity under a point for one that is typed: the pick box's size counts.
    drawing::EntityId entityAt(const geometry::Point3& point) const;
    /// Entities that the view shows now, of those given.
    std::size_t inView(const std::vector<drawing::EntityId>& entities) const;

    /// A picture of a block in a box of logical pixels, at the widget's pixel ratio. `pen` draws all of it in
    /// one colour; `basePoint` marks the base point. `unitsPerPixel` 0 fits the block, else it is the scale
    /// to keep.
    QPixmap blockPicture(drawing::BlockId block, QSize box, std::optional<QColor> pen, bool basePoint,
                         double unitsPerPixel = 0) const;
    /// The scale at which a block fits into a box.
    double fittingScale(drawing::BlockId block, QSize box) const;

    /// Draws the picture of the view to its end now, for pictures of the window.
    void finishPicture();
    std::size_t notDrawn() const;  ///< entities of the space that no picture shows
    std::size_t hidden() const;    ///< invisible, frozen, off

    void zoomAll();
    void zoomWindow();  ///< asks for two corners first
    void zoomPrevious();
    /// Glides to entities; they fill about half of the view.
    void zoomTo(const std::vector<drawing::EntityId>& entities);
    /// Moves the view, only if the entity is out of sight: also behind `covered`, a part of the canvas that a
    /// dialog hides.
    void reveal(drawing::EntityId entity, const QRect& covered = {});

  signals:
    /// Asked for a point or an angle: snapped, with ortho, in world coordinates.
    void pointPicked(const geometry::Point3& point);
    /// Asked for an entity: kNoEntity where the pick box was empty.
    void entityPicked(drawing::EntityId entity, const geometry::Point3& point);
    /// The selection changed by the mouse, with nothing asked or a selection.
    void selectionChanged();
    /// Right button, Enter, or Space where it doesn't cycle.
    void finished();
    /// Esc.
    void brokenOff();
    /// Backspace while a polygon grows.
    void cornerTakenBack();
    /// A letter, digit or sign typed on the canvas.
    void typed(const QString& text);
    /// A key for what is typed already: Enter, Space, Backspace or Esc.
    void typedKey(QKeyEvent* key);
    void cursorMoved(const geometry::Point3& point);
    void snapChanged(bool on);
    void orthoChanged(bool on);
    /// The numbers of notDrawn() and hidden() or the view changed.
    void countsChanged();

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    friend class CanvasState;
    std::unique_ptr<CanvasState> state_;
};

}  // namespace window
