#include "desk/shell/desk.h"

#include "basic/text.h"
#include "desk/dxf/findings.h"
#include "desk/lisp/error.h"
#include "desk/lisp/printer.h"
#include "desk/shell/dwg_converter.h"
#include "desk/shell/host_commands.h"
#include "desk/shell/install_folder.h"

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

}  // namespace

Desk::Desk(const DeskOptions& options, forms::Screen& screen, model::Prompter& prompter, std::ostream& output)
    : output_(output) {
    prepareInstallFolder(options.installFolder, options.resources,
                         options.frenchDesktop ? "Fran\u00E7ais" : "English");
    platform_ = std::make_unique<LinuxPlatform>(options.installFolder, options.regional,
                                                [this](const std::string& text) { output_ << text << "\n"; });
    application_ = std::make_shared<model::Application>(environment(options, prompter));
    lisp_ = std::make_unique<lisp::Interpreter>(output_);
    component_ = std::make_unique<entry::Component>(*platform_, screen);

    lisp_->setAcadObject(application_);
    application_->registerObject("VL.Application", [this] { return lisp_->createObject("VL.Application"); });
    application_->registerObject(std::string(entry::Component::kProgramId),
                                 [this] { return component_->createVnObj0100(); });
    lisp_->setSupportFolders({options.installFolder, options.resources});
    lisp_->load(options.resources / "vorlane.lsp");
}

Desk::~Desk() = default;

model::Document& Desk::document() const {
    if (!hasDrawing()) throw basic::Error(basic::kObjectNotSet, "No drawing is open");
    return *application_->active();
}

bool Desk::hasUnsavedChanges() const { return hasDrawing() && document().drawing().isModified(); }

void Desk::open(const std::string& path) {
    application_->open(drawing::Drawing::open(path));
    output_ << "Opened " << path << "\n";
    tellFindings(output_, document().drawing().findings());
}

void Desk::save(const std::string& path) {
    drawing::Drawing& drawing = document().drawing();
    drawing.save(path.empty() ? drawing.path() : path);
    output_ << "Saved " << drawing.path() << "\n";
}

Desk::Outcome Desk::run(const std::string& line) {
    const std::string text(basic::trim(line));
    if (text.empty()) return Outcome::Done;
    try {
        return text.starts_with('(') || text.starts_with('!') ? evaluate(text) : command(text);
    } catch (const lisp::IncompleteInput&) {
        return Outcome::Incomplete;
    } catch (const basic::Error& error) {
        output_ << "Error " << error.number() << ": " << error.description() << "\n";
        return Outcome::Failed;
    }
}

Desk::Outcome Desk::evaluate(const std::string& expression) {
    std::optional<drawing::UndoStep> step;
    if (hasDrawing()) step.emplace(document().drawing());
    // "!name" asks for a variable's value, as at the host's command line.
    const lisp::Value value = lisp_->eval(expression.starts_with('!') ? expression.substr(1) : expression);
    const std::string shown = lisp::printed(value, lisp::Style::Readable);
    if (!shown.empty()) output_ << shown << "\n";
    return Outcome::Done;
}

Desk::Outcome Desk::command(const std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string name = basic::toUpper(line.substr(0, blank));
    const std::string rest(basic::trim(blank == std::string::npos ? "" : line.substr(blank)));
    if (const HostCommand* hostCommand = findHostCommand(name)) return hostCommand->run(*this, rest);
    if (!rest.empty() || !lisp_->hasCommand(name)) {
        output_ << "Unknown command \"" << line << "\".\n";
        return Outcome::Unknown;
    }
    // The drawing is held: a command of Lisp's could open another one.
    const model::ContextPtr context = document().context();
    const drawing::UndoStep step(*context->drawing);
    lisp_->command(name);
    return Outcome::Done;
}

}  // namespace shell
