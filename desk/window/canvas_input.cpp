#include "desk/window/canvas_state.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

namespace window {

using drawing::EntityId;

namespace {

/// Beyond this a pressed mouse draws a rectangle, logical pixels.
constexpr double kDrag = 8;
/// What a notch of the wheel multiplies the scale with.
constexpr double kNotch = 1.25;

bool isFar(const QPointF& a, const QPointF& b) {
    return std::abs(a.x() - b.x()) > kDrag || std::abs(a.y() - b.y()) > kDrag;
}

/// Keys that belong to what is typed as long as there is something: the command line may be hidden.
bool isForLine(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
           key == Qt::Key_Backspace || key == Qt::Key_Escape;
}

}  // namespace

void CanvasState::press(QMouseEvent& event) {
    cursor = event.position();
    hasCursor = true;
    if (event.button() == Qt::MiddleButton) {
        isPanning = true;
        panFrom = cursor;
        rememberView();
        glideTimer.stop();
        canvas.update();
        return;
    }
    if (!isShowing()) return;
    if (event.button() == Qt::RightButton) {
        if (zoomsWindow || corner) {
            zoomsWindow = false;
            corner.reset();
            canvas.update();
        } else if (picking) {
            emit canvas.finished();
        }
        return;
    }
    if (event.button() != Qt::LeftButton) return;
    const bool removing = event.modifiers().testFlag(Qt::ShiftModifier);
    pressedAt = cursor;
    isDragged = false;
    if (corner) return finishRectangle(removing);
    if (zoomsWindow) {
        corner = view.projection().unproject(device(cursor));
        return;
    }
    if (!picking) return;
    updateHover();
    switch (prompt.asking) {
        case Asking::Point:
        case Asking::Angle:
            emit canvas.pointPicked(point());
            break;
        case Asking::Entity:
            showsTip = false;
            emit canvas.entityPicked(cycleList.chosen(), view.projection().unproject(device(cursor)));
            break;
        case Asking::Nothing:
        case Asking::Selection:
            selectAt(removing);
            break;
    }
}

void CanvasState::selectAt(bool removing) {
    if (const EntityId chosen = cycleList.chosen(); chosen != drawing::kNoEntity) {
        changeSelection({chosen}, removing);
        return;
    }
    corner = view.projection().unproject(device(cursor));
    updateHover();
    canvas.update();
}

void CanvasState::move(QMouseEvent& event) {
    cursor = event.position();
    hasCursor = true;
    if (isPanning) {
        const QPointF by = (cursor - panFrom) * ratio();
        panFrom = cursor;
        view.pan(by.x(), by.y());
        viewChanged();
        return;
    }
    if (corner) {
        if (event.buttons().testFlag(Qt::LeftButton) && isFar(cursor, pressedAt)) isDragged = true;
        updateRectangle();
    } else {
        updateHover();
    }
    emit canvas.cursorMoved(point());
    canvas.update();
}

void CanvasState::release(QMouseEvent& event) {
    cursor = event.position();
    if (event.button() == Qt::MiddleButton && isPanning) {
        isPanning = false;
        updateHover();
        canvas.update();
    }
    if (event.button() == Qt::LeftButton && corner && isDragged) {
        finishRectangle(event.modifiers().testFlag(Qt::ShiftModifier));
    }
}

void CanvasState::wheel(QWheelEvent& event) {
    if (!isShowing()) return;
    cursor = event.position();
    hasCursor = true;
    glideTimer.stop();
    rememberView();
    // A touchpad tells pixels: it pans, with Ctrl it zooms; a wheel zooms by its notches.
    const QPoint pixels = event.pixelDelta();
    if (!pixels.isNull() && !event.modifiers().testFlag(Qt::ControlModifier)) {
        view.pan(pixels.x() * ratio(), pixels.y() * ratio());
    } else {
        view.zoomAt(device(cursor), std::pow(kNotch, event.angleDelta().y() / 120.0));
    }
    viewChanged();
    emit canvas.cursorMoved(point());
}

bool CanvasState::key(QKeyEvent& event) {
    if (!typed.isEmpty() && isForLine(event.key())) {
        emit canvas.typedKey(&event);
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Escape:
            if (zoomsWindow || corner) {
                zoomsWindow = false;
                corner.reset();
                inRectangle.clear();
                updateHover();
                canvas.update();
            } else {
                emit canvas.brokenOff();
            }
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return cycle();
        case Qt::Key_Space:
            if (cycle()) return true;
            emit canvas.finished();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit canvas.finished();
            return true;
        case Qt::Key_Backspace:
            if (prompt.isPolygon || prompt.isFence) {
                emit canvas.cornerTakenBack();
                return true;
            }
            break;
        case Qt::Key_F3:
            snapOn = !snapOn;
            updateHover();
            canvas.update();
            emit canvas.snapChanged(snapOn);
            return true;
        case Qt::Key_F8:
            orthoOn = !orthoOn;
            canvas.update();
            emit canvas.orthoChanged(orthoOn);
            return true;
        default:
            break;
    }
    const QString text = event.text();
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (text.isEmpty() || isCommand || !text.at(0).isPrint()) return false;
    emit canvas.typed(text);
    return true;
}

void CanvasState::leave() {
    hasCursor = false;
    showsTip = false;
    tipTimer.stop();
    cycleList.clear();
    snap.reset();
    canvas.update();
}

}  // namespace window
