#include "desk/model/variables.h"

#include "basic/text.h"
#include "desk/dxf/codes.h"
#include "desk/dxf/format.h"
#include "desk/geometry/angles.h"
#include "desk/model/host_errors.h"
#include "desk/model/successor.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace model {

namespace {

using basic::Variant;

constexpr int kPointCode = 10;
constexpr int kAngleCode = 50;  ///< degrees in the file, radians for the host

/// A variable of the header that can be set: its group, and its value where the file doesn't say it.
struct HeaderVariable {
    std::string_view name;
    int code;
    double otherwise;
};
constexpr HeaderVariable kHeaderVariables[] = {
    {"ANGBASE", kAngleCode, 0}, {"ANGDIR", 70, 0},    {"ATTMODE", 70, 1},    {"AUNITS", 70, 0},
    {"AUPREC", 70, 0},          {"CELTSCALE", 40, 1}, {"DIMSCALE", 40, 1},   {"DIMTXT", 40, 0.18},
    {"DIMZIN", 70, 0},          {"ELEVATION", 40, 0}, {"FILLMODE", 70, 1},   {"INSBASE", kPointCode, 0},
    {"INSUNITS", 70, 0},        {"LTSCALE", 40, 1},   {"LUNITS", 70, 2},     {"LUPREC", 70, 4},
    {"MEASUREMENT", 70, 0},     {"MIRRTEXT", 70, 0},  {"ORTHOMODE", 70, 0},  {"PDMODE", 70, 0},
    {"PDSIZE", 40, 0},          {"PSLTSCALE", 70, 1}, {"TEXTSIZE", 40, 0.2}, {"THICKNESS", 40, 0},
    {"USERI1", 70, 0},          {"USERI2", 70, 0},    {"USERI3", 70, 0},     {"USERI4", 70, 0},
    {"USERI5", 70, 0},          {"USERR1", 40, 0},    {"USERR2", 40, 0},     {"USERR3", 40, 0},
    {"USERR4", 40, 0},          {"USERR5", 40, 0},
};

/// Whole numbers of the session, which nothing here goes by: routines switch them off and on again.
struct SessionVariable {
    std::string_view name;
    std::int16_t otherwise;
};
constexpr SessionVariable kSessionVariables[] = {
    {"ATTDIA", 0},  {"ATTREQ", 1},    {"BLIPMODE", 0}, {"CMDDIA", 1},    {"CMDECHO", 1},  {"EXPERT", 0},
    {"FILEDIA", 1}, {"HIGHLIGHT", 1}, {"OSMODE", 0},   {"REGENMODE", 1}, {"SNAPMODE", 0},
};

template <typename Table>
auto find(const Table& table, std::string_view name) {
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [&](const auto& row) { return basic::NameEqual{}(row.name, name); });
    return found == std::end(table) ? nullptr : found;
}

std::string inHeader(std::string_view name) { return "$" + basic::toUpper(name); }

Variant whole(double number) { return static_cast<std::int16_t>(number); }

/// The value of a group of that code.
Variant fromHeader(const drawing::HeaderVariables& header, const std::string& name, int code) {
    if (code >= kPointCode && code < 20) {
        const geometry::Point3 point = header.point(name).value_or(geometry::Point3{});
        return basic::Doubles{point.x, point.y, point.z};
    }
    if (code == kAngleCode) return geometry::radiansOf(header.number(name).value_or(0));
    switch (dxf::valueType(code)) {
        case dxf::ValueType::Double:
            return header.number(name).value_or(0);
        case dxf::ValueType::Int16:
        case dxf::ValueType::Int32:
        case dxf::ValueType::Int64:
        case dxf::ValueType::Bool:
            return static_cast<std::int32_t>(header.integer(name).value_or(0));
        default:
            return header.text(name).value_or("");
    }
}

/// Names such as "BYLAYER" beside the numbers 1 to 255.
Variant currentColor(const drawing::HeaderVariables& header) {
    const int color = header.integer("$CECOLOR").value_or(drawing::kColorByLayer);
    if (color == drawing::kColorByLayer) return "BYLAYER";
    return color == 0 ? Variant("BYBLOCK") : Variant(std::to_string(color));
}

void setCurrentColor(Context& context, const Variant& value) {
    double color = -1;
    const std::string text = value.is(Variant::Kind::Text) ? value.text() : "";
    if (basic::equalIgnoringCase(text, "BYLAYER")) {
        color = drawing::kColorByLayer;
    } else if (basic::equalIgnoringCase(text, "BYBLOCK")) {
        color = 0;
    } else {
        color = toNumber(context, value);
    }
    if (!(color >= 0 && color <= drawing::kColorByLayer)) raise(drawing::kInvalidInput, "CECOLOR");
    context.drawing->setVariable("$CECOLOR", 62, static_cast<std::int64_t>(color));
}

/// The layer must be one of the drawing's and not frozen, as the host asks.
void setCurrentLayer(Context& context, const Variant& value) {
    for (const drawing::Layer& layer : context.drawing->layers().all()) {
        if (!basic::NameEqual{}(layer.name, value.text())) continue;
        if (layer.frozen) drawing::raise(drawing::kInvalidInput, "layer " + layer.name + " is frozen");
        context.drawing->setVariable("$CLAYER", 8, layer.name);
        return;
    }
    drawing::raise(drawing::kKeyNotFound, "layer " + value.text());
}

/// Without the table of linetypes only what every drawing has can be made current.
void setCurrentLinetype(Context& context, const Variant& value) {
    for (const char* name : {"ByLayer", "ByBlock", "Continuous"}) {
        if (!basic::equalIgnoringCase(value.text(), name)) continue;
        context.drawing->setVariable("$CELTYPE", 6, std::string(name));
        return;
    }
    drawing::raise(drawing::kInvalidInput, "CELTYPE takes ByLayer, ByBlock and Continuous here");
}

void setInHeader(Context& context, const HeaderVariable& variable, const Variant& value) {
    const std::string name = inHeader(variable.name);
    // Older programs refuse a file with variables that their version doesn't know.
    const bool isOld = context.drawing->format().version < dxf::Version::R2000;
    if (isOld && context.drawing->header().find(name) == nullptr)
        drawing::raise(drawing::kInvalidInput, std::string(variable.name) + " isn't in this drawing");
    if (variable.code == kPointCode) {
        context.drawing->setVariable(name, variable.code, toPoint(context, value));
    } else if (dxf::valueType(variable.code) == dxf::ValueType::Double) {
        const double number = toNumber(context, value);
        if (!std::isfinite(number)) drawing::raise(drawing::kInvalidInput, std::string(variable.name));
        const double stored = variable.code == kAngleCode ? geometry::degreesOf(number) : number;
        context.drawing->setVariable(name, variable.code, stored);
    } else {
        const std::int16_t number = basic::toInt16(toNumber(context, value));
        context.drawing->setVariable(name, variable.code, std::int64_t{number});
    }
}

Variant fileVariable(const Context& context, std::string_view name) {
    const std::filesystem::path path = std::filesystem::absolute(context.drawing->path());
    if (basic::equalIgnoringCase(name, "DWGNAME")) return path.filename().string();
    if (basic::equalIgnoringCase(name, "DWGPREFIX")) return path.parent_path().string() + "/";
    return {};
}

}  // namespace

Variant SystemVariables::get(const Context& context, std::string_view name) const {
    if (const SessionVariable* variable = find(kSessionVariables, name)) {
        const auto set = session_.find(basic::toUpper(name));
        return set == session_.end() ? variable->otherwise : set->second;
    }
    if (basic::equalIgnoringCase(name, "VNKEEP")) return toText(*context.environment->keep);
    const drawing::HeaderVariables& header = context.drawing->header();
    if (basic::equalIgnoringCase(name, "CECOLOR")) return currentColor(header);
    if (basic::equalIgnoringCase(name, "CLAYER")) return header.text("$CLAYER").value_or("0");
    if (basic::equalIgnoringCase(name, "CELTYPE")) return header.text("$CELTYPE").value_or("ByLayer");
    const HeaderVariable* known = find(kHeaderVariables, name);
    const drawing::HeaderVariables::Entry* entry = header.find(inHeader(name));
    if (entry != nullptr) {
        const int code = known != nullptr ? known->code : header.code(inHeader(name));
        return code < 0 ? Variant() : fromHeader(header, inHeader(name), code);
    }
    if (known == nullptr) return fileVariable(context, name);
    if (known->code == kPointCode) return basic::Doubles{0, 0, 0};
    const bool isReal = dxf::valueType(known->code) == dxf::ValueType::Double;
    return isReal ? Variant(known->otherwise) : whole(known->otherwise);
}

void SystemVariables::set(Context& context, std::string_view name, const Variant& value) {
    if (find(kSessionVariables, name) != nullptr) {
        session_[basic::toUpper(name)] = basic::toInt16(toNumber(context, value));
    } else if (basic::equalIgnoringCase(name, "VNKEEP")) {
        *context.environment->keep = parseKeep(value.text());
    } else if (basic::equalIgnoringCase(name, "CLAYER")) {
        setCurrentLayer(context, value);
    } else if (basic::equalIgnoringCase(name, "CECOLOR")) {
        setCurrentColor(context, value);
    } else if (basic::equalIgnoringCase(name, "CELTYPE")) {
        setCurrentLinetype(context, value);
    } else if (const HeaderVariable* variable = find(kHeaderVariables, name)) {
        setInHeader(context, *variable, value);
    } else {
        drawing::raise(drawing::kInvalidInput, std::string(name) + " can't be set");
    }
}

}  // namespace model
