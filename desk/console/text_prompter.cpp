#include "desk/console/text_prompter.h"

#include "basic/text.h"
#include "desk/console/answers.h"
#include "desk/console/text_selection.h"
#include "desk/drawing/drawing.h"

#include <cmath>
#include <ostream>

namespace console {

using model::Answer;

namespace {

/// What an empty line and "esc" say at every prompt but a selection's.
std::optional<Answer> commonAnswer(const std::string& answer) {
    if (answer.empty()) return Answer::Nothing;
    if (basic::equalIgnoringCase(answer, "esc")) return Answer::BrokenOff;
    return std::nullopt;
}

}  // namespace

std::string TextPrompter::ask(const std::string& prompt) {
    while (true) {
        const std::optional<std::string> line = source_.next(output_, prompt);
        if (!line) text_face::endedWhile("a prompt of the drawing");
        std::string answer(basic::trim(*line));
        if (!answer.starts_with(';')) return answer;
    }
}

void TextPrompter::refuse(const std::string& answer, const char* reason) {
    text_face::refuseLine(source_, output_, answer, reason);
}

model::EntityPick TextPrompter::getEntity(const drawing::Drawing& drawing, const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt);
        if (const auto common = commonAnswer(answer)) return {*common, drawing::kNoEntity, {}};
        if (const auto handle = parseHandleAnswer(answer)) {
            const drawing::EntityId entity = entityByHandle(drawing, *handle);
            if (entity == drawing::kNoEntity) {
                refuse(answer, "no entity of the drawing has this handle");
                continue;
            }
            return {Answer::Given, entity, pointOn(drawing, entity)};
        }
        if (const auto point = parsePoint(answer, std::nullopt)) {
            const drawing::EntityId entity = entityAt(drawing, *point);
            return {entity == drawing::kNoEntity ? Answer::Missed : Answer::Given, entity, *point};
        }
        refuse(answer, "is neither @HANDLE nor a point nor esc");
    }
}

model::PointPick TextPrompter::getPoint(const std::optional<drawing::Point3>& base,
                                        const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt);
        if (const auto common = commonAnswer(answer)) return {*common, {}};
        if (const auto point = parsePoint(answer, base)) return {Answer::Given, *point};
        refuse(answer, "is neither a point nor esc");
    }
}

model::AnglePick TextPrompter::getAngle(const drawing::Point3& base, const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt);
        if (const auto common = commonAnswer(answer)) return {*common, 0};
        if (const auto radians = parseDegrees(answer)) return {Answer::Given, *radians};
        if (const auto point = parsePoint(answer, base)) {
            const double radians = std::atan2(point->y - base.y, point->x - base.x);
            return {Answer::Given, radians < 0 ? radians + 2 * drawing::kPi : radians};
        }
        refuse(answer, "is neither an angle in degrees nor a point nor esc");
    }
}

model::SelectionPick TextPrompter::selectEntities(const drawing::Drawing& drawing,
                                                  const std::string& prompt) {
    Selection selection(drawing);
    while (true) {
        const std::string answer = ask(prompt);
        if (answer.empty()) return {Answer::Given, selection.entities()};
        if (basic::equalIgnoringCase(answer, "esc")) return {Answer::BrokenOff, {}};
        const std::optional<std::size_t> found = selection.add(answer);
        if (found) {
            output_ << *found << " found, " << selection.entities().size() << " total\n";
        } else {
            refuse(answer, "is no selection: all, w x,y x,y, c x,y x,y, @HANDLE..., a point, or esc");
        }
    }
}

void TextPrompter::message(const std::string& text) { output_ << text << "\n"; }

}  // namespace console
