#pragma once

#include "basic/border.h"
#include "desk/model/prompter.h"

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fakes {

/// A prompter that gives the queued answers and logs what was asked and told. Running out of answers is
/// a test's mistake and raises basic::Interruption, which no handler swallows.
class ScriptedPrompter : public model::Prompter {
  public:
    std::deque<model::EntityPick> entities;
    std::deque<model::PointPick> points;
    std::deque<model::AnglePick> angles;
    std::deque<model::SelectionPick> selections;
    std::vector<std::string> prompts;
    std::vector<std::string> messages;
    std::vector<std::optional<geometry::Point3>> bases;  ///< of the points and angles asked for

    model::EntityPick getEntity(const drawing::Drawing&, const std::string& prompt) override {
        return next(entities, prompt);
    }
    model::PointPick getPoint(const std::optional<geometry::Point3>& base,
                              const std::string& prompt) override {
        bases.push_back(base);
        return next(points, prompt);
    }
    model::AnglePick getAngle(const geometry::Point3& base, const std::string& prompt) override {
        bases.emplace_back(base);
        return next(angles, prompt);
    }
    model::SelectionPick selectEntities(const drawing::Drawing&, const std::string& prompt) override {
        return next(selections, prompt);
    }
    void message(const std::string& text) override { messages.push_back(text); }

  private:
    template <typename Pick>
    Pick next(std::deque<Pick>& queue, const std::string& prompt) {
        prompts.push_back(prompt);
        if (queue.empty()) throw basic::Interruption("no answer for: " + prompt);
        Pick pick = std::move(queue.front());
        queue.pop_front();
        return pick;
    }
};

}  // namespace fakes
