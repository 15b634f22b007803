#pragma once

#include "desk/import/names.h"

#include <string>

namespace importing {

/// What copying an entity or a table entry asks of the import as a whole.
class ImportLinks {
  public:
    virtual ~ImportLinks() = default;
    /// The handle here of what a handle of the source names; 0 where that didn't come along.
    virtual Handle handle(Handle source) = 0;
    /// Notes that a table entry is needed and brings it in where it is missing. False where neither drawing
    /// has it.
    virtual bool use(TypeId table, const std::string& name) = 0;
    /// The name here of a block of the source, which is brought in where it is missing.
    virtual std::string block(const std::string& name) = 0;
};

}  // namespace importing
