#include "desk/shell/desk.h"

#include "basic/border.h"
#include "basic/text.h"
#include "desk/drawing/work_watch.h"
#include "desk/dxf/findings.h"
#include "desk/lisp/error.h"
#include "desk/lisp/printer.h"
#include "desk/shell/dwg_converter.h"
#include "desk/shell/host_commands.h"
#include "desk/shell/install_folder.h"
#include "desk/shell/lisp_answer.h"
#include "desk/shell/surroundings.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <optional>
#include <ostream>

namespace shell {

namespace {

constexpr std::size_t kMostFindingsTold = 20;

model::Environment environment(const DeskOptions& options, model::Prompter& prompter) {
    model::Environment environment;
    environment.prompter = &prompter;
    environment.regional = options.regional;
    environment.supportFolders = {options.installFolder.string()};
    environment.convertDwg = convertDwg;
    return environment;
}

void tellFindings(std::ostream& output, const std::vector<dxf::Finding>& findings) {
    if (findings.empty()) return;
    output << findings.size() << (findings.size() == 1 ? " finding" : " findings") << " on reading:\n";
    for (std::size_t i = 0; i < findings.size() && i < kMostFindingsTold; ++i) {
        output << "  " << dxf::toText(findings[i]) << "\n";
    }
    if (findings.size() > kMostFindingsTold) {
        output << "  and " << findings.size() - kMostFindingsTold << " more\n";
    }
}

bool isDwg(const std::string& path) {
    return basic::equalIgnoringCase(std::filesystem::path(path).extension().string(), ".dwg");
}

/// A drawing made of a DWG file. It goes by that file's name with .dxf for its extension.
std::unique_ptr<drawing::Drawing> openConverted(const std::string& path) {
    const std::string converted = convertDwg(path);
    const dxf::FileBytes bytes = dxf::readFile(converted);
    std::error_code ignored;
    std::filesystem::remove(converted, ignored);
    return drawing::Drawing::parse({bytes.data.get(), bytes.size},
                                   std::filesystem::path(path).replace_extension(".dxf").string());
}

}  // namespace

Desk::Desk(const DeskOptions& options, forms::Screen& screen, model::Prompter& prompter, std::ostream& output)
    : output_(output),
      prompter_(prompter),
      stateFolder_(options.stateFolder),
      autosaves_(options.autosave && !options.stateFolder.empty()),
      breakable_(options.breakable),
      confirm_(options.confirm),
      aside_(options.aside),
      readied_(options.readied),
      autosaveInterval_(options.autosaveInterval) {
    prepareInstallFolder(options.installFolder, options.resources,
                         languageByCode(options.frenchDesktop ? "fr" : "en"));
    if (!options.language.empty()) chooseLanguage(options.installFolder, options.language);
    platform_ = std::make_unique<LinuxPlatform>(
        options.installFolder, options.regional, [this](const std::string& text) { output_ << text << "\n"; },
        options.showPage);
    const auto watch = [this, also = options.watch] {
        if (break_ != nullptr) break_->check();
        if (autosave_) keepCopyInTime();
        if (also) also();
    };
    model::Environment given = environment(options, prompter);
    given.watch = watch;
    application_ = std::make_shared<model::Application>(std::move(given));
    lisp_ = std::make_unique<lisp::Interpreter>(output_);
    lisp_->setWatch(watch);
    lisp_->setVariables({[this](std::string_view name) {
                             return hasDrawing() ? document().invoke("GetVariable", {name})
                                                 : basic::Variant();
                         },
                         [this](std::string_view name, const basic::Variant& value) {
                             document().invoke("SetVariable", {name, value});
                         }});
    component_ = std::make_unique<entry::Component>(*platform_, screen);

    lisp_->setAcadObject(application_);
    application_->registerObject("VL.Application", [this] { return lisp_->createObject("VL.Application"); });
    application_->registerObject(std::string(entry::Component::kProgramId),
                                 [this] { return component_->createVnObj0100(); });
    lisp_->setSupportFolders({options.installFolder, options.resources});
    lisp_->load(options.resources / "vorlane.lsp");
}

Desk::~Desk() {
    if (std::uncaught_exceptions() == 0) removeRecovered();
}

model::Document& Desk::document() const {
    if (!hasDrawing()) throw basic::Error(basic::kObjectNotSet, "No drawing is open");
    return *application_->active();
}

bool Desk::hasUnsavedChanges() const {
    return hasDrawing() && (isRecovered_ || document().drawing().isModified());
}

std::unique_ptr<drawing::Drawing> Desk::openOrRecover(const std::string& path) {
    const std::vector<std::filesystem::path> copies = stateFolder_.empty()
                                                          ? std::vector<std::filesystem::path>()
                                                          : Autosave::leftBehind(stateFolder_, path);
    if (!copies.empty() && !confirm_) {
        output_ << "Changes to " << path << " that a session before couldn't save are in "
                << copies.front().string() << "\n";
    } else if (!copies.empty()) {
        const bool wanted = confirm_("A session before ended without saving its changes to " + path +
                                     ". Work on with the copy of them?");
        std::unique_ptr<drawing::Drawing> drawing;
        if (wanted) {
            drawing = readAside(path, [path, copy = copies.front().string()] {
                const dxf::FileBytes bytes = dxf::readFile(copy);
                return drawing::Drawing::parse({bytes.data.get(), bytes.size}, path);
            });
        } else {
            drawing = readAside(path, [path] { return drawing::Drawing::open(path); });
        }
        removeRecovered();
        recovered_ = copies.front();
        isRecovered_ = wanted;
        return drawing;
    }
    auto drawing = readAside(path, [path] { return drawing::Drawing::open(path); });
    removeRecovered();
    return drawing;
}

/// What is read belongs to the reading: it may go on when nobody waits for it any more.
std::unique_ptr<drawing::Drawing> Desk::readAside(const std::string& path, Read read) const {
    if (!aside_) return read();
    const auto made = std::make_shared<std::unique_ptr<drawing::Drawing>>();
    aside_(path, [made, read = std::move(read), readied = readied_] {
        if (readied) drawing::WorkWatch::stage(0, 0.4);
        *made = read();
        if (readied) readied(**made);
    });
    return std::move(*made);
}

void Desk::removeRecovered() {
    std::error_code ignored;
    if (!recovered_.empty()) std::filesystem::remove(recovered_, ignored);
    recovered_.clear();
    isRecovered_ = false;
}

void Desk::open(const std::string& path) {
    if (isDwg(path)) {
        application_->open(readAside(path, [path] { return openConverted(path); }));
        removeRecovered();
        file_.reset();
    } else {
        const dxf::FileStamp stamp = dxf::stampOf(path);
        application_->open(openOrRecover(path));
        file_.reset();  // its lock file first: the new one may be of the same drawing
        file_ = std::make_unique<DrawingFile>(path, stamp);
    }
    autosave_ = autosaves_ ? std::make_unique<Autosave>(stateFolder_, document().drawing().path()) : nullptr;
    output_ << "Opened " << path << (isRecovered_ ? " with the changes of the session before" : "") << "\n";
    if (file_ && !file_->other().user.empty())
        output_ << "It is open already: " << file_->other().text() << "\n";
    if (!file_)
        output_ << "A DWG drawing was converted; it is saved as DXF: " << document().drawing().path() << "\n";
    tellFindings(output_, document().drawing().findings());
}

/// The folder for copies of files that can only be written in place, made where it is missing; empty for
/// none.
std::string Desk::backupFolder() const {
    if (stateFolder_.empty()) return {};
    const std::filesystem::path folder = stateFolder_ / "backup";
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all, failure);
    return failure ? std::string() : folder.string();
}

void Desk::requireOverwriting(const std::string& path, Overwriting overwriting) const {
    if (overwriting == Overwriting::Wanted || !file_ || path != file_->path()) return;
    std::string reason;
    if (file_->wasChanged()) {
        reason = path + " was changed by another program since it was opened";
    } else if (!file_->other().user.empty()) {
        reason = path + " is open elsewhere: " + file_->other().text();
    } else {
        return;
    }
    if (!confirm_)
        throw basic::Error(basic::kPermissionDenied, reason + "; SAVE! writes over it all the same");
    if (!confirm_(reason + ". Write over it?")) throw basic::Error(basic::kPermissionDenied, "Not saved");
}

void Desk::requireReplacing(const std::string& path) const {
    std::error_code ignored;
    const bool isOwn = path.empty() || (file_ && std::filesystem::equivalent(path, file_->path(), ignored));
    if (isOwn || !confirm_ || !std::filesystem::exists(path, ignored)) return;
    if (!confirm_(path + " is there already. Write over it?"))
        throw basic::Error(basic::kPermissionDenied, "Not saved");
}

void Desk::save(const std::string& path, Overwriting overwriting) {
    drawing::Drawing& drawing = document().drawing();
    const std::string target = path.empty() ? drawing.path() : path;
    std::error_code ignored;
    // The name is ours, not the user's: a DXF file that is there already may be another drawing.
    if (path.empty() && !file_ && std::filesystem::exists(target, ignored)) {
        throw basic::Error(
            basic::kPermissionDenied,
            target +
                " is there already, and the drawing came from a DWG file; SAVE with a name says "
                "where it goes");
    }
    requireOverwriting(target, overwriting);
    const dxf::Saved saved = drawing.save(target, backupFolder());
    if (file_ && file_->path() == target) {
        file_->wasSaved();
    } else {
        file_.reset();
        file_ = std::make_unique<DrawingFile>(target, dxf::stampOf(target));
        autosave_ = autosaves_ ? std::make_unique<Autosave>(stateFolder_, target) : nullptr;
    }
    removeRecovered();
    output_ << "Saved " << drawing.path() << "\n";
    if (saved.inPlace) output_ << "Its folder takes no new files, so the file itself was written.\n";
    if (saved.otherNames) output_ << "Its other names (hard links) go on naming the drawing of before.\n";
}

/// Undoes the step of a line that was broken off, if it changed anything.
void Desk::takeBack(const model::ContextPtr& context, std::uint64_t revision) {
    const bool isOurs = context && hasDrawing() && document().context() == context;
    if (isOurs && context->drawing->revision() != revision) document().undo();
}

void Desk::keepCopy() {
    if (!autosave_ || !hasDrawing()) return;
    try {
        basic::acrossBorder([&] { autosave_->keep(document().drawing()); });
    } catch (const basic::Error& error) {
        output_ << "The copy of what isn't saved can't be kept: " << error.description() << "\n";
        autosave_ = nullptr;  // told once
    }
}

/// Amid a command that takes long. What a copy costs stays a small part of the time.
void Desk::keepCopyInTime() {
    constexpr int kPart = 50;
    const auto start = std::chrono::steady_clock::now();
    if (start < nextCopy_) return;
    keepCopy();
    const auto end = std::chrono::steady_clock::now();
    nextCopy_ = end + std::max(autosaveInterval_, (end - start) * kPart);
}

Desk::Outcome Desk::run(const std::string& line) {
    const std::string text(basic::trim(line));
    if (text.empty()) return Outcome::Done;
    const HeldBreak held(breakable_);
    const auto back = [this, before = break_](const HeldBreak*) { break_ = before; };
    const std::unique_ptr<const HeldBreak, decltype(back)> running(&held, back);
    break_ = &held;
    nextCopy_ = std::chrono::steady_clock::now() + autosaveInterval_;
    const model::ContextPtr context = hasDrawing() ? document().context() : nullptr;
    const std::uint64_t revision = context ? context->drawing->revision() : 0;
    const int shortages = basic::memoryShortages();
    try {
        const Outcome outcome = basic::acrossBorder(
            [&] { return text.starts_with('(') || text.starts_with('!') ? evaluate(text) : command(text); });
        keepCopy();
        if (outcome == Outcome::Done && basic::memoryShortages() != shortages)
            return fail(Outcome::Failed, "Memory ran out: a part of the command may not have been done.");
        return outcome;
    } catch (const UserBreak& userBreak) {
        fail(Outcome::Failed, userBreak.what());
        takeBack(context, revision);
        keepCopy();
        return Outcome::Failed;
    } catch (const lisp::IncompleteInput&) {
        return Outcome::Incomplete;
    } catch (const basic::Error& error) {
        keepCopy();  // a command that fails may have done its part
        return fail(Outcome::Failed, "Error " + std::to_string(error.number()) + ": " + error.description());
    }
}

Desk::Outcome Desk::fail(Outcome outcome, std::string reason) {
    failure_ = std::move(reason);
    output_ << failure_ << "\n";
    return outcome;
}

Desk::Outcome Desk::evaluate(const std::string& expression) {
    std::optional<drawing::UndoStep> step;
    if (hasDrawing()) step.emplace(document().drawing(), "Lisp");
    // "!name" asks for a variable's value, as at the host's command line.
    const lisp::Value value = lisp_->eval(expression.starts_with('!') ? expression.substr(1) : expression);
    const std::string shown = lisp::printed(value, lisp::Style::Readable);
    if (!shown.empty()) output_ << shown << "\n";
    return Outcome::Done;
}

std::string Desk::answerOf(const std::string& expression) {
    return promptAnswer(lisp_->eval(expression.starts_with('!') ? expression.substr(1) : expression));
}

std::vector<std::string> Desk::commandNames() const {
    std::vector<std::string> names = hostCommandNames();
    for (const char* name : {"VNLABEL", "VNREPLACE", "VNEXTRACT", "VNINSERT", "VNHELP", "VNABOUT"})
        names.emplace_back(name);
    return names;
}

Desk::Outcome Desk::command(const std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string name = basic::toUpper(line.substr(0, blank));
    const std::string rest(basic::trim(blank == std::string::npos ? "" : line.substr(blank)));
    if (const HostCommand* hostCommand = findHostCommand(name)) return hostCommand->run(*this, rest);
    if (!rest.empty() || !lisp_->hasCommand(name)) {
        return fail(Outcome::Unknown, "Unknown command \"" + line + "\".");
    }
    // The drawing is held: a command of Lisp's could open another one.
    const model::ContextPtr context = document().context();
    const drawing::UndoStep step(*context->drawing, name);
    lisp_->command(name);
    return Outcome::Done;
}

}  // namespace shell
