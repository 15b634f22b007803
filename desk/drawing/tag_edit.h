#pragma once

#include "desk/drawing/ids.h"
#include "desk/drawing/placement.h"
#include "desk/dxf/tag_reader.h"
#include "desk/dxf/tag_writer.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// Collects new values of an entity's groups and applies them in one walk; all other groups keep their bytes.
///
/// A value replaces the first group of its code behind its subclass marker (an empty marker: anywhere),
/// outside of groups in braces (102), embedded objects (101) and extended data (1000 on). Where there is none
/// it goes to the end of the subclass. Formats without markers (R12) know no subclasses.
class TagEdit {
  public:
    explicit TagEdit(const dxf::Format& format) : format_(format), writer_(format, values_) {}

    void text(int code, std::string_view subclass, std::string_view utf8);
    void number(int code, std::string_view subclass, double value);
    void integer(int code, std::string_view subclass, std::int64_t value);
    void handle(int code, std::string_view subclass, Handle value);
    /// Groups `code`, `code` + 10 and `code` + 20.
    void point(int code, std::string_view subclass, const Point3& value);
    /// Takes the group away where it is.
    void remove(int code, std::string_view subclass);
    /// Forgets what was collected.
    void clear();
    bool isEmpty() const { return values_.empty() && edits_.empty(); }

    /// The entity's groups with the new values; valid until the next call. The edit is then empty again.
    std::string_view apply(std::string_view entity);
    /// The same where the one new value is known to take the place of a range.
    std::string_view applyAt(std::string_view entity, std::size_t begin, std::size_t end);

  private:
    struct Edit {
        int code;
        std::string_view subclass;
        std::size_t begin;  ///< the new group in `values_`
        std::size_t end;    ///< where it removes, the same as `begin`
        bool done;
    };

    void note(int code, std::string_view subclass, std::size_t begin);
    /// Writes what belongs to `subclass` and hasn't found its group; with `all`, whatever is left.
    void flush(std::string_view subclass, bool all);

    Edit* find(int code, std::string_view subclass);
    bool pending() const;

    const dxf::Format& format_;
    std::string values_;
    dxf::TagWriter writer_;
    std::vector<Edit> edits_;
    std::string result_;
};

}  // namespace drawing
