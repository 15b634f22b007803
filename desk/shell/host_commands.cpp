#include "desk/shell/host_commands.h"

#include "basic/error.h"
#include "desk/model/listing.h"
#include "desk/model/prompter.h"
#include "desk/shell/picture_program.h"
#include "desk/shell/surroundings.h"

#include <algorithm>
#include <ostream>
#include <vector>

namespace shell {

namespace {

using Outcome = Desk::Outcome;

/// A path as a user types it: "~" is the own folder.
std::string typedPath(const std::string& path) {
    return path.starts_with("~/") ? readEnvironment("HOME") + path.substr(1) : path;
}

Outcome open(Desk& desk, const std::string& rest) {
    if (rest.empty()) throw basic::Error(basic::kBadFileName, "OPEN needs the name of a drawing");
    desk.open(typedPath(rest));
    return Outcome::Done;
}

Outcome save(Desk& desk, const std::string& rest) {
    const std::string path = typedPath(rest);
    desk.requireReplacing(path);
    desk.save(path);
    return Outcome::Done;
}

/// Also over a file that another program has changed or has open.
Outcome saveOver(Desk& desk, const std::string& rest) {
    desk.save(typedPath(rest), Desk::Overwriting::Wanted);
    return Outcome::Done;
}

void listReferencesOf(Desk& desk, const std::string& name) {
    const drawing::Drawing& drawing = desk.document().drawing();
    if (drawing.blocks().find(name) == drawing::kNoBlock)
        throw basic::Error(basic::kInvalidCall, "LIST: the drawing has no block " + name);
    const std::vector<model::ReferenceLine> lines = model::listReferences(drawing, name);
    for (const model::ReferenceLine& line : lines) {
        desk.output() << "@" << line.handle << "  at " << line.x << "," << line.y << "," << line.z
                      << "  layer " << line.layer << "  in " << line.layout
                      << (line.attributes.empty() ? "" : "  " + line.attributes) << "\n";
    }
    desk.output() << lines.size() << (lines.size() == 1 ? " reference" : " references") << "\n";
}

Outcome list(Desk& desk, const std::string& rest) {
    if (!rest.empty()) {
        listReferencesOf(desk, rest);
        return Outcome::Done;
    }
    model::printBlocks(desk.output(), desk.document().drawing());
    return Outcome::Done;
}

model::SelectionPick select(Desk& desk) {
    return desk.prompter().selectEntities(desk.document().drawing(), "Select objects: ");
}

/// The selection is what "p" gives at the next prompt.
Outcome selectCommand(Desk& desk, const std::string&) {
    const model::SelectionPick pick = select(desk);
    desk.output() << pick.entities.size() << " selected\n";
    return Outcome::Done;
}

Outcome erase(Desk& desk, const std::string&) {
    drawing::Drawing& drawing = desk.document().drawing();
    const model::SelectionPick pick = select(desk);
    const drawing::UndoStep step(drawing, "ERASE");
    std::size_t erased = 0;
    std::size_t locked = 0;
    for (const drawing::EntityId id : pick.entities) {
        if (drawing.isErased(id)) continue;
        if (drawing.isOnLockedLayer(id)) {
            ++locked;
            continue;
        }
        drawing.erase(id);
        ++erased;
    }
    desk.output() << erased << " erased";
    if (locked > 0) desk.output() << ", " << locked << " left on locked layers";
    desk.output() << "\n";
    return Outcome::Done;
}

Outcome purge(Desk& desk, const std::string&) {
    drawing::Drawing& drawing = desk.document().drawing();
    const drawing::UndoStep step(drawing, "PURGE");
    const std::vector<std::string> names = drawing.purgeBlocks();
    for (const std::string& name : names) desk.output() << "  " << name << "\n";
    desk.output() << names.size() << (names.size() == 1 ? " block" : " blocks") << " purged\n";
    return Outcome::Done;
}

void listLayers(Desk& desk) {
    for (const drawing::Layer& layer : desk.document().drawing().layers().all()) {
        if (layer.record == drawing::kNoEntity) continue;
        desk.output() << "  " << layer.name << (layer.off ? "  off" : "") << (layer.frozen ? "  frozen" : "")
                      << (layer.locked ? "  locked" : "") << "\n";
    }
}

/// Shows the current layer, on which new references come, and makes another one current; "?" lists all.
Outcome layer(Desk& desk, const std::string& rest) {
    model::Document& document = desk.document();
    if (rest == "?") {
        listLayers(desk);
    } else if (!rest.empty()) {
        try {
            document.invoke("SetVariable", {"CLAYER", rest});
        } catch (const basic::Error& error) {
            throw basic::Error(error.number(), error.description() + "; LAYER ? lists the layers");
        }
    }
    desk.output() << "Current layer: " << document.invoke("GetVariable", {"CLAYER"}).text() << "\n";
    return Outcome::Done;
}

Outcome help(Desk& desk, const std::string&) {
    desk.output() << commandHelp();
    return Outcome::Done;
}

Outcome undo(Desk& desk, const std::string&) {
    desk.output() << (desk.document().undo() ? "Undone.\n" : "Nothing to undo.\n");
    return Outcome::Done;
}

Outcome picture(Desk& desk, const std::string& rest) {
    if (rest.empty())
        throw basic::Error(basic::kBadFileName, "PICTURE needs a file's name: .png, .svg or .pdf");
    const PictureGaps gaps = writePicture(desk.document().drawing(), typedPath(rest));
    desk.output() << "Picture written: " << rest << "\n";
    for (const auto& [type, count] : gaps.notDrawn)
        desk.output() << "  not drawn: " << count << " " << type << "\n";
    return Outcome::Done;
}

Outcome redo(Desk& desk, const std::string&) {
    desk.output() << (desk.document().redo() ? "Redone.\n" : "Nothing to redo.\n");
    return Outcome::Done;
}

Outcome quit(Desk&, const std::string&) { return Outcome::Quit; }

constexpr HostCommand kHostCommands[] = {
    {"OPEN", "FILE", "opens another drawing", open},
    {"SAVE", "[FILE]", "saves under the drawing's own name, or under another", save},
    {"SAVE!", "[FILE]", "saves also where another program has changed the file or has it open", saveOver},
    {"LIST", "[NAME]", "lists the blocks with their references, or the references of one block", list},
    {"LAYER", "[NAME]", "shows or sets the current layer, on which new references come; ? lists all", layer},
    {"SELECT", "", "selects objects; p stands for them at later prompts", selectCommand},
    {"ERASE", "", "erases the objects that are selected", erase},
    {"PURGE", "", "deletes the blocks that nothing uses", purge},
    {"PICTURE", "FILE", "writes a picture of model space: .png, .svg or .pdf", picture},
    {"U", "", "undoes the last line that changed the drawing", undo},
    {"REDO", "", "brings back what was undone last", redo},
    {"HELP", "", "tells what can be typed (? does too)", help},
    {"?", "", "", help},
    {"QUIT", "", "ends", quit},
};

constexpr const char* kAddInHelp =
    "  VNREPLACE        replaces the references of a block with another block\n"
    "  VNLABEL          places labels filled from the drawing\n"
    "  VNEXTRACT        extracts a block's references into a table and a text file\n"
    "  VNINSERT         inserts a block in bulk from such a file\n"
    "  VNHELP, VNABOUT  the help; the product and the choice of language\n";

}  // namespace

const HostCommand* findHostCommand(std::string_view name) {
    const auto* found = std::find_if(std::begin(kHostCommands), std::end(kHostCommands),
                                     [&](const HostCommand& command) { return command.name == name; });
    return found == std::end(kHostCommands) ? nullptr : found;
}

std::vector<std::string> hostCommandNames() {
    std::vector<std::string> names;
    for (const HostCommand& command : kHostCommands) names.emplace_back(command.name);
    return names;
}

std::string commandHelp() {
    constexpr std::size_t kColumn = 19;
    std::string text = kAddInHelp;
    for (const HostCommand& command : kHostCommands) {
        if (command.help.empty()) continue;
        std::string line = "  " + std::string(command.name) + " " + std::string(command.usage);
        line.resize(kColumn, ' ');
        text.append(line).append(command.help).append("\n");
    }
    text +=
        "  (...), !name     a Lisp expression, a Lisp variable\n"
        "In a dialog, help tells the acts; key F1 opens its help page.\n";
    return text;
}

}  // namespace shell
