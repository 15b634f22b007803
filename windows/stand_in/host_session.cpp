#include "windows/stand_in/host_session.h"

#include "basic/path.h"
#include "basic/text.h"
#include "desk/dxf/findings.h"
#include "desk/lisp/error.h"
#include "desk/lisp/printer.h"
#include "desk/model/listing.h"
#include "windows/com/ole_errors.h"

#include <ostream>

namespace stand_in {

namespace {

constexpr const char* kProgramId = "Vorlane.VnObj0100";
constexpr const wchar_t* kWideProgramId = L"Vorlane.VnObj0100";

model::Environment environment(basic::Regional regional, model::Prompter& prompter) {
    model::Environment environment;
    environment.prompter = &prompter;
    environment.regional = std::move(regional);
    return environment;
}

}  // namespace

HostSession::HostSession(const std::filesystem::path& lispFile, basic::Regional regional,
                         model::Prompter& prompter, text_face::LineSource& source, std::ostream& output,
                         Story::Manner manner)
    : application_(std::make_shared<model::Application>(environment(std::move(regional), prompter))),
      lisp_(output),
      source_(source),
      output_(output),
      story_(source, output, manner),
      manner_(manner) {
    const auto document = [this]() -> model::Document& {
        drawing();  // raises where none is open
        return *application_->active();
    };
    lisp_.setVariables(
        {[document](std::string_view name) { return document().invoke("GetVariable", {name}); },
         [document](std::string_view name, const basic::Variant& value) {
             document().invoke("SetVariable", {name, value});
         }});
    lisp_.setAcadObject(application_);
    application_->registerObject("VL.Application", [this] { return lisp_.createObject("VL.Application"); });
    application_->registerObject(kProgramId, [this] { return createComponent(); });
    lisp_.setSupportFolders({lispFile.parent_path()});
    lisp_.load(lispFile);
}

host::ObjectPtr HostSession::createComponent() {
    CLSID id;
    IDispatch* dispatch = nullptr;
    HRESULT result = CLSIDFromProgID(kWideProgramId, &id);
    if (SUCCEEDED(result)) {
        result = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                  reinterpret_cast<void**>(&dispatch));
    }
    if (FAILED(result)) throw basic::Error(com::kNoSuchClass, "The component can't create the object");
    host::ObjectPtr component = border_.take(dispatch);
    dispatch->Release();
    return component;
}

drawing::Drawing& HostSession::drawing() const {
    if (application_->active() == nullptr) throw basic::Error(basic::kObjectNotSet, "No drawing is open");
    return application_->active()->drawing();
}

void HostSession::open(const std::string& path) {
    application_->open(drawing::Drawing::open(path));
    output_ << "Opened " << path << "\n";
    const auto& findings = drawing().findings();
    if (findings.empty()) return;
    output_ << findings.size() << (findings.size() == 1 ? " finding" : " findings") << " on reading:\n";
    for (const dxf::Finding& finding : findings) output_ << "  " << dxf::toText(finding) << "\n";
}

void HostSession::run() {
    while (const auto line = source_.nextAct(output_, "Command: ")) {
        if (!execute(*line)) return;
    }
}

/// False when the session is to end.
bool HostSession::execute(std::string line) {
    Outcome outcome = runLine(line);
    while (outcome == Outcome::Incomplete) {
        const auto more = source_.next(output_, "(_> ");
        if (!more) text_face::endedWhile("an unfinished Lisp expression");
        line += "\n" + *more;
        outcome = runLine(line);
    }
    if (outcome == Outcome::Failed && manner_ == Story::Manner::Strict) source_.fail(failure_);
    return outcome != Outcome::Quit;
}

HostSession::Outcome HostSession::runLine(const std::string& line) {
    const std::string text(basic::trim(line));
    try {
        if (!text.starts_with('(') && !text.starts_with('!')) return command(text);
        evaluate(text.starts_with('!') ? text.substr(1) : text);
        return Outcome::Done;
    } catch (const lisp::IncompleteInput&) {
        return Outcome::Incomplete;
    } catch (const basic::Error& error) {
        failure_ = "Error " + std::to_string(error.number()) + ": " + error.description();
        output_ << failure_ << "\n";
        return Outcome::Failed;
    }
}

void HostSession::evaluate(const std::string& expression) {
    const drawing::UndoStep step(drawing());
    const std::string shown = lisp::printed(lisp_.eval(expression), lisp::Style::Readable);
    if (!shown.empty()) output_ << shown << "\n";
}

HostSession::Outcome HostSession::command(const std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string name = basic::toUpper(line.substr(0, blank));
    const std::string rest(basic::trim(blank == std::string::npos ? "" : line.substr(blank)));
    if (name == "QUIT") return Outcome::Quit;
    if (hostCommand(name, rest)) return Outcome::Done;
    if (!rest.empty() || !lisp_.hasCommand(name)) {
        failure_ = "Unknown command \"" + line + "\"";
        output_ << failure_ << ".\n";
        return Outcome::Failed;
    }
    const model::ContextPtr held = application_->active()->context();
    const drawing::UndoStep step(*held->drawing);
    lisp_.command(name);
    story_.commandEnded();
    return Outcome::Done;
}

bool HostSession::hostCommand(const std::string& name, const std::string& rest) {
    if (name == "OPEN") {
        open(rest);
    } else if (name == "SAVE") {
        drawing().save(rest.empty() ? drawing().path() : rest);
        output_ << "Saved " << drawing().path() << "\n";
    } else if (name == "LIST") {
        model::printBlocks(output_, drawing());
    } else if (name == "U") {
        output_ << (application_->active()->undo() ? "Undone.\n" : "Nothing to undo.\n");
    } else {
        return false;
    }
    return true;
}

}  // namespace stand_in
