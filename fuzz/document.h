#pragma once

#include "basic/border.h"
#include "desk/model/document.h"

#include <memory>
#include <string>
#include <vector>

namespace fuzz {

/// Answers prompts with the same point, angle and empty selection. Commands go on asking until they are
/// broken off, which comes with the last answer.
class Answers : public model::Prompter {
  public:
    model::EntityPick getEntity(const drawing::Drawing& drawing, const std::string&) override {
        model::EntityPick pick{next()};
        drawing.forEachEntity(drawing.modelSpace(), [&](drawing::EntityId id) {
            pick.entity = id;
            return drawing.type(id) != "INSERT" ||
                   ++picked_ % 2 == 0;  // references mostly, not always the first
        });
        if (pick.entity == drawing::kNoEntity) pick.answer = model::Answer::BrokenOff;
        return pick;
    }
    model::PointPick getPoint(const std::optional<drawing::Point3>&, const std::string&) override {
        return {next(), {1, 2, 0}};
    }
    model::AnglePick getAngle(const drawing::Point3&, const std::string&) override { return {next(), 1}; }
    model::SelectionPick selectEntities(const drawing::Drawing&, const std::string&) override {
        return {next(), {}};
    }
    void message(const std::string&) override {}

  private:
    /// Given, and now and then the end of a series.
    model::Answer next() {
        constexpr int kSeries = 8;
        if (++asked_ > 400) throw basic::Interruption("enough");
        return asked_ % kSeries == 0 ? model::Answer::BrokenOff : model::Answer::Given;
    }

    int asked_ = 0;
    int picked_ = 0;
};

/// A drawing behind its automation objects.
class Document {
  public:
    explicit Document(std::unique_ptr<drawing::Drawing> drawing) {
        model::Environment environment;
        environment.prompter = &answers_;
        environment.regional = basic::Regional::english();
        application_ = std::make_shared<model::Application>(std::move(environment));
        document_ = application_->open(std::move(drawing));
    }
    model::Document& operator*() const { return *document_; }
    model::Document* operator->() const { return document_.get(); }

  private:
    Answers answers_;
    std::shared_ptr<model::Application> application_;
    std::shared_ptr<model::Document> document_;
};

/// Runs what may fail, as a command does that ignores errors.
template <typename Act>
void attempt(Act&& act) {
    try {
        act();
    } catch (const basic::Error&) {
    }
}

/// Asks each entity of model space, up to `most`, for everything that the add-in asks.
inline void readEverything(const Document& document, std::size_t most = 300) {
    std::size_t count = 0;
    attempt([&] {
        host::asObject(document->modelSpace())->enumerate([&](const basic::Variant& element) {
            const host::ObjectPtr entity = host::asObject(element);
            for (const char* member :
                 {"ObjectName", "Layer", "Color", "length", "Perimeter", "Circumference", "Area", "Name",
                  "InsertionPoint", "Rotation", "hasAttributes", "Handle"})
                attempt([&] { entity->get(member); });
            attempt([&] {
                const basic::Variant attributes = entity->invoke("GetAttributes");
                for (const basic::Variant& attribute : attributes.array())
                    host::asObject(attribute)->get("TextString");
            });
            return ++count < most;
        });
    });
}

}  // namespace fuzz
