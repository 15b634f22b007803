#pragma once

#include "desk/model/document.h"
#include "desk/model/host_errors.h"
#include "tests/drawing/plain_drawing.h"
#include "tests/fakes/scripted_prompter.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace model {

using fakes::errorOf;
using Texts = std::vector<std::string>;

/// A document on a drawing, reached as the add-in reaches it: by names.
struct ModelWorld {
    explicit ModelWorld(std::unique_ptr<drawing::Drawing> drawing) {
        Environment environment;
        environment.prompter = &prompter;
        environment.regional = basic::Regional::english();
        application = std::make_shared<Application>(std::move(environment));
        document = application->open(std::move(drawing));
    }

    host::ObjectPtr object(const char* member) const { return host::asObject(document->get(member)); }
    host::ObjectPtr space() const { return object("ModelSpace"); }
    /// An entity of model space by its index.
    host::ObjectPtr item(int index) const { return host::asObject(space()->invoke("Item", {index})); }
    std::int32_t entityCount() const { return space()->get("Count").integer(); }
    host::ObjectPtr byHandle(const char* handle) const {
        return host::asObject(document->invoke("HandleToObject", {handle}));
    }
    host::ObjectPtr insert(const char* name, basic::Doubles point = {0, 0, 0}, double scale = 1,
                           double rotation = 0) const {
        return host::asObject(
            space()->invoke("InsertBlock", {std::move(point), name, scale, scale, scale, rotation}));
    }
    drawing::Drawing& drawing() const { return *application->active()->context()->drawing; }

    fakes::ScriptedPrompter prompter;
    std::shared_ptr<Application> application;
    host::ObjectPtr document;
};

inline std::string textOf(const host::ObjectPtr& object, const char* member) {
    return object->get(member).text();
}
inline double numberOf(const host::ObjectPtr& object, const char* member) {
    return object->get(member).number();
}
inline void expectPoint(const host::ObjectPtr& object, const char* member, const basic::Doubles& wanted) {
    const basic::Doubles found = object->get(member).doubles();
    for (std::size_t axis = 0; axis < 3; ++axis) EXPECT_NEAR(found.at(axis), wanted[axis], 1e-9) << member;
}

/// "TAG=text" of a reference's attributes in their order.
inline Texts attributeTexts(const host::ObjectPtr& reference) {
    Texts texts;
    const Variant attributes = reference->invoke("GetAttributes");
    for (const Variant& element : attributes.array()) {
        const host::ObjectPtr attribute = host::asObject(element);
        texts.push_back(textOf(attribute, "TagString") + "=" + textOf(attribute, "TextString"));
    }
    return texts;
}

/// The object that a method gives.
inline host::ObjectPtr called(const host::ObjectPtr& object, const char* member,
                              std::initializer_list<Variant> arguments) {
    return host::asObject(object->invoke(member, arguments));
}

/// A member's text for each element of a collection.
inline Texts walked(const host::ObjectPtr& collection, const char* member) {
    Texts texts;
    collection->enumerate([&](const Variant& element) {
        texts.push_back(textOf(host::asObject(element), member));
        return true;
    });
    return texts;
}

/// The blocks DOOR (attributes MARK and ROOM, a constant one MAKER between them), FIXED (only a constant
/// attribute), PLAIN (a line, base point 1,0) and the anonymous *U1. Model space holds a reference of each in
/// this order, a line on layer LOCKED and a mirrored reference of DOOR; the numbers are their indices.
struct Furnished {
    enum Index { Door, Fixed, Plain, Anonymous, LockedLine, Mirrored };

    static drawing::PlainDrawing drawing() {
        drawing::PlainDrawing plain;
        plain.block("DOOR")
            .inBlock("LINE 8 0 10 0 20 0 11 1 21 0")
            .inBlock("ATTDEF 8 0 10 1 20 2 40 0.5 1 ? 3 Mark 2 MARK 70 0")
            .inBlock("ATTDEF 8 0 10 1 20 4 40 0.5 1 ACME 3 Maker 2 MAKER 70 2")
            .inBlock("ATTDEF 8 PLAIN 10 1 20 3 40 0.5 1 - 3 Room 2 ROOM 70 0");
        plain.block("FIXED").inBlock("ATTDEF 8 0 10 0 20 0 40 1 1 ACME 3 Maker 2 MAKER 70 2");
        plain.block("Plain", 1, 0).inBlock("LINE 8 0 10 0 20 0 11 1 21 0");
        plain.block("*U1").inBlock("LINE 8 0 10 0 20 0 11 9 21 0");
        plain.entity("INSERT 5 A1 8 PLAIN 62 3 66 1 2 DOOR 10 10 20 20 30 5 41 2 42 3 43 4 50 90")
            .entity("ATTRIB 5 A2 8 0 10 11 20 22 40 0.5 1 D1 2 MARK 70 0")
            .entity("ATTRIB 5 A3 8 0 10 11 20 23 40 0.5 1 hall 2 ROOM 70 0")
            .entity("SEQEND 5 A4 8 0");
        plain.entity("INSERT 5 A5 8 0 2 FIXED 10 0 20 0");
        plain.entity("INSERT 5 A6 8 0 60 1 2 PLAIN 10 1 20 2 70 3 71 2 44 5 45 6");
        plain.entity("INSERT 5 A7 8 0 2 *U1 10 0 20 0");
        plain.entity("LINE 5 A8 8 LOCKED 10 0 20 0 11 3 21 4");
        plain.entity("INSERT 5 A9 8 LOCKED 66 1 2 DOOR 10 10 20 20 30 1 50 30 210 0 220 0 230 -1")
            .entity("ATTRIB 5 AA 8 0 10 11 20 22 40 0.5 1 D2 2 MARK 70 0")
            .entity("SEQEND 5 AB 8 0");
        return plain;
    }
};

/// Tests on the document of `Furnished`.
class FurnishedTest : public testing::Test, protected ModelWorld {
  protected:
    FurnishedTest() : ModelWorld(Furnished::drawing().make()) {}
};

}  // namespace model
