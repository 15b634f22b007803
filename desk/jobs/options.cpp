#include "desk/jobs/options.h"

#include "basic/error.h"
#include "basic/text_file.h"
#include "faces/text/control_names.h"

#include <algorithm>

namespace jobs {

namespace {

constexpr unsigned kChanging = kReplace | kInsert | kUpdate;
constexpr unsigned kJobs = kChanging | kExtract | kList | kCheck | kPicture;
constexpr unsigned kAll = kJobs | kConsole;

}  // namespace

const std::vector<Option>& allOptions() {
    static const std::vector<Option> options = {
        {"--from", "NAME", kReplace, "The block to replace."},
        {"--to", "NAME|FILE", kReplace,
         "The block that replaces it: one of the drawing, or a drawing file that is brought in as a block.",
         false, "file"},
        {"--block", "NAME", kExtract | kList,
         "The block whose references are meant. With list: each reference in a line of its own."},
        {"--block", "NAME|FILE", kInsert,
         "The block to insert: one of the drawing, or a drawing file that is brought in as a block.", false,
         "file"},
        {"--data", "FILE", kInsert | kUpdate,
         "The table: tab-separated text as extract writes it; update takes .csv too.", false, "file"},
        {"--map", "OLD=NEW", kReplace,
         "Carries the value of attribute OLD over to attribute NEW of the new block.", true},
        {"--map-equal", "", kReplace, "Pairs attributes of the same tag, and tells which found no partner."},
        {"--map-file", "FILE", kReplace,
         "Reads pairs from a file: old tag, tab, new tag. Pairs that the blocks don't have are passed over "
         "and told.",
         false, "file"},
        {"--map", "PARAMETER=COLUMN", kInsert,
         "Fills a parameter (X_, Y_, Z_, Ech.X, Ech.Y, Ech.Z, Rotation(rd), DeltaX, DeltaY, DeltaZ) or an "
         "attribute from a column of the table, or with a constant: \"DeltaX=1.5\", \"NUMERO=Nom\".",
         true},
        {"--leader", "", kInsert, "Draws a leader line from each row's point to its reference."},
        {"--rotation", "ANGLE", kReplace,
         "Rotation of the new references in radians; with \"deg\" behind it in degrees."},
        {"--scale", "X[,Y,Z]", kReplace, "Scale factors of the new references, or one for all three axes."},
        {"--visible", "on|off", kReplace, "Shows or hides the new references.", false, "on off"},
        {"--keep", "LIST", kReplace,
         "What the new references take over from the old ones: layer, colour, linetype, space (the layout), "
         "parted by commas."},
        {"--zone", "ZONE", kReplace | kExtract,
         "Takes only the references of a zone of model space: \"w X,Y X,Y\" those wholly inside the window, "
         "\"c X,Y X,Y\" also those that reach into it. Several zones add up.",
         true},
        {"--handles", "", kExtract,
         "Adds a column of handles, by which update finds the references again. Values that a spreadsheet "
         "would take for something else get an apostrophe in front."},
        {"--encoding", "cp1252|utf8", kExtract, "How the table is written; .csv is UTF-8 without it.", false,
         "cp1252 utf8"},
        {"--exact", "", kUpdate,
         "Writes a cell also where it differs from the attribute only as a number is written (007 and 7)."},
        {"--block", "NAME", kPicture, "The block to draw in place of model space."},
        {"--layout", "NAME", kPicture, "The layout to draw in place of model space."},
        {"--window", "X,Y,X,Y", kPicture,
         "The part to draw, in drawing units; without it all that is shown."},
        {"--size", "WIDTHxHEIGHT", kPicture, "Pixels; of .svg and .pdf the proportions."},
        {"--dark", "", kPicture, "Draws on a near-black ground."},
        {"--screen-colors", "", kPicture, "Lightens or darkens the colours that hardly show on the ground."},
        {"--weights", "", kPicture, "Draws lines as wide as their weights."},
        {"--no-margin", "", kPicture, "Leaves no free edge."},
        {"--format", "png|svg|pdf", kPicture,
         "The kind of the pictures, where no file's name tells it; png without it.", false, "png svg pdf"},
        {"--out", "FILE|FOLDER", kPicture,
         "Where the pictures go: a folder, or for one drawing a file whose name tells the kind. Without it "
         "they "
         "go beside their drawings.",
         false, "file"},
        {"--out", "FILE|FOLDER", kChanging | kExtract,
         "Where the results go: a folder for several drawings, a file for one. With extract a file (.txt or "
         ".csv) takes all drawings, a folder one table a drawing.",
         false, "file"},
        {"--in-place", "", kChanging, "Changes the drawings themselves; each keeps a copy with .bak behind."},
        {"--force", "", kChanging | kExtract | kPicture, "Overwrites results that are there already."},
        {"--dry-run", "", kChanging, "Does everything but save, and tells what would be done."},
        {"--keep-going", "", kInsert | kConsole,
         "In a script: goes on after a line that failed. With insert: keeps the rows that went in where "
         "others "
         "failed."},
        {"--jobs", "N", kJobs, "So many drawings at once; as many as there are cores without it."},
        {"--json", "", kJobs, "Prints the report as JSON instead of lines."},
        {"--script", "FILE", kConsole,
         "Takes its lines from FILE, or from the standard input for \"-\", and echoes them; stops at the "
         "first "
         "that fails.",
         false, "file"},
        {"--console", "", kConsole, "Stays in the terminal where there is a display too."},
        {"--fresh", "", kConsole, "Begins without remembered formats and window sizes, and keeps none."},
        {"--settings", "FOLDER", kConsole, "Keeps settings and language files there.", false, "folder"},
        {"--regional", "fr|en", kAll,
         "Decimal comma (fr) or decimal point (en) in dialogs and tables; without it as the desktop has it.",
         false, "fr en"},
        {"--lang", "fr|en", kAll, "The language of the dialogs and messages.", false, "fr en"},
        {"--quiet", "", kAll,
         "Tells only what went wrong. On the console: without the greeting and without echoed lines."},
        {"--help", "", kAll, "Tells about the program or the verb."},
        {"--version", "", kAll, "Tells the version."},
    };
    return options;
}

const std::vector<VerbText>& allVerbs() {
    static const std::vector<VerbText> verbs = {
        {kConsole, "", "[DRAWING] [OPTION...]", "opens a drawing in the window, or in the console",
         "Without a verb the drawing is opened in the window. Without a display, with --console or with a "
         "script it is the console: HELP tells what can be typed there."},
        {kReplace, "replace", "--from NAME --to NAME [OPTION...] DRAWING...",
         "replaces the references of a block with another block",
         "Fills and presses the dialog of VNREPLACE, so the result is the dialog's to the byte. The new "
         "references come out visible and on the current layer. References on locked layers are left and "
         "told."},
        {kExtract, "extract", "--block NAME --out FILE|FOLDER [OPTION...] DRAWING...",
         "writes a table of a block's references",
         "A single drawing without --handles and with .txt gives the very file of VNEXTRACT. Several "
         "drawings "
         "in one file get a first column with the drawing's name."},
        {kInsert, "insert", "--block NAME --data FILE [OPTION...] DRAWING...",
         "inserts a block once for each row of a table",
         "The table is one of extract, or any of that form: a title line, a line of column headers, a line a "
         "row. A row with a text that is no number fails, and the drawing with it unless --keep-going is "
         "given."},
        {kUpdate, "update", "--data FILE [OPTION...] DRAWING...",
         "writes changed attribute values of a table back",
         "The table comes from extract --handles, by way of a spreadsheet if you like. Only values that "
         "changed are written; rows whose reference is gone or is of another block are told."},
        {kList, "list", "[OPTION...] DRAWING...", "lists the blocks with the number of their references", ""},
        {kCheck, "check", "[OPTION...] DRAWING...", "tells what is wrong with drawings",
         "Lists what the reader had to repair. Such a drawing counts as failed."},
        {kPicture, "picture", "[OPTION...] DRAWING...", "draws pictures of drawings: PNG, SVG or PDF",
         "Needs no display. The program vorlane-picture, which comes with the window, draws them; what it "
         "can't draw is told. Without --layout or --block model space is shown."},
    };
    return verbs;
}

const VerbText& textOf(Verb verb) {
    return *std::find_if(allVerbs().begin(), allVerbs().end(),
                         [&](const VerbText& text) { return text.verb == verb; });
}

const VerbText* findVerb(std::string_view name) {
    if (name.empty()) return nullptr;
    const auto found = std::find_if(allVerbs().begin(), allVerbs().end(),
                                    [&](const VerbText& text) { return text.name == name; });
    return found == allVerbs().end() ? nullptr : &*found;
}

std::string Arguments::value(std::string_view option) const {
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second.back();
}

std::vector<std::string> Arguments::values(std::string_view option) const {
    const auto found = options.find(option);
    return found == options.end() ? std::vector<std::string>() : found->second;
}

namespace {

const Option& optionNamed(Verb verb, const std::string& name) {
    const std::string full = name == "-h" ? "--help" : name == "-j" ? "--jobs" : name;
    for (const Option& option : allOptions()) {
        if (option.name == full && (option.verbs & verb) != 0) return option;
    }
    std::vector<std::string> names;
    for (const Option& option : allOptions()) {
        if ((option.verbs & verb) != 0) names.emplace_back(option.name);
    }
    const char* of = textOf(verb).name;
    throw UsageError("unknown option " + name + (*of == 0 ? std::string() : " of " + std::string(of)) +
                     text_face::nearText(name, names));
}

/// Whether the value is one of the words that the option is limited to, such as "fr|en".
bool allowed(const Option& option, const std::string& value) {
    const std::string words = option.completes;
    if (words.empty() || words == "file" || words == "folder") return true;
    return (" " + words + " ").find(" " + value + " ") != std::string::npos;
}

}  // namespace

Arguments parseArguments(Verb verb, const std::vector<std::string>& words) {
    Arguments arguments;
    arguments.verb = verb;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnded || !word.starts_with('-') || word.size() < 2) {
            arguments.operands.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const std::size_t equals = word.starts_with("--") ? word.find('=') : std::string::npos;
        const std::string name = word.substr(0, equals);
        const Option& option = optionNamed(verb, name);
        const bool isSwitch = *option.value == 0;
        if (isSwitch && equals != std::string::npos) throw UsageError(name + " takes no value");
        std::string value;
        if (equals != std::string::npos) {
            value = word.substr(equals + 1);
        } else if (!isSwitch) {
            if (i + 1 == words.size()) throw UsageError(name + " needs a value");
            value = words[++i];
        }
        if (!isSwitch && !allowed(option, value))
            throw UsageError(
                std::string(name).append(" takes ").append(option.value).append(", not ").append(value));
        std::vector<std::string>& values = arguments.options[option.name];
        if (!values.empty() && !option.repeated && !isSwitch) throw UsageError(name + " is given twice");
        values.push_back(value);
    }
    return arguments;
}

std::string bytesOf(const std::string& option, const std::string& path) {
    try {
        return basic::readBytes(path);
    } catch (const basic::Error& error) {
        throw UsageError(option + ": " + error.description());
    }
}

}  // namespace jobs
