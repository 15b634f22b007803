#include "desk/lisp/interpreter.h"

#include "basic/code_page.h"
#include "basic/path.h"
#include "basic/text.h"
#include "basic/text_file.h"
#include "desk/lisp/automation.h"
#include "desk/lisp/call.h"
#include "desk/lisp/conversion.h"
#include "desk/lisp/reader.h"

#include <numbers>

namespace lisp {

namespace {

/// A file's text: UTF-8, or the code page where it is no UTF-8.
std::string textOf(const std::string& bytes) {
    std::string_view text = bytes;
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        basic::nextCharacter(text, position);
        const bool isLoneByte = position == start + 1 && static_cast<unsigned char>(text[start]) >= 0x80;
        if (isLoneByte) return basic::fromCodePage(text);
    }
    return std::string(text);
}

}  // namespace

Interpreter::Interpreter(std::ostream& output) : output_(output), handle_(this, [](Interpreter*) {}) {
    defineBuiltIns();
    registerObjectFactory("VL.Application", [handle = std::weak_ptr<Interpreter>(handle_)] {
        return makeLispApplication(handle);
    });
}

Interpreter::~Interpreter() { handle_.reset(); }

void Interpreter::defineBuiltIns() {
    const auto define = [this](Subr subr) {
        const SymbolPtr symbol = symbols_.intern(subr.name);
        symbol->value = Value(std::make_shared<const Subr>(std::move(subr)));
    };
    for (const FormEntry& entry : specialForms()) define({.name = entry.name, .form = entry.form});
    for (const SubrTable& table :
         {listFunctions(), listSearchFunctions(), mappingFunctions(), arithmeticFunctions(),
          transcendentalFunctions(), conversionFunctions(), stringFunctions(), stringSearchFunctions(),
          comparisonFunctions(), symbolFunctions(), outputFunctions(), systemFunctions(), errorFunctions(),
          variantFunctions(), objectFunctions()}) {
        for (const SubrEntry& entry : table) {
            define(
                {.name = entry.name, .least = entry.least, .most = entry.most, .function = entry.function});
        }
    }
    symbols_.intern("PI")->value = Value(std::numbers::pi);
    for (const auto& [name, type] : kVariantTypeNames)
        symbols_.intern(name)->value = Value(std::int32_t{type});
}

Value Interpreter::eval(std::string_view text) {
    Reader reader(text, symbols_);
    Value value;
    while (const std::optional<Value> form = reader.next()) value = evaluate(*form);
    return value;
}

Value Interpreter::read(std::string_view text) { return Reader(text, symbols_).next().value_or(Value()); }

void Interpreter::assign(Symbol& symbol, Value value) {
    if (symbol.isConstant) throw LispError("assignment to protected symbol: " + symbol.name);
    symbol.value = std::move(value);
}

std::optional<std::filesystem::path> Interpreter::findFile(std::string_view name) const {
    namespace fs = std::filesystem;
    const fs::path asked{std::string(name)};
    fs::path extended = asked;
    extended += ".lsp";
    for (const fs::path& candidate : {asked, extended}) {
        std::error_code ignored;
        if (fs::is_regular_file(candidate, ignored)) return candidate;
        if (candidate.is_absolute()) continue;
        for (const fs::path& folder : supportFolders_) {
            if (fs::is_regular_file(folder / candidate, ignored)) return folder / candidate;
        }
    }
    return std::nullopt;
}

Value Interpreter::load(const std::filesystem::path& file) {
    const std::string text = textOf(basic::readBytes(basic::fromPath(file)));
    Reader reader(text, symbols_);
    Value value;
    while (true) {
        std::optional<Value> form;
        try {
            form = reader.next();
        } catch (const LispError& error) {
            throw LispError(file.filename().string() + ":" + std::to_string(reader.formLine()) + ": " +
                            error.description());
        }
        if (!form) return value;
        value = evaluate(*form);
    }
}

bool Interpreter::hasCommand(std::string_view name) const {
    const SymbolPtr symbol = symbols_.find("C:" + std::string(name));
    return symbol != nullptr && symbol->value.isTrue();
}

Value Interpreter::command(std::string_view name) {
    if (!hasCommand(name)) throw LispError("unknown command: " + std::string(name));
    return apply(Value(symbols_.intern("C:" + std::string(name))), {});
}

void Interpreter::registerObjectFactory(std::string_view progId, ObjectFactory factory) {
    factories_[basic::toUpper(progId)] = std::move(factory);
}

host::ObjectPtr Interpreter::createObject(std::string_view progId) const {
    const auto found = factories_.find(basic::toUpper(progId));
    return found == factories_.end() ? nullptr : found->second();
}

}  // namespace lisp
