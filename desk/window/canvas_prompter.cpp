#include "desk/window/canvas_prompter.h"

#include "desk/answers/typed_answer.h"
#include "desk/answers/typed_selection.h"
#include "desk/window/command_line.h"
#include "desk/window/desk_texts.h"
#include "faces/qt/qt_text.h"

#include <QEventLoop>
#include <algorithm>
#include <cmath>

namespace window {

using drawing::EntityId;
using geometry::Point3;
using model::Answer;

namespace {

/// The labelling asks for a polygon corner by corner, with prompts that say so.
constexpr const char* kPolygonPrompt = "contour polyclic";
constexpr const char* kFirstCornerPrompt = "premier point";

double directionOf(const Point3& from, const Point3& to) {
    const double radians = std::atan2(to.y - from.y, to.x - from.x);
    return radians < 0 ? radians + 2 * geometry::kPi : radians;
}

}  // namespace

CanvasPrompter::CanvasPrompter(Canvas& canvas, CommandLine& line, QObject* parent)
    : QObject(parent), canvas_(canvas), line_(line) {
    connect(&canvas_, &Canvas::pointPicked, this, [this](const Point3& point) {
        if (isAsking()) pointGiven(point);
    });
    connect(&canvas_, &Canvas::entityPicked, this, [this](EntityId entity, const Point3& point) {
        if (!isAsking() || prompt_.asking != Asking::Entity) return;
        entity_ = entity;
        point_ = point;
        give(entity == drawing::kNoEntity ? Answer::Missed : Answer::Given);
    });
    connect(&canvas_, &Canvas::finished, this, [this] {
        if (isAsking()) finish();
    });
    connect(&canvas_, &Canvas::brokenOff, this, &CanvasPrompter::breakOff);
    connect(&canvas_, &Canvas::cornerTakenBack, this, &CanvasPrompter::takeBackCorner);
}

void CanvasPrompter::forget() {
    previous_.clear();
    lastPoint_.reset();
    polygon_ = {};
}

model::EntityPick CanvasPrompter::getEntity(const drawing::Drawing& drawing, const std::string& prompt) {
    prompt_ = {};
    prompt_.asking = Asking::Entity;
    prompt_.text = qt_face::toShown(prompt);
    drawing_ = &drawing;
    wait();
    if (answer_ == Answer::Given) canvas_.flash({entity_});
    return {answer_, entity_, point_};
}

model::PointPick CanvasPrompter::getPoint(const std::optional<Point3>& base, const std::string& prompt) {
    if (prompt.find(kPolygonPrompt) != std::string::npos) return nextCorner(prompt);
    polygon_ = {};
    prompt_ = {};
    prompt_.asking = Asking::Point;
    prompt_.text = qt_face::toShown(prompt);
    prompt_.base = base;
    wait();
    return {answer_, point_};
}

/// The corners are asked for one by one, but the user may still take back the last ones: so all are collected
/// at the first question, and the following ones are answered from them.
model::PointPick CanvasPrompter::nextCorner(const std::string& prompt) {
    if (prompt.find(kFirstCornerPrompt) != std::string::npos) {
        polygon_ = {};
        prompt_ = {};
        prompt_.asking = Asking::Point;
        prompt_.isPolygon = true;
        prompt_.text = qt_face::toShown(prompt);
        wait();
        polygon_.isClosed = true;
    }
    if (polygon_.given < polygon_.corners.size()) return {Answer::Given, polygon_.corners[polygon_.given++]};
    // Esc gives the corners so far too: the labelling ends a polygon by either.
    const Answer end = answer_;
    polygon_ = {};
    return {end, {}};
}

model::AnglePick CanvasPrompter::getAngle(const Point3& base, const std::string& prompt) {
    prompt_ = {};
    prompt_.asking = Asking::Angle;
    prompt_.text = qt_face::toShown(prompt);
    prompt_.base = base;
    wait();
    return {answer_, radians_};
}

model::SelectionPick CanvasPrompter::selectEntities(const drawing::Drawing& drawing,
                                                    const std::string& prompt) {
    prompt_ = {};
    prompt_.asking = Asking::Selection;
    // The host's own words, in the window's language.
    prompt_.text = prompt.empty() || prompt.starts_with("Select objects:") ? tr("Select objects:")
                                                                           : qt_face::toShown(prompt);
    drawing_ = &drawing;
    removing_ = false;
    canvas_.setSelection({});
    wait();
    model::SelectionPick pick{answer_ == Answer::BrokenOff ? Answer::BrokenOff : Answer::Given, {}};
    if (pick.answer == Answer::Given) {
        pick.entities = canvas_.selection();
        previous_ = pick.entities;
        canvas_.flash(pick.entities);
    }
    canvas_.setSelection({});
    return pick;
}

void CanvasPrompter::message(const std::string& text) { emit told(qt_face::toShown(text)); }

void CanvasPrompter::showPrompt() {
    canvas_.ask(prompt_);
    shown_ = prompt_;
    QString hint = tr("Enter ends, Esc back");
    QVector<PromptOption> options;
    if (prompt_.asking == Asking::Entity) {
        hint = tr("Tab or Space next, Esc back");
        options = {{tr("Last"), "L"}};
    }
    if (prompt_.asking == Asking::Selection) {
        hint = removing_ ? tr("Picks take out, Enter ends") : tr("Shift takes out, Enter ends");
        options = {
            {tr("All"), "ALL"},  {tr("Previous"), "P"},
            {tr("Last"), "L"},   removing_ ? PromptOption{tr("Add"), "A"} : PromptOption{tr("Remove"), "R"},
            {tr("Window"), "W"}, {tr("Crossing"), "C"},
            {tr("Fence"), "F"}};
    }
    if (prompt_.isPolygon || prompt_.isFence) hint = tr("Backspace takes the last corner, Enter ends");
    line_.ask(prompt_.text, options, hint);
}

void CanvasPrompter::wait() {
    if (loop_ != nullptr) {
        answer_ = Answer::BrokenOff;
        prompt_ = shown_;
        return emit told(tr("A prompt is waiting already"));
    }
    if (prepare_) prepare_(prompt_);
    area_ = Area::None;
    answer_ = Answer::BrokenOff;
    entity_ = drawing::kNoEntity;
    emit told(prompt_.text);
    QEventLoop loop;
    loop_ = &loop;  // from here on it is asking: whoever hears of it may look
    emit asked();
    showPrompt();
    loop.exec();
    loop_ = nullptr;
    canvas_.ask({});
    line_.clear();
    drawing_ = nullptr;
    emit answered();
}

void CanvasPrompter::give(Answer answer) {
    answer_ = answer;
    if (loop_ != nullptr) loop_->quit();
}

void CanvasPrompter::breakOff() {
    if (!isAsking()) return;
    if (area_ != Area::None) {  // one level back: the rectangle or fence that was begun
        leaveArea();
        return showPrompt();
    }
    emit told(tr("*Cancel*"));
    give(Answer::BrokenOff);
}

void CanvasPrompter::finish() {
    if (area_ == Area::Fence && areaCorners_.size() > 1) return finishArea();
    if (area_ != Area::None) return breakOff();
    give(Answer::Nothing);
}

void CanvasPrompter::pointGiven(const Point3& point) {
    lastPoint_ = point;
    if (area_ != Area::None) return areaCorner(point);
    if (prompt_.asking == Asking::Angle) {
        radians_ = directionOf(prompt_.base.value_or(Point3{}), point);
        return give(Answer::Given);
    }
    if (prompt_.asking != Asking::Point) return;
    if (!prompt_.isPolygon) {
        point_ = point;
        return give(Answer::Given);
    }
    polygon_.corners.push_back(point);
    prompt_.corners = polygon_.corners;
    prompt_.base = point;
    prompt_.text.replace(QString::fromUtf8("sur le premier point"),
                         QString::fromUtf8("sur le point suivant"));
    showPrompt();
}

void CanvasPrompter::takeBackCorner() {
    if (isAsking() && area_ == Area::Fence && !areaCorners_.empty()) {
        areaCorners_.pop_back();
        return askAreaCorner();
    }
    if (!isAsking() || !prompt_.isPolygon || polygon_.corners.empty()) return;
    polygon_.corners.pop_back();
    prompt_.corners = polygon_.corners;
    prompt_.base.reset();
    if (!polygon_.corners.empty()) prompt_.base = polygon_.corners.back();
    showPrompt();
}

std::optional<Point3> CanvasPrompter::typedPoint(const QString& line) const {
    return answers::parsePoint(line.trimmed().toStdString(), prompt_.base ? prompt_.base : lastPoint_);
}

void CanvasPrompter::answer(const QString& line) {
    if (!isAsking()) return;
    const QString text = line.trimmed();
    if (text.isEmpty()) return finish();
    if (text.compare("esc", Qt::CaseInsensitive) == 0) return breakOff();
    if (area_ != Area::None || prompt_.asking == Asking::Point) return answerPoint(text);
    if (prompt_.asking == Asking::Entity) return answerEntity(text);
    if (prompt_.asking == Asking::Angle) return answerAngle(text);
    answerSelection(text);
}

void CanvasPrompter::answerPoint(const QString& line) {
    if (prompt_.isPolygon && line.compare("u", Qt::CaseInsensitive) == 0) return takeBackCorner();
    if (const auto point = typedPoint(line)) return pointGiven(*point);
    refuse(line, tr("a point is x,y or @dx,dy or @distance<angle"));
}

void CanvasPrompter::answerEntity(const QString& line) {
    if (const auto handle = answers::parseHandleAnswer(line.toStdString())) {
        entity_ = answers::entityByHandle(*drawing_, *handle);
        if (entity_ == drawing::kNoEntity)
            return refuse(line, tr("no entity of the drawing has this handle"));
        point_ = answers::pointOn(*drawing_, entity_);
        return give(Answer::Given);
    }
    if (line.compare("l", Qt::CaseInsensitive) == 0) {
        drawing_->forEachEntity(drawing_->modelSpace(), [this](EntityId id) {
            entity_ = id;
            return true;
        });
        if (entity_ == drawing::kNoEntity) return refuse(line, tr("the drawing is empty"));
        point_ = answers::pointOn(*drawing_, entity_);
        return give(Answer::Given);
    }
    if (const auto point = typedPoint(line)) {
        entity_ = canvas_.entityAt(*point);
        point_ = *point;
        return give(entity_ == drawing::kNoEntity ? Answer::Missed : Answer::Given);
    }
    refuse(line, tr("an entity is picked, or typed as @HANDLE or a point on it"));
}

void CanvasPrompter::answerAngle(const QString& line) {
    if (const auto radians = answers::parseDegrees(line.toStdString())) {
        radians_ = *radians;
        return give(Answer::Given);
    }
    if (const auto point = typedPoint(line)) return pointGiven(*point);
    refuse(line, tr("an angle is typed in degrees or shown by a point"));
}

void CanvasPrompter::answerSelection(const QString& line) {
    const QString word = line.toUpper();
    if (word == "W") return beginArea(Area::Window);
    if (word == "C") return beginArea(Area::Crossing);
    if (word == "F") return beginArea(Area::Fence);
    if (word == "R" || word == "A") {
        removing_ = word == "R";
        return showPrompt();
    }
    if (const auto point = typedPoint(line)) {
        const EntityId entity = canvas_.entityAt(*point);
        return select(entity == drawing::kNoEntity ? std::vector<EntityId>{} : std::vector<EntityId>{entity});
    }
    try {
        answers::Selection found(*drawing_, previous_);
        found.add(line.toStdString());
        select(found.entities());
    } catch (const answers::AnswerError& error) {
        refuse(line, qt_face::toShown(deskText(QString::fromStdString(error.what()))));
    }
}

void CanvasPrompter::beginArea(Area area) {
    area_ = area;
    areaCorners_.clear();
    prompt_.asking = Asking::Point;
    prompt_.isFence = area == Area::Fence;
    askAreaCorner();
}

void CanvasPrompter::askAreaCorner() {
    prompt_.base.reset();
    if (!areaCorners_.empty()) prompt_.base = areaCorners_.back();
    prompt_.corners = areaCorners_;
    const QString asked = prompt_.text;
    if (area_ == Area::Fence) {
        prompt_.text =
            areaCorners_.empty() ? tr("First point of the fence:") : tr("Next point of the fence:");
    } else {
        prompt_.text = areaCorners_.empty() ? tr("First corner:") : tr("Opposite corner:");
    }
    showPrompt();
    prompt_.text = asked;
}

void CanvasPrompter::areaCorner(const Point3& corner) {
    areaCorners_.push_back(corner);
    const bool complete = area_ != Area::Fence && areaCorners_.size() == 2;
    complete ? finishArea() : askAreaCorner();
}

void CanvasPrompter::finishArea() {
    QString answer = area_ == Area::Window ? "w" : area_ == Area::Crossing ? "c" : "f";
    for (const Point3& p : areaCorners_)
        answer += " " + QString::number(p.x, 'g', 17) + "," + QString::number(p.y, 'g', 17);
    answers::Selection found(*drawing_);
    found.add(answer.toStdString());
    leaveArea();
    select(found.entities());
    showPrompt();
}

void CanvasPrompter::leaveArea() {
    area_ = Area::None;
    areaCorners_.clear();
    prompt_.asking = Asking::Selection;
    prompt_.isFence = false;
    prompt_.corners.clear();
    prompt_.base.reset();
}

void CanvasPrompter::select(const std::vector<EntityId>& found) {
    std::vector<EntityId> selected = canvas_.selection();
    if (removing_) {
        const std::unordered_set<EntityId> out(found.begin(), found.end());
        std::erase_if(selected, [&out](EntityId id) { return out.contains(id); });
    } else {
        std::unordered_set<EntityId> known(selected.begin(), selected.end());
        for (const EntityId id : found) {
            if (known.insert(id).second) selected.push_back(id);
        }
    }
    emit told(tr("%n found, %1 total", nullptr, static_cast<int>(found.size())).arg(selected.size()));
    canvas_.setSelection(std::move(selected));
}

void CanvasPrompter::refuse(const QString& line, const QString& why) {
    emit told(QString("\"%1\": %2").arg(line, why));
}

}  // namespace window
