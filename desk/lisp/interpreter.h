#pragma once

#include "desk/lisp/stack_guard.h"
#include "desk/lisp/symbols.h"
#include "desk/lisp/value.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lisp {

/// Makes a new automation object.
using ObjectFactory = std::function<host::ObjectPtr()>;

/// The host's system variables. Reading an unknown one gives an empty variant.
struct SystemVariables {
    std::function<basic::Variant(std::string_view name)> get;
    std::function<void(std::string_view name, const basic::Variant& value)> set;
};

/// The host's Lisp: symbols, evaluation, the objects that it can reach. Failures raise LispError, those of
/// the host's objects basic::Error with their own number; errorMessage() gives the text for either.
class Interpreter {
  public:
    /// `output` receives what princ and its kin print. It must outlive the interpreter.
    explicit Interpreter(std::ostream& output);
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    // Evaluation.

    /// Evaluates the forms of a text one after the other; the last one's value, nil for an empty text. A text
    /// that breaks off inside a form raises IncompleteInput, after the forms before it were evaluated.
    Value eval(std::string_view text);
    Value evaluate(const Value& form);
    /// The forms of a list in turn; the last one's value.
    Value evaluateAll(const Value& forms);
    /// Calls a function, given itself, by its symbol or as a lambda list.
    Value apply(const Value& function, std::vector<Value> arguments);
    /// The first form of a text, nil where there is none.
    Value read(std::string_view text);
    /// A function of the user's from `(parameters form...)`.
    Value makeFunction(std::string name, const Value& definition);

    // Files and commands.

    /// Folders in which `load` looks for a file, in this order.
    void setSupportFolders(std::vector<std::filesystem::path> folders) {
        supportFolders_ = std::move(folders);
    }
    /// The file of that name or, without extension, with ".lsp": as it stands, then in the support folders.
    std::optional<std::filesystem::path> findFile(std::string_view name) const;
    /// Evaluates a file; the last form's value. A form that can't be read raises an error with the file's
    /// name and the form's line; a file that isn't there kFileNotFound.
    Value load(const std::filesystem::path& file);
    /// Whether a function C:name is defined.
    bool hasCommand(std::string_view name) const;
    /// Runs the function C:name; its value. Raises LispError where there is none.
    Value command(std::string_view name);

    // The host's objects.

    /// The application's object, which vlax-get-acad-object gives.
    void setAcadObject(host::ObjectPtr application) { acadObject_ = std::move(application); }
    const host::ObjectPtr& acadObject() const { return acadObject_; }
    /// What vlax-create-object makes for a program identifier, matched without regard to case. The identifier
    /// "VL.Application" is there from the start.
    void registerObjectFactory(std::string_view progId, ObjectFactory factory);
    /// A new object for a program identifier, nullptr for an unknown one. An application's GetInterfaceObject
    /// can hand its question on to this.
    host::ObjectPtr createObject(std::string_view progId) const;
    void setVariables(SystemVariables variables) { variables_ = std::move(variables); }
    const SystemVariables& variables() const { return variables_; }

    /// Called now and then while an evaluation runs; what it raises ends the evaluation.
    void setWatch(std::function<void()> watch) { watch_ = std::move(watch); }

    // For the built-ins.

    /// One step of a loop or an evaluation.
    void step() {
        constexpr unsigned kStepsBetweenLooks = 1024;
        if (++steps_ % kStepsBetweenLooks == 0 && watch_) watch_();
    }

    SymbolTable& symbols() { return symbols_; }
    std::ostream& output() { return output_; }
    Value truth() const { return Value(symbols_.truth()); }
    /// Sets a symbol in its innermost binding; raises an error for T and its like.
    void assign(Symbol& symbol, Value value);
    /// The function that a symbol or value stands for; nil where it stands for none.
    Value functionOf(const Value& designator);

  private:
    class Entry;
    class Bindings;

    Value call(const Value& function, const Value& designator, std::vector<Value> arguments);
    Value callSubr(const Subr& subr, const std::vector<Value>& arguments);
    Value callUsubr(const Usubr& usubr, std::vector<Value> arguments);
    Value vlaFunction(const SymbolPtr& symbol);
    void defineBuiltIns();

    std::ostream& output_;
    SymbolTable symbols_;
    std::optional<StackGuard> guard_;  ///< of the outermost evaluation, while one runs
    std::vector<std::filesystem::path> supportFolders_;
    host::ObjectPtr acadObject_;
    std::map<std::string, ObjectFactory> factories_;  ///< by identifier in capitals
    SystemVariables variables_;
    std::function<void()> watch_;
    unsigned steps_ = 0;
    std::shared_ptr<Interpreter> handle_;  ///< owns nothing; automation objects hold it weakly
};

/// The arguments of a special form, taken from the front.
class Forms {
  public:
    explicit Forms(const Value& forms) : rest_(&forms) {}
    bool atEnd() const { return rest_->cons() == nullptr; }
    /// The next form; raises "too few arguments" at the end.
    const Value& take();
    /// The forms not yet taken.
    const Value& rest() const { return *rest_; }

  private:
    const Value* rest_;
};

}  // namespace lisp
