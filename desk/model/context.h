#pragma once

#include "basic/numbers.h"
#include "desk/drawing/drawing.h"
#include "desk/model/prompter.h"
#include "host/object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace model {

/// What a new reference takes over from the one that it replaces.
struct Keep {
    bool layer = false;
    bool color = false;
    bool lineType = false;
    bool space = false;  ///< the layout that it stands in
    bool any() const { return layer || color || lineType || space; }
};

/// What the program that embeds the model gives it.
struct Environment {
    Prompter* prompter = nullptr;  ///< never null while a document is open
    basic::Regional regional;      ///< numbers that arrive as text are read under it
    /// Folders in which a block file named without one is looked for, behind the drawing's own.
    std::vector<std::string> supportFolders;
    std::shared_ptr<Keep> keep = std::make_shared<Keep>();  ///< the session's, which VNKEEP sets
    /// Makes a DXF file of a DWG file and gives its path; raises basic::Error that says what is missing.
    std::function<std::string(const std::string& dwgPath)> convertDwg;
    /// Called once for each reference that is made or read; what it raises ends the command. May be empty.
    std::function<void()> watch;
};

/// What the objects of one document share. They hold it together, so an object that outlives its document
/// still finds the drawing that it belongs to.
struct Context {
    Context(std::unique_ptr<drawing::Drawing> opened, std::shared_ptr<const Environment> given)
        : drawing(std::move(opened)), environment(std::move(given)) {}

    std::unique_ptr<drawing::Drawing> drawing;
    std::shared_ptr<const Environment> environment;
    /// Block files brought in so far: the file's path and state to the block that holds it.
    struct BroughtIn {
        std::int64_t modified = 0;
        std::uintmax_t size = 0;
        drawing::BlockId block = drawing::kNoBlock;
    };
    std::map<std::string, BroughtIn> broughtIn;
    std::string refused;  ///< the last block file of which the user was told that it can't be brought in
    drawing::EntityId newest = drawing::kNoEntity;  ///< the reference that was inserted last
};
using ContextPtr = std::shared_ptr<Context>;

// Values as the automation layer converts them.

/// A number, or text under the regional settings; raises kTypeMismatch.
double toNumber(const Context& context, const basic::Variant& value);
/// Three floats as an array of floats or of variants that hold numbers; raises kTypeMismatch.
geometry::Point3 toPoint(const Context& context, const basic::Variant& value);
bool toBoolean(const Context& context, const basic::Variant& value);
basic::Variant fromPoint(const geometry::Point3& point);

/// Raises the failure of a wrong count of arguments unless there are `least` to `most`.
void requireCount(const host::Arguments& arguments, std::size_t least, std::size_t most, const char* member);

}  // namespace model
