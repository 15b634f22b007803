#include "desk/drawing/class_names.h"

namespace drawing {

namespace {

constexpr EntityClass kClasses[] = {
    {"3DFACE", "AcDbFace", {"AcDbFace"}},
    {"3DSOLID", "AcDb3dSolid", {"AcDbModelerGeometry", "AcDb3dSolid"}},
    {"ACAD_PROXY_ENTITY", "AcDbZombieEntity", {"AcDbProxyEntity"}},
    {"ACAD_TABLE", "AcDbTable", {"AcDbBlockReference", "AcDbTable"}},
    {"ARC_DIMENSION", "AcDbArcDimension", {"AcDbDimension", "AcDbArcDimension"}},
    {"ARC", "AcDbArc", {"AcDbCircle", "AcDbArc"}},
    {"ATTDEF", "AcDbAttributeDefinition", {"AcDbText", "AcDbAttributeDefinition"}},
    {"ATTRIB", "AcDbAttribute", {"AcDbText", "AcDbAttribute"}},
    {"BODY", "AcDbBody", {"AcDbModelerGeometry"}},
    {"CIRCLE", "AcDbCircle", {"AcDbCircle"}},
    {"DGNUNDERLAY", "AcDbDgnReference", {"AcDbUnderlayReference"}},
    {"DIMENSION", "AcDbDimension", {"AcDbDimension"}},
    {"DWFUNDERLAY", "AcDbDwfReference", {"AcDbUnderlayReference"}},
    {"ELLIPSE", "AcDbEllipse", {"AcDbEllipse"}},
    {"HATCH", "AcDbHatch", {"AcDbHatch"}},
    {"HELIX", "AcDbHelix", {"AcDbSpline", "AcDbHelix"}},
    {"IMAGE", "AcDbRasterImage", {"AcDbRasterImage"}},
    {"INSERT", "AcDbBlockReference", {"AcDbBlockReference"}},
    {"LARGE_RADIAL_DIMENSION", "AcDbRadialDimensionLarge", {"AcDbDimension", "AcDbRadialDimensionLarge"}},
    {"LEADER", "AcDbLeader", {"AcDbLeader"}},
    {"LIGHT", "AcDbLight", {"AcDbLight"}},
    {"LINE", "AcDbLine", {"AcDbLine"}},
    {"LWPOLYLINE", "AcDbPolyline", {"AcDbPolyline"}},
    {"MESH", "AcDbSubDMesh", {"AcDbSubDMesh"}},
    {"MLINE", "AcDbMline", {"AcDbMline"}},
    {"MTEXT", "AcDbMText", {"AcDbMText"}},
    {"MULTILEADER", "AcDbMLeader", {"AcDbMLeader"}},
    {"OLE2FRAME", "AcDbOle2Frame", {"AcDbOleFrame", "AcDbOle2Frame"}},
    {"PDFUNDERLAY", "AcDbPdfReference", {"AcDbUnderlayReference"}},
    {"POINT", "AcDbPoint", {"AcDbPoint"}},
    {"POLYLINE", "", {}},
    {"RAY", "AcDbRay", {"AcDbRay"}},
    {"REGION", "AcDbRegion", {"AcDbModelerGeometry"}},
    {"SECTION", "AcDbSection", {"AcDbSection"}},
    {"SHAPE", "AcDbShape", {"AcDbShape"}},
    {"SOLID", "AcDbSolid", {"AcDbTrace"}},
    {"SPLINE", "AcDbSpline", {"AcDbSpline"}},
    {"TEXT", "AcDbText", {"AcDbText"}},
    {"TOLERANCE", "AcDbFcf", {"AcDbFcf"}},
    {"TRACE", "AcDbTrace", {"AcDbTrace"}},
    {"VERTEX", "AcDbVertex", {"AcDbVertex"}},
    {"VIEWPORT", "AcDbViewport", {"AcDbViewport"}},
    {"WIPEOUT", "AcDbWipeout", {"AcDbRasterImage", "AcDbWipeout"}},
    {"XLINE", "AcDbXline", {"AcDbXline"}},
};

}  // namespace

const EntityClass* entityClass(std::string_view type) {
    for (const EntityClass& known : kClasses) {
        if (known.type == type) return &known;
    }
    return nullptr;
}

std::string_view polylineClass(int flags) {
    if ((flags & 8) != 0) return "AcDb3dPolyline";
    if ((flags & 16) != 0) return "AcDbPolygonMesh";
    if ((flags & 64) != 0) return "AcDbPolyFaceMesh";
    return "AcDb2dPolyline";
}

std::string_view dimensionClass(int kind) {
    // The upper bits tell where the text stands and whether an ordinate is one of X.
    switch (kind & 7) {
        case 0:
            return "AcDbRotatedDimension";
        case 1:
            return "AcDbAlignedDimension";
        case 2:
            return "AcDb2LineAngularDimension";
        case 3:
            return "AcDbDiametricDimension";
        case 4:
            return "AcDbRadialDimension";
        case 5:
            return "AcDb3PointAngularDimension";
        default:
            return "AcDbOrdinateDimension";
    }
}

}  // namespace drawing
