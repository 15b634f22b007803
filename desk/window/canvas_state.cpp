#include "desk/window/canvas_state.h"

#include "desk/shapes/pick.h"

#include <QStyle>
#include <algorithm>
#include <cmath>

namespace window {

using drawing::EntityId;
using geometry::Point3;
using picture::Point2;

namespace {

constexpr double kMargin = 0.03;
constexpr int kGlide = 150;
constexpr int kFlash = 120;
constexpr int kTipDelay = 350;
constexpr int kFadeIn = 120;
constexpr int kFadeOut = 80;
constexpr double kPickBox = 10;  ///< side, logical pixels
constexpr double kSnapReach = 12;

}  // namespace

CanvasState::CanvasState(Canvas& owner) : canvas(owner), finished(glyphs, [this] { canvas.update(); }) {
    const auto singleShot = [&](QTimer& timer, int interval, auto&& act) {
        timer.setSingleShot(true);
        timer.setInterval(interval);
        QObject::connect(&timer, &QTimer::timeout, &canvas, act);
    };
    singleShot(tipTimer, kTipDelay, [this] {
        showsTip = true;
        canvas.update();
    });
    const auto repeated = [&](QTimer& timer, int interval, auto&& act) {
        timer.setInterval(interval);
        QObject::connect(&timer, &QTimer::timeout, &canvas, act);
    };
    repeated(glideTimer, 16, [this] { step(); });
    repeated(flashTimer, kFlash, [this] {
        if (--flashSteps <= 0) {
            flashTimer.stop();
            flashing.clear();
        }
        litChanged();
    });
    repeated(fadeTimer, 16, [this] {
        const bool on = marks.stepsBack;
        const double share = static_cast<double>(fadeClock.elapsed()) / (on ? kFadeIn : kFadeOut);
        veil = on ? std::min(share, 1.0) : std::max(1 - share, 0.0);
        if (share >= 1) fadeTimer.stop();
        canvas.update();
    });
    setScheme(Scheme::Dark);
}

double CanvasState::ratio() const { return canvas.devicePixelRatioF(); }

// Content.

void CanvasState::setDrawing(const drawing::Drawing* open) {
    finished.setContent(nullptr, drawing::kNoBlock);
    drawing = open;
    picture = open != nullptr ? &picture::pictureOf(*open) : nullptr;
    if (picture != nullptr) picture->update();
    space = drawing::kNoBlock;
    marks = {};
    selection.clear();
    selected.clear();
    flashing.clear();
    prompt = {};
    corner.reset();
    zoomsWindow = false;
    if (open != nullptr) {
        setSpace(open->modelSpace());
    } else {
        counts = {};
        canvas.update();
        emit canvas.countsChanged();
    }
}

void CanvasState::drawingChanged() {
    if (picture == nullptr) return;
    picture->update();
    forgetErased();
    counts = picture->counts(space);
    finished.contentChanged();
    updateHover();
    litChanged();
    emit canvas.countsChanged();
}

void CanvasState::forgetErased() {
    const auto isGone = [&](EntityId id) { return drawing->isErased(id); };
    const std::size_t before = selection.size();
    std::erase_if(selection, isGone);
    std::erase_if(marks.lit, isGone);
    std::erase_if(flashing, isGone);
    if (marks.shownRow != drawing::kNoEntity && isGone(marks.shownRow)) marks.shownRow = drawing::kNoEntity;
    selected = {selection.begin(), selection.end()};
    if (selection.size() != before) emit canvas.selectionChanged();
}

void CanvasState::setSpace(drawing::BlockId wanted) {
    if (picture == nullptr || wanted == space) return;
    space = wanted;
    wasFitted = false;
    cycleList.clear();
    snap.reset();
    counts = picture->counts(space);
    fitWhenNew();
    finished.setContent(picture, space);
    viewChanged();
    emit canvas.countsChanged();
}

void CanvasState::fitWhenNew() {
    if (!isShowing() || wasFitted) return;
    view.resize(std::round(canvas.width() * ratio()), std::round(canvas.height() * ratio()));
    view.setLook(view.fitting(picture->extents(space), kMargin));
    wasFitted = canvas.isVisible();
}

void CanvasState::setScheme(Scheme wanted) {
    scheme = wanted;
    using painter::Inks;
    inks = Inks(tone(Token::Canvas), trueColors ? Inks::Use::File : Inks::Use::Screen);
    finished.setInks(inks);
    litChanged();
}

void CanvasState::setTrueColors(bool on) {
    trueColors = on;
    setScheme(scheme);
}

void CanvasState::setWeights(bool on) {
    finished.setWeights(on);
    canvas.update();
}

// View.

void CanvasState::viewChanged() {
    finished.setPixelRatio(ratio());
    finished.setView(view);
    updateHover();
    litChanged();
    emit canvas.countsChanged();
}

void CanvasState::rememberView() {
    // The steps of one gesture are one view to come back to.
    constexpr int kPause = 600;
    if (!gesture.isValid() || gesture.elapsed() > kPause) view.remember();
    gesture.start();
}

void CanvasState::glideTo(const CanvasView::Look& look) {
    const bool still = canvas.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &canvas) == 0;
    if (still || !canvas.isVisible()) {
        glideTimer.stop();
        view.setLook(look);
        viewChanged();
        return;
    }
    glideFrom = view.look();
    glideGoal = look;
    glideClock.start();
    glideTimer.start();
}

void CanvasState::step() {
    const double share = std::min(1.0, static_cast<double>(glideClock.elapsed()) / kGlide);
    const double eased = 1 - (1 - share) * (1 - share);
    view.setLook(CanvasView::between(glideFrom, glideGoal, eased));
    if (share >= 1) glideTimer.stop();
    viewChanged();
}

void CanvasState::zoomTo(const geometry::Box& box, double margin) {
    if (!isShowing()) return;
    view.remember();
    gesture.invalidate();
    glideTo(view.fitting(box, margin));
}

geometry::Box CanvasState::boundsOf(const std::vector<EntityId>& entities) const {
    geometry::Box box;
    const picture::DisplayList& list = picture->list(space);
    std::vector<EntityId> hidden;
    for (const EntityId id : entities) {
        if (const auto number = picture->itemOf(space, id)) {
            box.add(list.items[*number].bounds);
        } else if (!drawing->isErased(id) && drawing->owner(id) == space) {
            hidden.push_back(id);
        }
    }
    if (!hidden.empty()) {
        for (const picture::Item& item : picture->listEvenHidden(hidden).items) box.add(item.bounds);
    }
    return box;
}

void CanvasState::beginZoomWindow() {
    corner.reset();
    zoomsWindow = isShowing();
    canvas.update();
}

// Prompts and picks.

void CanvasState::ask(const CanvasPrompt& asked) {
    const bool goesOn = asked.asking == prompt.asking;
    prompt = asked;
    if (!goesOn) corner.reset();
    snap.reset();
    inRectangle.clear();
    showsTip = false;
    updateHover();
    canvas.update();
}

bool CanvasState::isPickingEntities() const {
    return isShowing() && picking && !zoomsWindow &&
           (prompt.asking == Asking::Nothing || prompt.asking == Asking::Entity ||
            prompt.asking == Asking::Selection);
}

std::vector<EntityId> CanvasState::entitiesAt(const Point3& place) const {
    return shapes::entitiesAt(*drawing, space, place, kPickBox / 2 * ratio() / view.projection().scale());
}

void CanvasState::updateHover() {
    if (!hasCursor || !isShowing() || isPanning) {
        cycleList.clear();
        return;
    }
    const EntityId before = cycleList.chosen();
    const bool asksPoint = prompt.asking == Asking::Point || prompt.asking == Asking::Angle;
    if (isPickingEntities() && !corner) {
        cycleList.update(entitiesAt(view.projection().unproject(device(cursor))));
    } else {
        cycleList.clear();
    }
    if (picking && asksPoint && snapOn && !zoomsWindow) {
        const double reach = kSnapReach * ratio() / view.projection().scale();
        snap = shapes::findSnap(*drawing, space, view.projection().unproject(device(cursor)), reach,
                                prompt.base, snap);
        // Any place of a line is less than the axis that the user keeps to.
        if (orthoOn && prompt.base && snap && snap->kind == shapes::SnapKind::Nearest) snap.reset();
    } else {
        snap.reset();
    }
    if (cycleList.chosen() != before) {
        showsTip = false;
        tipTimer.stop();
        if (cycleList.chosen() != drawing::kNoEntity) tipTimer.start();
    }
}

bool CanvasState::cycle() {
    if (!isPickingEntities() || !cycleList.next()) return false;
    showsTip = true;
    canvas.update();
    return true;
}

Point3 CanvasState::point() const {
    Point3 at = view.projection().unproject(device(cursor));
    if (snap) return snap->at;
    if (orthoOn && prompt.base && (prompt.asking == Asking::Point || prompt.asking == Asking::Angle)) {
        const Point3& base = *prompt.base;
        if (std::abs(at.x - base.x) >= std::abs(at.y - base.y)) {
            at.y = base.y;
        } else {
            at.x = base.x;
        }
    }
    return at;
}

void CanvasState::changeSelection(const std::vector<EntityId>& entities, bool removing) {
    bool changed = false;
    for (const EntityId id : entities) {
        if (removing) {
            if (selected.erase(id) == 0) continue;
            changed = true;
        } else if (selected.insert(id).second) {
            selection.push_back(id);
            changed = true;
        }
    }
    if (removing) std::erase_if(selection, [&](EntityId id) { return !selected.contains(id); });
    if (!changed) return;
    litChanged();
    emit canvas.selectionChanged();
}

void CanvasState::updateRectangle() {
    inRectangle.clear();
    if (!corner || zoomsWindow) return;
    const Point2 a = view.projection().apply(*corner);
    const Point2 b = device(cursor);
    const geometry::Rectangle area(*corner, view.projection().unproject(b));
    inRectangle = shapes::entitiesIn(*drawing, space, area, b.x < a.x);
}

void CanvasState::finishRectangle(bool removing) {
    const Point3 first = *corner;
    updateRectangle();
    corner.reset();
    if (zoomsWindow) {
        zoomsWindow = false;
        const Point2 a = view.projection().apply(first);
        const Point2 b = device(cursor);
        if (std::abs(a.x - b.x) > 2 && std::abs(a.y - b.y) > 2) zoomTo(view.boxBetween(a, b), 0);
    } else {
        changeSelection(std::exchange(inRectangle, {}), removing);
    }
    updateHover();
    canvas.update();
}

void CanvasState::flash(const std::vector<EntityId>& entities) {
    flashing = entities;
    flashSteps = 4;  // on, off, on, off
    flashTimer.start();
    litChanged();
}

CanvasLights CanvasState::lights() const { return {*picture, space, view, inks, glyphs, ratio()}; }

void CanvasState::litChanged() {
    litIsOld_ = true;
    hoverOf_ = drawing::kNoEntity;
    canvas.update();
}

QPointF CanvasState::logical(const Point3& at) const {
    const Point2 place = view.projection().apply(at);
    return {place.x / ratio(), place.y / ratio()};
}

}  // namespace window
