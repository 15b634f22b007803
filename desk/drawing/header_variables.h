#pragma once

#include "desk/drawing/placement.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {
struct Format;
}

namespace drawing {

/// The variables of the HEADER section by name ("$CLAYER"), without regard to case. A variable that the
/// drawing lacks gives an empty result.
class HeaderVariables {
  public:
    /// A value: a single group, or a point's groups.
    struct Entry {
        std::string_view name;   ///< with its dollar sign
        std::string_view bytes;  ///< the tags of the value
    };
    /// The tags of a value that was set, null for what the file says.
    using Value = std::shared_ptr<const std::string>;

    std::optional<std::string> text(std::string_view name) const;
    std::optional<double> number(std::string_view name) const;
    std::optional<int> integer(std::string_view name) const;
    std::optional<Point3> point(std::string_view name) const;
    /// The group code of the value, of a point the first; -1 for a variable that the drawing lacks.
    int code(std::string_view name) const;
    const Entry* find(std::string_view name) const;
    /// The same as it stands in the file.
    const Entry* findInFile(std::string_view name) const;

    /// Sets a variable, or with null gives it the file's value again. Returns what was set before.
    Value set(std::string_view name, Value value);
    /// The variables that were set.
    const std::vector<Entry>& changes() const { return changes_; }

    void add(Entry entry) { entries_.push_back(entry); }
    void setFormat(const dxf::Format* format) { format_ = format; }

  private:
    std::vector<Entry> entries_;
    std::vector<Entry> changes_;  ///< into `names_` and `values_`, beside them
    std::vector<std::shared_ptr<const std::string>> names_;
    std::vector<Value> values_;
    const dxf::Format* format_ = nullptr;
};

}  // namespace drawing
