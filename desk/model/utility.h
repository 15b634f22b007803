#pragma once

#include "desk/model/context.h"
#include "desk/model/members.h"

namespace model {

/// What stops and waits for the user in the drawing. A break-off, an empty answer and a pick that hits
/// nothing raise kPromptFailed.
class Utility : public Automation {
  public:
    explicit Utility(ContextPtr context) : context_(std::move(context)) {}

    /// Object (out), picked point (out), prompt, which may be left out.
    Variant getEntity(Arguments& arguments);
    /// Base point, which may be left out, prompt, which may be left out; gives a point.
    Variant getPoint(Arguments& arguments);
    /// Base point, prompt; gives radians.
    Variant getAngle(Arguments& arguments);
    /// A text on the command line.
    Variant prompt(Arguments& arguments);

  protected:
    const MemberTable& members() const override;

  private:
    std::optional<geometry::Point3> basePoint(const Arguments& arguments) const;
    static std::string promptText(const Arguments& arguments, std::size_t at);
    Prompter& prompter() const { return *context_->environment->prompter; }

    ContextPtr context_;
};

}  // namespace model
