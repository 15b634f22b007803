#pragma once

#include "desk/model/entity.h"
#include "forms/controls.h"
#include "tests/fakes/faulty_host.h"
#include "tests/fakes/session_world.h"
#include "tests/model/model_world.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace fakes {

using Texts = std::vector<std::string>;

/// A block by its name, and tag and default text of each of its attributes.
struct BlockSpec {
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
};

/// A drawing that has these blocks and no entity.
inline drawing::PlainDrawing drawingOf(const std::vector<BlockSpec>& blocks) {
    drawing::PlainDrawing plain;
    for (const BlockSpec& block : blocks) {
        plain.block(block.name).inBlock("LINE 8 0 10 0 20 0 11 1 21 0");
        for (const auto& [tag, text] : block.attributes)
            plain.inBlock("ATTDEF 8 0 10 0 20 0 40 1 1 " + text + " 3 " + tag + " 2 " + tag + " 70 0");
    }
    return plain;
}

/// A session for dialogs on the document of a plain drawing, behind the host that can fail, with the English
/// texts. Tests look at the document itself, past the faulty host.
struct DialogWorld : SessionWorld, model::ModelWorld {
    explicit DialogWorld(const std::vector<BlockSpec>& blocks = {}) : DialogWorld(drawingOf(blocks)) {}
    explicit DialogWorld(const drawing::PlainDrawing& plain) : ModelWorld(plain.make()) {
        session.AcadDoc = faulty.root();
        session.CurLng = {"English", VORLANE_ROOT "/resources/languages/English.LNG"};
        session.registerForm("fmOwner", [](session::Session&) {
            return std::make_unique<forms::Form>("fmOwner", "", "Owner");
        });
    }

    /// Inserts a reference; `texts` replace the attributes' defaults from the first on.
    host::ObjectPtr place(const char* block, const basic::Doubles& point = {0, 0, 0},
                          const Texts& texts = {}) {
        host::ObjectPtr reference = insert(block, point);
        const basic::Variant attributes = reference->invoke("GetAttributes");
        for (std::size_t i = 0; i < texts.size(); ++i)
            host::asObject(attributes.array().at(i))->set("TextString", texts[i]);
        return reference;
    }
    /// What model space holds of a class, and of a block if one is named.
    std::vector<host::ObjectPtr> entities(const char* objectName, std::string_view block = {}) const {
        std::vector<host::ObjectPtr> found;
        space()->enumerate([&](const basic::Variant& element) {
            const host::ObjectPtr entity = host::asObject(element);
            if (model::textOf(entity, "ObjectName") == objectName &&
                (block.empty() || model::textOf(entity, "Name") == block))
                found.push_back(entity);
            return true;
        });
        return found;
    }
    std::vector<host::ObjectPtr> references(std::string_view block) const {
        return entities("AcDbBlockReference", block);
    }
    std::size_t lineCount() const { return entities("AcDbLine").size(); }
    void eraseAll() const {
        for (const char* kind : {"AcDbLine", "AcDbBlockReference"})
            for (const host::ObjectPtr& entity : entities(kind)) entity->invoke("Delete");
    }
    /// The names of the drawing's selection sets.
    Texts setNames() const {
        Texts names;
        for (int i = 0; i < object("SelectionSets")->get("Count").integer(); ++i)
            names.push_back(model::textOf(set(i), "Name"));
        return names;
    }
    host::ObjectPtr set(int index) const { return model::called(object("SelectionSets"), "Item", {index}); }

    // The user's answers in the drawing.

    void pick(const host::ObjectPtr& entity, geometry::Point3 place = {}) {
        prompter.entities.push_back({model::Answer::Given, model::toEntity(basic::Variant(entity)), place});
    }
    void breakOffPick() { prompter.entities.emplace_back(); }
    void select(const std::vector<host::ObjectPtr>& members) {
        model::SelectionPick answer{model::Answer::Given, {}};
        for (const host::ObjectPtr& member : members)
            answer.entities.push_back(model::toEntity(basic::Variant(member)));
        prompter.selections.push_back(std::move(answer));
    }
    void point(geometry::Point3 place) { prompter.points.push_back({model::Answer::Given, place}); }
    void escape() { prompter.points.emplace_back(); }
    Texts prompts() { return std::exchange(prompter.prompts, {}); }

    /// Queues a look at the state in the middle of the acts.
    template <typename Look>
    void look(Look look) {
        screen.acts.push_back([look](forms::Form&) { look(); });
    }
    int shows(const std::string& form) const {
        return static_cast<int>(std::count(screen.log.begin(), screen.log.end(), "show " + form));
    }
    /// The failures that left a handler.
    Texts failures() const {
        Texts found;
        for (const std::string& entry : screen.log)
            if (entry.starts_with("failure")) found.push_back(entry);
        return found;
    }
    Texts boxTexts() const {
        Texts found;
        for (const forms::MessageDialog& box : screen.boxes) found.push_back(box.text);
        return found;
    }
    static Texts entries(const forms::ListControl& list) {
        Texts found;
        for (int i = 0; i < list.listCount(); ++i) found.push_back(list.list(i));
        return found;
    }

    FaultyHost faulty{document};
};

}  // namespace fakes
