#include "desk/shell/lisp_answer.h"

#include "basic/error.h"
#include "basic/numbers.h"

#include <algorithm>

namespace shell {

namespace {

std::string numberText(double number) { return basic::toText(number, basic::Regional::english()); }

/// The handles of an entity, or of what a collection holds.
std::string objectAnswer(const host::ObjectPtr& object) {
    if (object == nullptr) throw basic::Error(basic::kObjectNotSet, "the object was released");
    try {
        return "@" + object->get("Handle").text();
    } catch (const basic::Error& error) {
        if (error.number() != basic::kNoSuchMember) throw;
    }
    std::string handles;
    object->enumerate([&](const basic::Variant& item) {
        handles.append(handles.empty() ? "@" : " @").append(host::asObject(item)->get("Handle").text());
        return true;
    });
    return handles;
}

/// Lists may share their parts, and so be far longer than the memory that they take.
constexpr int kDeepest = 100;
constexpr int kMostValues = 1'000'000;

std::string answerOf(const lisp::Value& value, int depth, int& values) {
    if (depth > kDeepest || ++values > kMostValues)
        throw basic::Error(basic::kTypeMismatch, "the list is nested too deep or too long for a prompt");
    if (value.isNil()) return {};
    if (value.isNumber()) return numberText(value.number());
    if (value.text() != nullptr) return *value.text();
    if (value.object() != nullptr) return objectAnswer(value.object()->object);
    if (value.cons() != nullptr) {
        const std::vector<lisp::Value> items = lisp::listItems(value);
        const bool isPoint =
            std::all_of(items.begin(), items.end(), [](const lisp::Value& item) { return item.isNumber(); });
        std::string answer;
        for (const lisp::Value& item : items)
            answer.append(answer.empty() ? ""
                          : isPoint      ? ","
                                         : " ")
                .append(answerOf(item, depth + 1, values));
        return answer;
    }
    throw basic::Error(basic::kTypeMismatch, "the value is neither a point nor an entity nor a selection");
}

}  // namespace

std::string promptAnswer(const lisp::Value& value) {
    int values = 0;
    return answerOf(value, 0, values);
}

}  // namespace shell
