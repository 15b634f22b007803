#include "desk/model/utility.h"

#include "desk/model/entity.h"
#include "desk/model/host_errors.h"

namespace model {

namespace {

void requireGiven(Answer answer, const char* member) {
    if (answer == Answer::Given) return;
    const char* why = answer == Answer::Missed    ? "nothing was hit"
                      : answer == Answer::Nothing ? "no answer"
                                                  : "broken off by the user";
    raise(kPromptFailed, std::string(member) + ": " + why);
}

}  // namespace

std::string Utility::promptText(const Arguments& arguments, std::size_t at) {
    if (arguments.size() <= at || arguments[at].isMissing() || arguments[at].isEmpty()) return {};
    return arguments[at].text();
}

std::optional<geometry::Point3> Utility::basePoint(const Arguments& arguments) const {
    if (arguments.empty() || arguments[0].isMissing() || arguments[0].isEmpty()) return std::nullopt;
    return toPoint(*context_, arguments[0]);
}

Variant Utility::getEntity(Arguments& arguments) {
    requireCount(arguments, 2, 3, "GetEntity");
    const EntityPick pick = prompter().getEntity(*context_->drawing, promptText(arguments, 2));
    requireGiven(pick.answer, "GetEntity");
    arguments[0] = makeEntity(context_, pick.entity);
    arguments[1] = fromPoint(pick.point);
    return {};
}

Variant Utility::getPoint(Arguments& arguments) {
    requireCount(arguments, 0, 2, "GetPoint");
    const PointPick pick = prompter().getPoint(basePoint(arguments), promptText(arguments, 1));
    requireGiven(pick.answer, "GetPoint");
    return fromPoint(pick.point);
}

Variant Utility::getAngle(Arguments& arguments) {
    requireCount(arguments, 0, 2, "GetAngle");
    const geometry::Point3 base = basePoint(arguments).value_or(geometry::Point3{});
    const AnglePick pick = prompter().getAngle(base, promptText(arguments, 1));
    requireGiven(pick.answer, "GetAngle");
    return pick.radians;
}

Variant Utility::prompt(Arguments& arguments) {
    requireCount(arguments, 1, 1, "Prompt");
    prompter().message(promptText(arguments, 0));
    return {};
}

const MemberTable& Utility::members() const {
    static const MemberTable table({
        method<&Utility::getEntity>("GetEntity"),
        method<&Utility::getPoint>("GetPoint"),
        method<&Utility::getAngle>("GetAngle"),
        method<&Utility::prompt>("Prompt"),
    });
    return table;
}

}  // namespace model
