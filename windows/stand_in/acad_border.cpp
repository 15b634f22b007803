#include "windows/stand_in/acad_border.h"

#include "basic/text.h"
#include "windows/com/ole_variant.h"

#include <span>

namespace stand_in {

namespace {

constexpr HRESULT kErased = static_cast<HRESULT>(0x80200009);  ///< AutoCAD's "object was erased"

/// How AutoCAD declares a parameter.
enum class Type {
    Number,      ///< a float; text that is a number converts
    Whole,       ///< an integer or a member of an enumeration
    Text,        ///< a string; numbers convert
    Truth,       ///< a Boolean
    Any,         ///< a variant of any content
    Point,       ///< a variant that holds three floats
    BasePoint,   ///< the same, or left out
    Shorts,      ///< a variant that holds an array of 16-bit integers, or left out
    Variants,    ///< a variant that holds an array of variants, or left out
    Prompt,      ///< a variant that holds text, or left out
    OutObject,   ///< a pointer to an object's pointer
    OutVariant,  ///< a pointer to a variant
};

struct Signature {
    std::string_view member;
    std::span<const Type> parameters;
    std::size_t required;
};

constexpr Type kInsertBlock[] = {Type::Point,  Type::Text,   Type::Number,
                                 Type::Number, Type::Number, Type::Number};
constexpr Type kAddLine[] = {Type::Point, Type::Point};
constexpr Type kGetEntity[] = {Type::OutObject, Type::OutVariant, Type::Prompt};
constexpr Type kPointAndPrompt[] = {Type::BasePoint, Type::Prompt};
constexpr Type kSelect[] = {Type::Whole, Type::BasePoint, Type::BasePoint, Type::Shorts, Type::Variants};
constexpr Type kFilter[] = {Type::Shorts, Type::Variants};
constexpr Type kText[] = {Type::Text};
constexpr Type kNumber[] = {Type::Number};
constexpr Type kTruth[] = {Type::Truth};
constexpr Type kPoint[] = {Type::Point};
constexpr Type kIndex[] = {Type::Any};

constexpr Signature kMethods[] = {
    {"InsertBlock", kInsertBlock, 6},
    {"AddLine", kAddLine, 2},
    {"GetEntity", kGetEntity, 2},
    {"GetPoint", kPointAndPrompt, 0},
    {"GetAngle", kPointAndPrompt, 0},
    {"Select", kSelect, 1},
    {"SelectOnScreen", kFilter, 0},
    {"Add", kText, 1},
    {"Item", kIndex, 1},
    {"GetInterfaceObject", kText, 1},
    {"Clear", {}, 0},
    {"Delete", {}, 0},
    {"Update", {}, 0},
    {"GetAttributes", {}, 0},
};
constexpr Signature kPuts[] = {
    {"XScaleFactor", kNumber, 1}, {"YScaleFactor", kNumber, 1}, {"ZScaleFactor", kNumber, 1},
    {"Rotation", kNumber, 1},     {"Visible", kTruth, 1},       {"InsertionPoint", kPoint, 1},
    {"TextString", kText, 1},
};

const Signature* find(std::span<const Signature> table, std::string_view member) {
    for (const Signature& row : table)
        if (basic::equalIgnoringCase(row.member, member)) return &row;
    return nullptr;
}

/// What a variant parameter holds in the end.
const VARIANT& content(const VARIANT& argument) {
    const VARIANT* at = &argument;
    while (at->vt == (VT_BYREF | VT_VARIANT)) at = at->pvarVal;
    return *at;
}

bool isLeftOut(const VARIANT& argument) {
    return argument.vt == VT_EMPTY || (argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND);
}

bool converts(const VARIANT& argument, VARTYPE type) {
    com::OleVariant changed;
    return SUCCEEDED(VariantChangeType(&changed, const_cast<VARIANT*>(&argument), 0, type));
}

SAFEARRAY* arrayOf(const VARIANT& argument, int type) {
    const int plain = argument.vt & ~VT_BYREF;
    if (plain != (VT_ARRAY | type)) return nullptr;
    return (argument.vt & VT_BYREF) != 0 ? *argument.pparray : argument.parray;
}

bool isPoint(const VARIANT& argument) {
    SAFEARRAY* array = arrayOf(argument, VT_R8);
    return array != nullptr && array->cDims == 1 && array->rgsabound[0].cElements == 3;
}

bool takes(Type type, const VARIANT& argument) {
    const VARIANT& held = content(argument);
    switch (type) {
        case Type::Number:
            return converts(held, VT_R8);
        case Type::Whole:
            return converts(held, VT_I4);
        case Type::Text:
            return converts(held, VT_BSTR);
        case Type::Truth:
            return converts(held, VT_BOOL);
        case Type::Any:
            return true;
        case Type::Point:
            return isPoint(held);
        case Type::BasePoint:
            return isLeftOut(held) || isPoint(held);
        case Type::Shorts:
            return isLeftOut(held) || arrayOf(held, VT_I2) != nullptr;
        case Type::Variants:
            return isLeftOut(held) || arrayOf(held, VT_VARIANT) != nullptr;
        case Type::Prompt:
            return isLeftOut(held) || held.vt == VT_BSTR;
        case Type::OutObject:
            // What it still points to would never be released.
            return argument.vt == (VT_BYREF | VT_DISPATCH) && *argument.ppdispVal == nullptr;
        case Type::OutVariant:
            return argument.vt == (VT_BYREF | VT_VARIANT) && argument.pvarVal->vt == VT_EMPTY;
    }
    return false;
}

HRESULT check(const Signature& signature, const DISPPARAMS& parameters) {
    const std::size_t count = parameters.cArgs;
    if (count < signature.required || count > signature.parameters.size()) return DISP_E_BADPARAMCOUNT;
    for (std::size_t i = 0; i < count; ++i)
        if (!takes(signature.parameters[i], parameters.rgvarg[count - 1 - i])) return DISP_E_TYPEMISMATCH;
    return S_OK;
}

}  // namespace

HRESULT AcadBorder::admit(const host::Object&, const std::string& member, WORD kind,
                          const DISPPARAMS& parameters) {
    const bool put = (kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    const std::string call = put ? member + "=" : member;
    ++calls_[call];
    if (!refused_.empty() && basic::equalIgnoringCase(call, refused_)) return kErased;
    if (put && (kind & DISPATCH_PROPERTYPUTREF) != 0) return DISP_E_MEMBERNOTFOUND;
    const Signature* signature = put ? find(kPuts, member) : find(kMethods, member);
    return signature == nullptr ? S_OK : check(*signature, parameters);
}

}  // namespace stand_in
