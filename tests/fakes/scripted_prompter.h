#pragma once

#include "desk/model/prompter.h"

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace fakes {

/// A prompter that gives the queued answers and logs what was asked and told. Running out of answers is
/// a test's mistake and raises std::logic_error, which no handler swallows.
class ScriptedPrompter : public model::Prompter {
  public:
    std::deque<model::EntityPick> entities;
    std::deque<model::PointPick> points;
    std::deque<model::AnglePick> angles;
    std::deque<model::SelectionPick> selections;
    std::vector<std::string> prompts;
    std::vector<std::string> messages;
    std::vector<std::optional<drawing::Point3>> bases;  ///< of the points and angles asked for

    model::EntityPick getEntity(const drawing::Drawing&, const std::string& prompt) override {
        return next(entities, prompt);
    }
    model::PointPick getPoint(const std::optional<drawing::Point3>& base,
                              const std::string& prompt) override {
        bases.push_back(base);
        return next(points, prompt);
    }
    model::AnglePick getAngle(const drawing::Point3& base, const std::string& prompt) override {
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
        if (queue.empty()) throw std::logic_error("no answer for: " + prompt);
        Pick pick = std::move(queue.front());
        queue.pop_front();
        return pick;
    }
};

}  // namespace fakes
