#include "entry/vlax_obj.h"

#include "basic/error.h"
#include "basic/error_state.h"
#include "basic/numbers.h"
#include "platform/platform.h"

#include <utility>

namespace entry {
namespace {

using host::asObject;

/// Unwraps, in Lisp, what arrived in the automation layer's wrapping.
constexpr const char* kTranslateVariant =
    "(defun translate-variant (data) (cond ((= (type data) 'list) (mapcar 'translate-variant data)) "
    "((= (type data) 'variant) (translate-variant (vlax-variant-value data))) ((= (type data) 'safearray) "
    "(mapcar 'translate-variant (vlax-safearray->list data))) (t data)))";

host::ObjectPtr interfaceObject(const session::Session& session, const std::string& name) {
    if (!session.AcadDoc) throw basic::Error(basic::kObjectNotSet);
    const auto application = asObject(session.AcadDoc->get("Application"));
    return asObject(application->invoke("GetInterfaceObject", {name}));
}

}  // namespace

VlaxObj::VlaxObj(const session::Session& session) { Class_Initialize(session); }

VlaxObj::~VlaxObj() { Class_Terminate(); }

void VlaxObj::Class_Initialize(const session::Session& session) {
    basic::ErrorState error;
    error.skip([&] { application_ = interfaceObject(session, "VL.Application"); });
    // The test stands at the head of the loop, so what the last try finds, number 20, never gives its
    // functions.
    for (int i = 1; i <= 20; ++i) {
        if (application_) {
            error.skip([&] {
                functions_ = asObject(asObject(application_->get("ActiveDocument"))->get("Functions"));
            });
            break;
        }
        error.skip([&] { application_ = interfaceObject(session, "VL.Application." + std::to_string(i)); });
    }
}

void VlaxObj::Class_Terminate() {
    functions_.reset();
    application_.reset();
}

Variant VlaxObj::callLisp(const char* name, host::Arguments arguments) {
    if (!functions_) throw basic::Error(basic::kObjectNotSet);
    return asObject(functions_->invoke("Item", {name}))->invoke("funcall", std::move(arguments));
}

Variant VlaxObj::EvalLispExpression(const std::string& Expression) {
    const Variant form = callLisp("read", {Expression});
    basic::ErrorState error;
    Variant value;
    error.skip([&] { value = callLisp("eval", {form}); });
    return error.failed() ? Variant("") : value;
}

void VlaxObj::SetLispSymbol(const std::string& Symbol, const Variant& Value) {
    const Variant form = callLisp("read", {Symbol});
    callLisp("set", {form, Value});
    EvalLispExpression(kTranslateVariant);
    // No blank between the name and the bracket: Lisp takes it so.
    EvalLispExpression("(setq " + Symbol + "(translate-variant " + Symbol + "))");
    EvalLispExpression("(setq translate-variant nil)");
}

Variant VlaxObj::GetLispSymbol(const std::string& Symbol) {
    const Variant form = callLisp("read", {Symbol});
    return callLisp("eval", {form});
}

Variant VlaxObj::GetLispList(const std::string& Symbol) {
    const Variant form = callLisp("read", {Symbol});
    const Variant list = callLisp("eval", {form});
    const std::int32_t length = callLisp("length", {list}).integer();
    basic::Array elements;
    for (std::int32_t i = 0; i < length; ++i) elements.push_back(callLisp("nth", {i, list}));
    return elements;
}

void VlaxObj::nullify(std::string_view symbol) {
    EvalLispExpression("(setq " + std::string(symbol) + " nil)");
}

std::string ReadLispCommand(const session::Session& session, const std::string& Name) {
    VlaxObj bridge(session);
    return basic::toText(bridge.GetLispSymbol(Name), session.platform().regional());
}

}  // namespace entry
