#include "desk/import/import_block.h"
#include "tests/drawing/plain_drawing.h"

namespace importing {
namespace {

using namespace drawing;

/// A small drawing in the format of a release, "AC1015" for R2000.
std::unique_ptr<Drawing> released(const std::string& version, const std::vector<std::string>& entities = {},
                                  const std::vector<std::string>& objects = {}) {
    PlainDrawing plain(version == "AC1009" ? Kind::R12 : Kind::R2000);
    for (const std::string& words : entities) plain.entity(words);
    for (const std::string& words : objects) plain.object(words);
    std::string text = plain.text();
    if (version > "AC1015") text.replace(text.find("AC1015"), version.size(), version);
    return Drawing::parse(text, "plain.dxf");
}

/// What becomes of entities, brought as a block from one release into another: their groups from the layer
/// on, or why one stays behind.
std::string carried(const std::string& from, const std::string& to,
                    const std::vector<std::string>& entities) {
    const auto target = released(to);
    const ImportResult result = importBlock(*target, *released(from, entities), "NEW");
    std::string told;
    for (const std::string& line : result.leftBehind) told += line + "\n";
    for (const EntityId id : entitiesOf(*target, result.block)) {
        const auto parts = target->parts(id);
        for (EntityId each = id; each <= id + parts.count; ++each) {
            const std::string groups = groupsOf(*target, each);
            EXPECT_TRUE(groups.starts_with("0=" + std::string(target->type(each)) + "|")) << groups;
            told += groups.substr(0, groups.find('|') + 1) + groups.substr(groups.find("8=")) + "\n";
        }
    }
    return told;
}

TEST(ImportVersions, CommonGroupsStayWhereTheReleaseHasThem) {
    const std::string line =
        "LINE 5 60 102 {ACAD_REACTORS 330 70 102 } 330 1F 100 AcDbEntity 8 0 6 DASHED 48 2.5 62 5 60 1 370 "
        "30 "
        "420 255 440 9 284 1 347 71 999 note 100 AcDbLine 39 2 10 0 20 0 11 1 21 0";
    const std::pair<const char*, const char*> rows[] = {
        {"AC1009", "0=LINE|8=0|62=5|60=1|39=2|10=0|20=0|11=1|21=0|\n"},
        {"AC1015", "0=LINE|8=0|48=2.5|62=5|60=1|370=30|100=AcDbLine|39=2|10=0|20=0|11=1|21=0|\n"},
        {"AC1018",
         "0=LINE|8=0|48=2.5|62=5|60=1|370=30|420=255|440=9|100=AcDbLine|39=2|10=0|20=0|11=1|21=0|\n"},
        {"AC1021",
         "0=LINE|8=0|48=2.5|62=5|60=1|370=30|420=255|440=9|284=1|100=AcDbLine|39=2|10=0|20=0|11=1|21=0|\n"},
    };
    for (const auto& [to, told] : rows) EXPECT_EQ(carried("AC1015", to, {line}), told) << to;
    EXPECT_EQ(carried("AC1009", "AC1015", {"LINE 5 60 8 0 6 BYLAYER 62 5 39 2 10 0 20 0 11 1 21 0"}),
              "0=LINE|8=0|6=BYLAYER|62=5|100=AcDbLine|39=2|10=0|20=0|11=1|21=0|\n");
}

TEST(ImportVersions, OldEntitiesGetTheirMarkers) {
    EXPECT_EQ(
        carried("AC1009", "AC1015",
                {"TEXT 5 60 8 0 10 1 20 2 40 3 1 a 50 5 72 1 11 1 21 2 73 2",
                 "ARC 5 61 8 0 10 1 20 2 40 3 50 10 51 20 230 -1", "INSERT 5 62 8 0 66 1 2 DOOR 10 0 20 0",
                 "ATTRIB 5 63 8 0 10 1 20 2 40 3 1 a 2 TAG 70 0 73 1 74 2", "SEQEND 5 64 8 0",
                 "3DFACE 5 65 8 0 10 0 20 0 11 1 21 1 70 1", "HATCH 5 66 8 0"}),
        "HATCH 66 is of an unknown kind\n"
        "0=TEXT|8=0|100=AcDbText|10=1|20=2|40=3|1=a|50=5|72=1|11=1|21=2|100=AcDbText|73=2|\n"
        "0=ARC|8=0|100=AcDbCircle|10=1|20=2|40=3|230=-1|100=AcDbArc|50=10|51=20|\n"
        "0=INSERT|8=0|100=AcDbBlockReference|66=1|2=DOOR|10=0|20=0|\n"
        "0=ATTRIB|8=0|100=AcDbText|10=1|20=2|40=3|1=a|100=AcDbAttribute|2=TAG|70=0|73=1|74=2|\n"
        "0=SEQEND|8=0|\n"
        "0=3DFACE|8=0|100=AcDbFace|10=0|20=0|11=1|21=1|70=1|\n");
    const std::pair<const char*, const char*> dimensions[] = {
        {"1", "AcDbAlignedDimension"},
        {"2", "AcDb2LineAngularDimension"},
        {"3", "AcDbDiametricDimension"},
        {"36", "AcDbRadialDimension"},
        {"5", "AcDb3PointAngularDimension"},
        {"6", "AcDbOrdinateDimension"},
        {"32", "AcDbAlignedDimension|13=5|14=7|15=1|40=2|50=90|52=3|100=AcDbRotatedDimension"}};
    for (const auto& [kind, marker] : dimensions) {
        const std::string told = carried("AC1009", "AC1015",
                                         {std::string("DIMENSION 5 60 8 0 2 *D1 10 1 11 3 70 ") + kind +
                                          " 1 <> 3 STANDARD 13 5 14 7 15 1 40 2 50 90 52 3 53 30 41 1"});
        EXPECT_TRUE(told.starts_with(std::string("0=DIMENSION|8=0|100=AcDbDimension|2=*D1|10=1|11=3|70=") +
                                     kind + "|1=<>|53=30|41=1|100=" + marker))
            << told;
    }
    struct Row {
        std::string flags, polyline, ofVertex, vertex;
    };
    for (const Row& row : {Row{"0", "AcDb2dPolyline", "0", "AcDbVertex|100=AcDb2dVertex"},
                           Row{"8", "AcDb3dPolyline", "32", "AcDbVertex|100=AcDb3dPolylineVertex"},
                           Row{"16", "AcDbPolygonMesh", "64", "AcDbVertex|100=AcDbPolygonMeshVertex"},
                           Row{"64", "AcDbPolyFaceMesh", "192", "AcDbVertex|100=AcDbPolyFaceMeshVertex"},
                           Row{"64", "AcDbPolyFaceMesh", "128", "AcDbFaceRecord"}}) {
        EXPECT_EQ(carried("AC1009", "AC1015",
                          {"POLYLINE 5 60 8 0 66 1 70 " + row.flags,
                           "VERTEX 5 61 8 0 10 1 70 " + row.ofVertex, "SEQEND 5 62 8 0"}),
                  "0=POLYLINE|8=0|100=" + row.polyline + "|66=1|70=" + row.flags + "|\n0=VERTEX|8=0|100=" +
                      row.vertex + "|10=1|70=" + row.ofVertex + "|\n0=SEQEND|8=0|\n");
    }
}

TEST(ImportVersions, WhatAReleaseLacksStaysBehind) {
    EXPECT_EQ(
        carried("AC1015", "AC1009",
                {"DIMENSION 5 60 100 AcDbEntity 8 0 100 AcDbDimension 2 *D1 10 1 11 3 70 33 71 5 72 1 41 1.5 "
                 "49 9.25 40 2 53 30 3 NOSTYLE 210 0 230 -1 100 AcDbAlignedDimension 13 5 14 7 90 7",
                 "SPLINE 5 61 100 AcDbEntity 8 0 100 AcDbSpline 70 0"}),
        "SPLINE 61 is unknown in "
        "R12\n0=DIMENSION|8=0|2=*D1|10=1|11=3|70=33|40=2|53=30|210=0|230=-1|13=5|14=7|\n");
    const std::vector<std::string> late{
        "MESH 5 60 100 AcDbEntity 8 0 100 AcDbSubDMesh 71 2",
        "HELIX 5 61 100 AcDbEntity 8 0 100 AcDbSpline 70 0",
        "PLANESURFACE 5 62 100 AcDbEntity 8 0 100 AcDbModelerGeometry 1 data",
        "MTEXT 5 63 100 AcDbEntity 8 0 100 AcDbMText 1 a 101 Embedded~Object 70 1"};
    const std::string mesh = "0=MESH|8=0|100=AcDbSubDMesh|71=2|\n",
                      helix = "0=HELIX|8=0|100=AcDbSpline|70=0|\n",
                      surface = "0=PLANESURFACE|8=0|100=AcDbModelerGeometry|1=data|\n",
                      text = "0=MTEXT|8=0|100=AcDbMText|1=a|";
    EXPECT_EQ(carried("AC1032", "AC1018", late),
              "MESH 60 is unknown in R2004\nHELIX 61 is unknown in R2004\n"
              "PLANESURFACE 62 is unknown in R2004\n" +
                  text + "\n");
    EXPECT_EQ(carried("AC1032", "AC1021", late),
              "MESH 60 is unknown in R2007\n" + helix + surface + text + "\n");
    EXPECT_EQ(carried("AC1032", "AC1024", late), mesh + helix + surface + text + "\n");
    EXPECT_EQ(carried("AC1032", "AC1032", late),
              mesh + helix + surface + text + "101=Embedded Object|70=1|\n");
    for (const char* type : {"VIEWPORT", "OLE2FRAME", "ACAD_PROXY_ENTITY"})
        EXPECT_EQ(carried("AC1015", "AC1015", {std::string(type) + " 5 64 100 AcDbEntity 8 0"}),
                  std::string(type) + " 64 has no place in a block of another drawing\n");
    for (const char* type : {"3DSOLID", "REGION", "BODY"})
        EXPECT_EQ(carried("AC1032", "AC1032",
                          {std::string(type) + " 5 64 100 AcDbEntity 8 0 100 AcDbModelerGeometry 70 1"}),
                  std::string(type) + " 64 has its solid model outside of the entity\n");
}

TEST(ImportVersions, WhatNamesSomethingFollowsOrGoes) {
    EXPECT_EQ(
        carried("AC1015", "AC1015",
                {"HATCH 5 60 100 AcDbEntity 8 0 100 AcDbHatch 71 1 70 1 91 1 92 1 97 1 330 61 75 0 98 0",
                 "LEADER 5 62 100 AcDbEntity 8 0 100 AcDbLeader 3 NOSTYLE 340 63",
                 "TEXT 5 63 100 AcDbEntity 8 0 100 AcDbText 7 NOSTYLE 1 a 100 AcDbText",
                 "TOLERANCE 5 64 100 AcDbEntity 8 0 100 AcDbFcf 3 NOSTYLE 1 x",
                 "SHAPE 5 65 100 AcDbEntity 8 0 100 AcDbShape 3 x 2 NAME",
                 "CIRCLE 5 66 100 AcDbEntity 8 0 100 AcDbCircle 40 1 1001 MINE 1005 63 1005 1F 1005 30"}),
        "0=HATCH|8=0|100=AcDbHatch|71=0|70=1|91=1|92=1|97=0|75=0|98=0|\n"
        "0=LEADER|8=0|100=AcDbLeader|340=103|\n"
        "0=TEXT|8=0|100=AcDbText|1=a|100=AcDbText|\n"
        "0=TOLERANCE|8=0|100=AcDbFcf|1=x|\n"
        "0=SHAPE|8=0|100=AcDbShape|3=x|2=NAME|\n"
        "0=CIRCLE|8=0|100=AcDbCircle|40=1|1001=MINE|1005=103|1005=0|1005=30|\n");
    // The lock and the lines of an attribute are written anew from R2010 on.
    EXPECT_EQ(
        carried(
            "AC1015", "AC1024",
            {"INSERT 5 62 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 DOOR 10 0",
             "ATTRIB 5 63 100 AcDbEntity 8 0 100 AcDbText 1 a 100 AcDbAttribute 2 TAG 70 0 74 2 280 1 71 2",
             "SEQEND 5 64 100 AcDbEntity 8 0"}),
        "0=INSERT|8=0|100=AcDbBlockReference|66=1|2=DOOR|10=0|\n"
        "0=ATTRIB|8=0|100=AcDbText|1=a|100=AcDbAttribute|280=0|2=TAG|70=0|74=2|\n"
        "0=SEQEND|8=0|\n");
}

/// A drawing with a layer, a linetype, a text style and a dimension style of its own, which one text and one
/// dimension use.
std::unique_ptr<Drawing> withTables(bool old) {
    PlainDrawing plain(old ? Kind::R12 : Kind::R2000);
    plain.layer("80", "OWN 70 5 62 -3 6 DASH 290 0 370 30 390 F 347 E 420 255 1001 ACAD 1000 x");
    plain.entity("TEXT 5 60 100 AcDbEntity 8 OWN 100 AcDbText 7 TALL 1 a 100 AcDbText");
    plain.entity("DIMENSION 5 61 100 AcDbEntity 8 0 100 AcDbDimension 2 *D1 70 0 3 METRIC");
    std::string text = plain.text();
    const auto insert = [&](const std::string& behind, const std::string& words) {
        text.insert(text.find(groups(behind)), groups(words, old));
    };
    insert("0 LTYPE",
           "0 LTYPE 5 81 102 {X 360 F 102 } 330 5 100 AcDbSymbolTableRecord 100 AcDbLinetypeTableRecord "
           "2 DASH 70 0 3 __ 72 65 73 1 40 2.0 49 1.5 74 0");
    insert("0 STYLE",
           "0 STYLE 5 82 100 AcDbSymbolTableRecord 100 AcDbTextStyleTableRecord 2 TALL 70 0 40 9.0 3 a.shx");
    insert("0 ENDSEC 0 SECTION 2 BLOCKS",
           std::string("0 TABLE 2 DIMSTYLE") + (old ? "" : " 5 A 330 0 100 AcDbSymbolTable") +
               " 70 1 0 DIMSTYLE" +
               (old ? " 2 METRIC 70 0 3 mm 5 ARROW 6 A 7 B"
                    : " 105 83 330 A 100 AcDbSymbolTableRecord 100 "
                      "AcDbDimStyleTableRecord 2 METRIC 70 0 3 mm 340 82 371 9") +
               " 40 2.5 140 3.5 170 1 278 44 0 ENDTAB");
    return Drawing::parse(text, "tables.dxf");
}

TEST(ImportVersions, TablesComeWithWhatTheReleaseKnows) {
    const auto entries = [](const char* to, bool old) {
        const auto target = released(to);
        importBlock(*target, *withTables(old), "NEW");
        const std::string text = target->savedBytes();
        std::string told;
        dxf::TagReader reader({text, &target->format(), {}}, 0, text.size());
        bool own = false;
        for (dxf::Tag tag; reader.next(tag);) {
            if (tag.code == 0) own = false;
            if (own || (tag.code == 2 && (tag.raw == "OWN" || tag.raw == "DASH" || tag.raw == "TALL" ||
                                          tag.raw == "METRIC"))) {
                told += (own ? "" : "\n") + std::to_string(tag.code) + "=" + tag.text() + "|";
                own = true;
            }
        }
        return told;
    };
    const std::string dash = "\n2=DASH|70=0|3=__|72=65|73=1|40=2.0|49=1.5|",
                      own = "\n2=OWN|70=5|62=-3|6=DASH|";
    const std::string young = dash + "74=0|" + own + "290=0|370=30|", tall = "\n2=TALL|70=0|40=9.0|3=a.shx|";
    const std::string metric = "\n2=METRIC|70=0|3=mm|", sizes = "40=2.5|140=3.5|170=1|";
    EXPECT_EQ(entries("AC1015", false), young + tall + metric + "340=106|371=9|" + sizes + "278=44|");
    EXPECT_EQ(entries("AC1018", false),
              young + "420=255|" + tall + metric + "340=106|371=9|" + sizes + "278=44|");
    EXPECT_EQ(entries("AC1015", true), young + tall + metric + sizes + "278=44|");
    const auto target = released("AC1015");
    importBlock(*target, *withTables(false), "NEW");
    ASSERT_EQ(target->layers().all().size(), 7u);
    const Layer& layer = target->layers().all().back();
    EXPECT_EQ(layer.name, "OWN");
    EXPECT_EQ(layer.color, 3);
    EXPECT_TRUE(layer.off && layer.frozen && layer.locked);
    for (const bool old : {false, true})
        EXPECT_EQ(entries("AC1009", old), dash + own + tall + metric + sizes);
}

}  // namespace
}  // namespace importing
