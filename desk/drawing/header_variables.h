#pragma once

#include "desk/drawing/vector.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {
struct Format;
}

namespace drawing {

/// The variables of the HEADER section by name ("$CLAYER"), without regard to case. A variable that the file
/// lacks gives an empty result.
class HeaderVariables {
  public:
    /// A value that stands in the file: a single group, or the first of a point's groups.
    struct Entry {
        std::string_view name;   ///< with its dollar sign
        std::string_view bytes;  ///< the tags of the value
    };

    std::optional<std::string> text(std::string_view name) const;
    std::optional<double> number(std::string_view name) const;
    std::optional<int> integer(std::string_view name) const;
    std::optional<Point3> point(std::string_view name) const;
    const Entry* find(std::string_view name) const;

    void add(Entry entry) { entries_.push_back(entry); }
    void setFormat(const dxf::Format* format) { format_ = format; }

  private:
    std::vector<Entry> entries_;
    const dxf::Format* format_ = nullptr;
};

}  // namespace drawing
