#include "desk/console/text_prompter.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/answers/typed_answer.h"
#include "desk/answers/typed_selection.h"
#include "desk/drawing/drawing.h"

#include <cmath>
#include <ostream>

namespace console {

using answers::entityAt;
using answers::entityByHandle;
using answers::parseDegrees;
using answers::parseHandleAnswer;
using answers::parsePoint;
using answers::pointOn;
using model::Answer;

namespace {

/// What an empty line and "esc" say at every prompt but a selection's.
std::optional<Answer> commonAnswer(const std::string& answer) {
    if (answer.empty()) return Answer::Nothing;
    if (basic::equalIgnoringCase(answer, "esc")) return Answer::BrokenOff;
    return std::nullopt;
}

}  // namespace

std::string TextPrompter::ask(const std::string& prompt, const std::vector<std::string>& words) {
    while (true) {
        source_.offer([&words](std::string_view) { return words; });
        const std::optional<std::string> line = source_.next(output_, prompt);
        if (!line) text_face::endedWhile("a prompt of the drawing");
        if (*line == text_face::kBreakOff) return "esc";
        std::string answer(basic::trim(*line));
        if (answer.starts_with(';')) continue;
        if (!evaluate_ || !(answer.starts_with('!') || answer.starts_with('('))) return answer;
        try {
            return evaluate_(answer);
        } catch (const basic::Error& error) {
            refuse(error.description());
        }
    }
}

void TextPrompter::refuse(const std::string& reason) { text_face::refuseLine(source_, output_, reason); }

model::EntityPick TextPrompter::getEntity(const drawing::Drawing& drawing, const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt, {"first ", "esc"});
        if (const auto common = commonAnswer(answer)) return {*common, drawing::kNoEntity, {}};
        if (basic::equalIgnoringCase(answer.substr(0, 6), "first ")) {
            const std::string name(basic::trim(answer.substr(6)));
            const drawing::EntityId entity = answers::firstReference(drawing, name);
            if (entity != drawing::kNoEntity) return {Answer::Given, entity, pointOn(drawing, entity)};
            refuse("there is no reference of " + name);
            continue;
        }
        if (const auto handle = parseHandleAnswer(answer)) {
            const drawing::EntityId entity = entityByHandle(drawing, *handle);
            if (entity == drawing::kNoEntity) {
                refuse("no entity of the drawing has the handle " + answer.substr(1));
                continue;
            }
            return {Answer::Given, entity, pointOn(drawing, entity)};
        }
        if (const auto point = parsePoint(answer, std::nullopt)) {
            const drawing::EntityId entity = entityAt(drawing, *point);
            return {entity == drawing::kNoEntity ? Answer::Missed : Answer::Given, entity, *point};
        }
        refuse("is neither @HANDLE nor first NAME nor a point nor esc");
    }
}

model::PointPick TextPrompter::getPoint(const std::optional<geometry::Point3>& base,
                                        const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt, {"esc"});
        if (const auto common = commonAnswer(answer)) return {*common, {}};
        if (const auto point = parsePoint(answer, base)) return {Answer::Given, *point};
        refuse("is neither a point nor esc");
    }
}

model::AnglePick TextPrompter::getAngle(const geometry::Point3& base, const std::string& prompt) {
    while (true) {
        const std::string answer = ask(prompt, {"esc"});
        if (const auto common = commonAnswer(answer)) return {*common, 0};
        if (const auto radians = parseDegrees(answer)) return {Answer::Given, *radians};
        if (const auto point = parsePoint(answer, base)) {
            const double radians = std::atan2(point->y - base.y, point->x - base.x);
            return {Answer::Given, radians < 0 ? radians + 2 * geometry::kPi : radians};
        }
        refuse("is neither an angle in degrees nor a point nor esc");
    }
}

model::SelectionPick TextPrompter::selectEntities(const drawing::Drawing& drawing,
                                                  const std::string& prompt) {
    answers::Selection selection(drawing, previous_);
    while (true) {
        const std::string answer =
            ask(prompt, {"all", "w ", "c ", "f ", "p", "l", "r", "a", "first ", "esc"});
        if (answer.empty()) {
            if (!selection.entities().empty()) previous_ = selection.entities();
            return {Answer::Given, selection.entities()};
        }
        if (basic::equalIgnoringCase(answer, "esc")) return {Answer::BrokenOff, {}};
        try {
            const std::size_t found = selection.add(answer);
            output_ << found << " found, " << selection.entities().size() << " total\n";
        } catch (const answers::AnswerError& error) {
            refuse(error.what());
        }
    }
}

void TextPrompter::message(const std::string& text) { output_ << text << "\n"; }

}  // namespace console
