#pragma once

#include "desk/painter/glyphs.h"
#include "desk/painter/inks.h"
#include "desk/picture/picture.h"
#include "desk/shapes/snap.h"
#include "desk/window/canvas.h"
#include "desk/window/canvas_lights.h"
#include "desk/window/canvas_picture.h"
#include "desk/window/canvas_view.h"
#include "desk/window/pick_cycle.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <optional>
#include <set>

class QPainter;

namespace window {

/// What a canvas holds, and what its events do. Places on the canvas are in device pixels unless they are
/// called logical.
class CanvasState {
  public:
    explicit CanvasState(Canvas& canvas);

    // Content.
    void setDrawing(const drawing::Drawing* drawing);
    void drawingChanged();
    void setSpace(drawing::BlockId space);
    void setScheme(Scheme scheme);
    void setTrueColors(bool on);
    void setWeights(bool on);
    bool isShowing() const { return picture != nullptr && space != drawing::kNoBlock; }

    // View.
    double ratio() const;
    void viewChanged();
    void rememberView();
    void glideTo(const CanvasView::Look& look);
    void zoomTo(const geometry::Box& box, double margin);
    geometry::Box boundsOf(const std::vector<drawing::EntityId>& entities) const;
    void beginZoomWindow();

    // Prompts and picks.
    void ask(const CanvasPrompt& prompt);
    bool isPickingEntities() const;
    /// What lies under the pick box about a place, the nearest first.
    std::vector<drawing::EntityId> entitiesAt(const geometry::Point3& place) const;
    void updateHover();
    void updateRectangle();
    void selectAt(bool removing);
    void finishRectangle(bool removing);
    void changeSelection(const std::vector<drawing::EntityId>& entities, bool removing);
    void forgetErased();
    geometry::Point3 point() const;
    bool cycle();

    // Events, in logical pixels.
    void press(QMouseEvent& event);
    void move(QMouseEvent& event);
    void release(QMouseEvent& event);
    void wheel(QWheelEvent& event);
    bool key(QKeyEvent& event);
    void leave();

    // Painting.
    void paint(QPainter& painter);
    void flash(const std::vector<drawing::EntityId>& entities);
    void litChanged();
    CanvasLights lights() const;
    QColor tone(Token token) const { return color(token, scheme); }

    Canvas& canvas;
    const drawing::Drawing* drawing = nullptr;
    picture::Picture* picture = nullptr;  ///< the drawing's
    mutable painter::Glyphs glyphs;
    painter::Inks inks;
    drawing::BlockId space = drawing::kNoBlock;
    picture::Counts counts;
    Scheme scheme = Scheme::Dark;
    bool trueColors = false;
    bool fullCross = false;
    bool snapOn = true;
    bool orthoOn = false;
    bool picking = true;

    CanvasView view;
    CanvasPicture finished;
    bool wasFitted = false;  ///< the view was set for this space at the size that the canvas has

    CanvasPrompt prompt;
    QString typed;
    CanvasMarks marks;
    std::vector<drawing::EntityId> selection;
    std::set<drawing::EntityId> selected;  ///< the same, to look up

    // The cursor and what lies under it.
    bool hasCursor = false;
    QPointF cursor;  ///< logical
    PickCycle cycleList;
    std::optional<shapes::Snap> snap;
    bool showsTip = false;
    QTimer tipTimer;

    // A rectangle being drawn, or a zoom window: its first corner.
    std::optional<geometry::Point3> corner;
    bool isDragged = false;
    bool zoomsWindow = false;
    std::vector<drawing::EntityId> inRectangle;
    QPointF pressedAt;
    bool isPanning = false;
    QPointF panFrom;
    QElapsedTimer gesture;  ///< since the last step of the wheel

    // Glide and flash.
    QTimer glideTimer;
    QElapsedTimer glideClock;
    CanvasView::Look glideFrom;
    CanvasView::Look glideGoal;
    QTimer flashTimer;
    int flashSteps = 0;
    std::vector<drawing::EntityId> flashing;
    QTimer fadeTimer;
    double veil = 0;  ///< how far all else stepped back, 0 to 1
    QElapsedTimer fadeClock;

  private:
    void paintLit(QPainter& painter);
    void paintPointer(QPainter& painter);
    void paintHovered(QPainter& painter);
    void paintRectangle(QPainter& painter);
    void paintBands(QPainter& painter);
    void paintPolygon(QPainter& painter);
    void paintFence(QPainter& painter);
    void paintSnap(QPainter& painter);
    void paintSnapName(QPainter& painter, const QPointF& at);
    void paintCross(QPainter& painter);
    void paintShownRow(QPainter& painter);
    void paintLegend(QPainter& painter);
    void paintPill(QPainter& painter);
    void paintTip(QPainter& painter);
    void paintAxes(QPainter& painter);
    QStringList tipLines() const;
    QString measures() const;
    QSizeF hangingSize() const;
    void fitWhenNew();
    void step();
    QPointF logical(const geometry::Point3& point) const;
    picture::Point2 device(const QPointF& point) const { return {point.x() * ratio(), point.y() * ratio()}; }

    QImage litLayer_;  ///< selection, marks and flash, kept while neither they nor the view change
    bool litIsOld_ = true;
    QImage hoverLayer_;  ///< what is lit under the cursor, of `hoverOf_`
    drawing::EntityId hoverOf_ = drawing::kNoEntity;
    std::vector<QRectF> hiddenLit_;
    QRectF pill_;
};

}  // namespace window
