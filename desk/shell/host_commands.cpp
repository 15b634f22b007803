#include "desk/shell/host_commands.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <vector>

namespace shell {

namespace {

using Outcome = Desk::Outcome;

Outcome open(Desk& desk, const std::string& rest) {
    if (rest.empty()) throw basic::Error(basic::kBadFileName, "OPEN needs the name of a drawing");
    desk.open(rest);
    return Outcome::Done;
}

Outcome save(Desk& desk, const std::string& rest) {
    desk.save(rest);
    return Outcome::Done;
}

/// References of each block in model space and all layouts; those inside other blocks aren't counted.
std::vector<std::size_t> countReferences(const drawing::Drawing& drawing) {
    const drawing::BlockTable& blocks = drawing.blocks();
    std::vector<std::size_t> counts(blocks.size());
    for (drawing::BlockId space = 0; space < blocks.size(); ++space) {
        if (blocks[space].isErased || !blocks[space].isLayout()) continue;
        drawing.forEachEntity(space, [&](drawing::EntityId id) {
            if (drawing.type(id) == "INSERT") {
                const drawing::BlockId block = blocks.find(drawing.name(id));
                if (block != drawing::kNoBlock) ++counts[block];
            }
            return true;
        });
    }
    return counts;
}

Outcome list(Desk& desk, const std::string&) {
    const drawing::Drawing& drawing = desk.document().drawing();
    const drawing::BlockTable& blocks = drawing.blocks();
    const std::vector<std::size_t> counts = countReferences(drawing);
    desk.output() << "References  Block\n";
    for (drawing::BlockId id = 0; id < blocks.size(); ++id) {
        if (blocks[id].isErased || blocks[id].isLayout()) continue;
        desk.output() << std::setw(10) << counts[id] << "  " << blocks[id].name
                      << (blocks[id].isXRef() ? " (external reference)" : "") << "\n";
    }
    return Outcome::Done;
}

Outcome undo(Desk& desk, const std::string&) {
    desk.output() << (desk.document().undo() ? "Undone.\n" : "Nothing to undo.\n");
    return Outcome::Done;
}

Outcome quit(Desk&, const std::string&) { return Outcome::Quit; }

constexpr HostCommand kHostCommands[] = {
    {"OPEN", open}, {"SAVE", save}, {"LIST", list}, {"U", undo}, {"QUIT", quit},
};

}  // namespace

const HostCommand* findHostCommand(std::string_view name) {
    const auto* found = std::find_if(std::begin(kHostCommands), std::end(kHostCommands),
                                     [&](const HostCommand& command) { return command.name == name; });
    return found == std::end(kHostCommands) ? nullptr : found;
}

}  // namespace shell
