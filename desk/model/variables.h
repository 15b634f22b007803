#pragma once

#include "desk/model/context.h"

#include <map>
#include <string>
#include <string_view>

namespace model {

/// The host's system variables, as getvar and setvar reach them, by name without regard to case: those of the
/// drawing's header, and a few that belong to the session.
class SystemVariables {
  public:
    /// Empty for a variable that the host doesn't know.
    basic::Variant get(const Context& context, std::string_view name) const;
    /// A change in the drawing is an edit of it. Raises kInvalidInput for a variable that can't be set, or
    /// not to this value, kKeyNotFound for a layer that the drawing lacks, kTypeMismatch for a value of
    /// another kind.
    void set(Context& context, std::string_view name, const basic::Variant& value);

  private:
    std::map<std::string, std::int16_t> session_;  ///< those that were set, by name in capitals
};

}  // namespace model
