#include "desk/window/canvas.h"

#include "desk/window/canvas_state.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <cmath>

namespace window {

using drawing::EntityId;
using geometry::Point3;

namespace {

constexpr double kFreeEdge = 0.03;
/// Free edge of what fills half of the view.
constexpr double kHalf = 0.25;
constexpr qint64 kLongestBlock = 40;  ///< ms, for a picture of a block
constexpr double kPictureEdge = 3;    ///< of a block's picture, logical pixels

/// The largest of the stripes that a covered part leaves free.
QRect freePart(const QRect& all, const QRect& covered) {
    if (covered.isEmpty()) return all;
    const QRect stripes[] = {{QPoint(covered.right() + 1, all.top()), all.bottomRight()},
                             {all.topLeft(), QPoint(covered.left() - 1, all.bottom())},
                             {all.topLeft(), QPoint(all.right(), covered.top() - 1)},
                             {QPoint(all.left(), covered.bottom() + 1), all.bottomRight()}};
    const auto room = [](const QRect& stripe) {
        return stripe.isValid() ? static_cast<qint64>(stripe.width()) * stripe.height() : 0;
    };
    const QRect* best = &stripes[0];
    for (const QRect& stripe : stripes) {
        if (room(stripe) > room(*best)) best = &stripe;
    }
    return room(*best) > 0 ? *best : all;
}

}  // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent), state_(std::make_unique<CanvasState>(*this)) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::BlankCursor);
}

Canvas::~Canvas() = default;

void Canvas::setDrawing(const drawing::Drawing* drawing) { state_->setDrawing(drawing); }
void Canvas::drawingChanged() { state_->drawingChanged(); }
void Canvas::setSpace(drawing::BlockId space) { state_->setSpace(space); }
drawing::BlockId Canvas::space() const { return state_->space; }
void Canvas::setScheme(Scheme scheme) { state_->setScheme(scheme); }
void Canvas::setTrueColors(bool on) { state_->setTrueColors(on); }
void Canvas::setWeights(bool on) { state_->setWeights(on); }
bool Canvas::snap() const { return state_->snapOn; }
bool Canvas::ortho() const { return state_->orthoOn; }

void Canvas::setFullCross(bool on) {
    state_->fullCross = on;
    update();
}

void Canvas::setSnap(bool on) {
    if (state_->snapOn == on) return;
    state_->snapOn = on;
    state_->updateHover();
    update();
    emit snapChanged(on);
}

void Canvas::setOrtho(bool on) {
    if (state_->orthoOn == on) return;
    state_->orthoOn = on;
    update();
    emit orthoChanged(on);
}

void Canvas::ask(const CanvasPrompt& prompt) { state_->ask(prompt); }
Asking Canvas::asking() const { return state_->prompt.asking; }

void Canvas::setPicking(bool on) {
    state_->picking = on;
    if (!on) state_->corner.reset();
    state_->updateHover();
    update();
}

void Canvas::setTyped(const QString& text) {
    state_->typed = text;
    update();
}

const std::vector<EntityId>& Canvas::selection() const { return state_->selection; }

void Canvas::setSelection(std::vector<EntityId> entities) {
    state_->selection = std::move(entities);
    state_->selected = {state_->selection.begin(), state_->selection.end()};
    state_->litChanged();
}

void Canvas::setMarks(const CanvasMarks& marks) {
    const bool fades = marks.stepsBack != state_->marks.stepsBack;
    state_->marks = marks;
    if (fades) {
        state_->fadeClock.start();
        state_->fadeTimer.start();
    }
    state_->litChanged();
}

void Canvas::flash(const std::vector<EntityId>& entities) { state_->flash(entities); }

Point3 Canvas::cursor() const { return state_->point(); }

EntityId Canvas::entityAt(const Point3& point) const {
    if (!state_->isShowing()) return drawing::kNoEntity;
    const std::vector<EntityId> found = state_->entitiesAt(point);
    return found.empty() ? drawing::kNoEntity : found.front();
}

std::size_t Canvas::inView(const std::vector<EntityId>& entities) const {
    if (!state_->isShowing()) return 0;
    const CanvasLights lights = state_->lights();
    return static_cast<std::size_t>(std::count_if(entities.begin(), entities.end(), [&](EntityId id) {
        const picture::Frame frame = lights.frameOf(id);
        return !frame.empty() && frame.meets(state_->view.frame());
    }));
}

QPixmap Canvas::blockPicture(drawing::BlockId block, QSize box, std::optional<QColor> pen, bool basePoint,
                             double unitsPerPixel) const {
    const double ratio = state_->ratio();
    QPixmap pixmap(box * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(state_->inks.ground());
    if (state_->picture == nullptr || block == drawing::kNoBlock) return pixmap;
    QPixmap device = pixmap;
    device.setDevicePixelRatio(1);
    CanvasView view;
    view.resize(device.width(), device.height());
    geometry::Box extents = state_->picture->extents(block);
    const Point3& base = state_->drawing->blocks()[block].basePoint;
    if (basePoint) extents.add(base);
    const double edge = (basePoint ? 3 : 1) * kPictureEdge * ratio / std::min(view.width(), view.height());
    CanvasView::Look look = view.fitting(extents, std::min(edge, 0.3));
    if (unitsPerPixel > 0) look.scale = 1 / (unitsPerPixel / ratio);
    view.setLook(look);
    painter::Inks inks = state_->inks;
    if (pen) inks.setSingle(*pen);
    QPainter painter(&device);
    painter::QtCanvas::Style style;
    style.hairline = ratio < 1.5 ? 1 : 2;
    if (pen) style.fillOpacity = 0.35;
    {
        painter::QtCanvas canvas(painter, inks, state_->glyphs, style);
        picture::RenderOptions options;
        options.frame = view.frame();
        QElapsedTimer timer;
        timer.start();
        options.leaveOff = [&timer] { return timer.elapsed() > kLongestBlock; };
        picture::Renderer(*state_->picture, canvas, options).drawBlock(block, view.projection());
    }
    if (basePoint) {
        const CanvasLights lights(*state_->picture, state_->space, view, inks, state_->glyphs, ratio);
        lights.drawBasePoint(painter, view.projection().apply(base), state_->tone(Token::Preview));
    }
    painter.end();
    device.setDevicePixelRatio(ratio);
    return device;
}

double Canvas::fittingScale(drawing::BlockId block, QSize box) const {
    if (state_->picture == nullptr || block == drawing::kNoBlock) return 1;
    CanvasView view;
    view.resize(box.width(), box.height());
    geometry::Box extents = state_->picture->extents(block);
    extents.add(state_->drawing->blocks()[block].basePoint);
    const double edge = 3 * kPictureEdge / std::min(view.width(), view.height());
    return 1 / view.fitting(extents, std::min(edge, 0.3)).scale;
}

void Canvas::finishPicture() {
    state_->finished.finish();
    update();
}

std::size_t Canvas::notDrawn() const { return state_->counts.notDrawnTotal(); }
std::size_t Canvas::hidden() const { return state_->counts.hidden(); }

void Canvas::zoomAll() {
    if (state_->isShowing()) state_->zoomTo(state_->picture->extents(state_->space), kFreeEdge);
}

void Canvas::zoomWindow() { state_->beginZoomWindow(); }

void Canvas::zoomPrevious() {
    CanvasView::Look look;
    if (state_->isShowing() && state_->view.previous(look)) state_->glideTo(look);
}

void Canvas::zoomTo(const std::vector<EntityId>& entities) {
    if (!state_->isShowing()) return;
    geometry::Box box = state_->boundsOf(entities);
    if (box.empty()) return;
    state_->zoomTo(box, kHalf);
}

void Canvas::reveal(EntityId entity, const QRect& covered) {
    if (!state_->isShowing()) return;
    const geometry::Box box = state_->boundsOf({entity});
    if (box.empty()) return;
    const picture::Frame frame = state_->view.projection().apply(box);
    const double ratio = state_->ratio();
    const QRectF there(frame.left / ratio, frame.top / ratio, frame.width() / ratio, frame.height() / ratio);
    if (state_->view.frame().holds(frame) && !there.intersects(covered)) return;
    // It comes to the middle of what is free; the scale changes only where it wouldn't fit.
    const QRectF free = freePart(rect(), covered & rect());
    CanvasView::Look look = state_->view.look();
    const double fitting =
        state_->view.fitting(box, 0.1).scale * std::min(free.width() / width(), free.height() / height());
    look.scale = std::min(look.scale, fitting);
    const QPointF off = (free.center() - QRectF(rect()).center()) * ratio;
    look.center = {(box.low.x + box.high.x) / 2 - off.x() / look.scale,
                   (box.low.y + box.high.y) / 2 + off.y() / look.scale, 0};
    state_->view.remember();
    state_->glideTo(look);
}

bool Canvas::event(QEvent* event) {
    // Tab goes through what lies under the cursor before it goes on to the next widget.
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab && state_->key(*key)) return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool isPlain = (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
        if (isPlain && (!key->text().isEmpty() || key->key() == Qt::Key_Escape)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void Canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    state_->paint(painter);
}

void Canvas::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    CanvasState& state = *state_;
    // A view that showed all goes on doing so.
    const bool showsAll =
        state.isShowing() && state.view.width() > 0 &&
        state.view.look() == state.view.fitting(state.picture->extents(state.space), kFreeEdge);
    state.view.resize(std::round(width() * state.ratio()), std::round(height() * state.ratio()));
    if (state.isShowing() && (showsAll || !state.wasFitted)) {
        state.view.setLook(state.view.fitting(state.picture->extents(state.space), kFreeEdge));
        state.wasFitted = isVisible();
    }
    state.viewChanged();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    state_->press(*event);
}
void Canvas::mouseMoveEvent(QMouseEvent* event) { state_->move(*event); }
void Canvas::mouseReleaseEvent(QMouseEvent* event) { state_->release(*event); }

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        state_->isPanning = false;
        zoomAll();
    } else {
        state_->press(*event);
    }
}

void Canvas::wheelEvent(QWheelEvent* event) {
    state_->wheel(*event);
    event->accept();
}

void Canvas::keyPressEvent(QKeyEvent* event) {
    if (!state_->key(*event)) QWidget::keyPressEvent(event);
}

void Canvas::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    state_->leave();
}

}  // namespace window
