#include "desk/geometry/spline.h"
#include "desk/shapes/geometry.h"
#include "tests/drawing/plain_drawing.h"

#include <cmath>
#include <sstream>

namespace shapes {
namespace {

using drawing::PlainDrawing;

/// Writes a geometry down: "x,y>x,y" for a line, "(start middle end)" for another curve, "[corners]" for a
/// fill, "'lower left, upper right'" for a text, with heights only where there are some.
class Writer {
  public:
    std::string write(const Geometry& geometry) {
        for (const Stroke& stroke : geometry.strokes) {
            curve(stroke.curve);
            if (stroke.startWidth != 0 || stroke.endWidth != 0)
                out_ << "w" << stroke.startWidth << "/" << stroke.endWidth;
            out_ << " ";
        }
        for (const EndlessLine& line : geometry.endless) {
            out_ << (line.bothWays ? "both " : "ray ");
            point(line.base);
            out_ << "~";
            point(line.direction);
        }
        for (const Fill& fill : geometry.fills) {
            for (const Path& loop : fill.loops) {
                out_ << "[";
                for (const Curve& edge : loop) curve(edge), out_ << " ";
                out_.seekp(-1, std::ios::cur);
                out_ << "]";
            }
        }
        for (const Fill& text : geometry.texts) {
            out_ << "'";
            point(startPoint(text.loops[0][0]));
            out_ << " ";
            point(startPoint(text.loops[0][2]));
            out_ << "'";
        }
        for (const Point3& dot : geometry.points) out_ << "dot ", point(dot);
        std::string told = out_.str();
        while (told.ends_with(' ')) told.pop_back();
        return told;
    }

  private:
    void number(double value) { out_ << std::round(value * 1000) / 1000 + 0.0; }
    void point(const Point3& at) {
        number(at.x), out_ << ",", number(at.y);
        if (std::abs(at.z) > 1e-9) out_ << ",", number(at.z);
    }
    void curve(const Curve& curve) {
        if (const auto* line = std::get_if<LineCurve>(&curve)) {
            point(line->start), out_ << ">", point(line->end);
            return;
        }
        Point3 middle;
        if (const auto* arc = std::get_if<ArcCurve>(&curve)) {
            middle = arc->at((arc->start + arc->end) / 2);
        } else {
            const auto& spline = std::get<SplineCurve>(curve);
            middle = geometry::evaluate(spline, (spline.knots.front() + spline.knots.back()) / 2).point;
        }
        out_ << "(", point(startPoint(curve)), out_ << " ", point(middle), out_ << " ",
            point(endPoint(curve));
        out_ << ")";
    }
    std::ostringstream out_;
};

/// What the first entity draws.
std::string drawn(const std::vector<std::string>& entities) {
    PlainDrawing plain;
    for (const std::string& words : entities) plain.entity(words);
    const auto drawing = plain.make();
    return Writer().write(
        readGeometry(*drawing, drawing::modelEntities(*drawing).at(0), TextStyles(*drawing)));
}

TEST(Drawn, EachKindByItsGroups) {
    struct Row {
        std::vector<std::string> entities;
        const char* told;
    };
    const Row rows[] = {
        {{"LINE 8 0 10 1 20 2 30 3 11 4 21 5 31 6"}, "1,2,3>4,5,6"},
        {{"ARC 8 0 10 1 20 2 40 2 50 350 51 10 210 0 220 0 230 -1"}, "(-2.97,1.653 -3,2 -2.97,2.347)"},
        {{"CIRCLE 8 0 10 1 20 2 40 2 50 30 51 40"}, "(3,2 -1,2 3,2)"},
        {{"ELLIPSE 8 0 10 1 20 1 11 4 21 0 40 0.5 41 3 42 1 210 0 220 0 230 -1"},
         "(-2.96,0.718 2.665,2.819 3.161,-0.683)"},
        {{"SPLINE 8 0 70 1 71 3 11 0 21 0 11 4 21 0 11 4 21 4 11 0 21 4"}, "(0,0 4,4 0,0)"},
        {{"SPLINE 8 0 71 3 12 0 22 1 13 0 23 -1 11 0 21 0 11 4 21 0"}, "(0,0 2,1 4,0)"},
        {{"SPLINE 8 0 71 2 10 0 20 0 41 1 10 2 20 2 41 3 10 4 20 0 41 1"}, "(0,0 2,1.5 4,0)"},
        {{"CIRCLE 8 0 10 1 20 2"}, "(1,2 1,2 1,2)"},
        {{"POINT 8 0 10 1 20 2 30 3"}, "dot 1,2,3"},
        {{"RAY 8 0 10 1 20 2 11 0 21 1"}, "ray 1,2~0,1"},
        {{"XLINE 8 0 10 1 20 2 11 1 21 0"}, "both 1,2~1,0"},
        {{"XLINE 8 0 10 1 20 2"}, ""},
        {{"SOLID 8 0 10 0 20 0 11 2 21 0 12 0 22 1 13 2 23 1"}, "[0,0>2,0 2,0>2,1 2,1>0,1 0,1>0,0]"},
        {{"TRACE 8 0 10 0 20 0 11 2 21 0 12 0 22 1 230 -1"}, "[0,0>-2,0 -2,0>0,1 0,1>0,1 0,1>0,0]"},
        {{"3DFACE 8 0 10 0 20 0 11 2 21 0 31 1 12 2 22 2 13 0 23 2 70 5"}, "2,0,1>2,2 0,2>0,0"},
        {{"LEADER 8 0 10 0 20 0 10 1 20 0 10 1 20 5"},
         "0,0>1,0 1,0>1,5 [0,0>0.18,0.03 0.18,0.03>0.18,-0.03 0.18,-0.03>0,0]"},
        {{"LEADER 8 0 10 0 20 0 10 0.3 20 0"}, "0,0>0.3,0"},
        {{"LEADER 8 0 71 0 10 0 20 0 10 1 20 0"}, "0,0>1,0"},
        {{"LEADER 8 0 72 1 10 0 20 0 10 1 20 0"}, "0,0>1,0"},
        {{"LEADER 8 0 10 0 20 0 10 9 20 0 1001 ACAD 1000 DSTYLE 1070 40 1040 2 1070 41 1040 1.5 1001 OTHER "
          "1070 41 1040 9"},
         "0,0>9,0 [0,0>3,0.5 3,0.5>3,-0.5 3,-0.5>0,0]"},
        {{"LWPOLYLINE 8 0 90 3 70 1 38 2 10 0 20 0 42 1 10 2 20 0 40 0.5 41 1 10 2 20 2"},
         "(0,0,2 1,-1,2 2,0,2) 2,0,2>2,2,2w0.5/1 2,2,2>0,0,2"},
        {{"LWPOLYLINE 8 0 43 0.5 90 2 10 0 20 0 10 2 20 0 210 0 220 0 230 -1"}, "0,0>-2,0w0.5/0.5"},
        {{"LWPOLYLINE 8 0 90 1 10 3 20 4"}, "dot 3,4"},
        {{"POLYLINE 8 0 30 2 70 1 40 0.5 41 2", "VERTEX 8 0 10 0 20 0",
          "VERTEX 8 0 10 2 20 0 40 0 41 0 42 -1", "SEQEND 8 0"},
         "0,0,2>2,0,2w0.5/2 (2,0,2 1,-1,2 0,0,2)"},
        {{"POLYLINE 8 0 40 0.5", "VERTEX 8 0 10 0 20 0", "VERTEX 8 0 10 2 20 0", "SEQEND 8 0"},
         "0,0>2,0w0.5/0"},
        {{"POLYLINE 8 0 70 9", "VERTEX 8 0 10 0 20 0 30 1 70 32", "VERTEX 8 0 10 2 20 0 30 2 70 32",
          "VERTEX 8 0 10 2 20 2 30 3 70 32", "SEQEND 8 0"},
         "0,0,1>2,0,2 2,0,2>2,2,3 2,2,3>0,0,1"},
        {{"POLYLINE 8 0 70 49 71 2 72 3", "VERTEX 8 0 10 0 20 0 70 64", "VERTEX 8 0 10 1 20 0 70 64",
          "VERTEX 8 0 10 2 20 0 70 64", "VERTEX 8 0 10 0 20 1 70 64", "VERTEX 8 0 10 1 20 1 70 64",
          "VERTEX 8 0 10 2 20 1 70 64", "SEQEND 8 0"},
         "0,0>1,0 0,0>0,1 1,0>2,0 1,0>1,1 2,0>0,0 2,0>2,1 0,1>1,1 0,1>0,0 1,1>2,1 1,1>1,0 2,1>0,1 2,1>2,0"},
        {{"POLYLINE 8 0 70 20 71 9 72 9 73 1 74 2", "VERTEX 8 0 10 5 20 5 70 16",
          "VERTEX 8 0 10 0 20 0 70 72", "VERTEX 8 0 10 1 20 0 70 72", "SEQEND 8 0"},
         "0,0>1,0"},
        {{"POLYLINE 8 0 70 64 71 4 72 1", "VERTEX 8 0 10 0 20 0 70 192", "VERTEX 8 0 10 1 20 0 70 192",
          "VERTEX 8 0 10 1 20 1 70 192", "VERTEX 8 0 10 0 20 1 70 192",
          "VERTEX 8 0 70 128 71 1 72 -2 73 3 74 9", "VERTEX 8 0 70 128 71 1 72 2 73 4", "SEQEND 8 0"},
         "0,0>1,0 0,0>1,0 1,0>0,1 0,1>0,0"},
        {{"MESH 8 0 92 4 10 0 20 0 30 0 10 1 20 0 30 0 10 1 20 1 30 0 10 0 20 1 30 2 93 9 90 3 90 0 90 1 90 "
          "2 90 4 90 0 90 2 90 3 90 9 94 1 90 7 90 8"},
         "0,0>1,0 0,0>1,1 1,0>1,1 1,1>0,1,2"},
        {{"MLINE 8 0 71 3 10 0 20 0 11 0 21 0 12 1 22 0 13 0 23 1 74 2 41 0.5 41 0 75 0 74 2 41 -0.5 41 0 75 "
          "0 11 4 21 0 13 0 23 1 74 2 41 0.5 41 0 74 1 41 -0.5"},
         "0,0.5>4,0.5 4,0.5>0,0.5 0,-0.5>4,-0.5 4,-0.5>0,-0.5"},
        {{"MLINE 8 0 11 0 21 0 13 0 23 1 74 1 41 0.5 11 4 21 0 13 0 23 1"}, "0,0.5>4,0"},
        {{"IMAGE 8 0 10 1 20 1 11 0.5 21 0 12 0 22 0.5 13 4 23 2 280 0 14 0 24 0 14 1 24 1"},
         "1,2>3,2 3,2>3,1 3,1>1,1 1,1>1,2"},
        {{"WIPEOUT 8 0 10 0 20 0 11 2 21 0 12 0 22 2 13 1 23 1 280 1 14 -0.5 24 -0.5 14 0.5 24 -0.5 14 0.5 "
          "24 0.5"},
         "[0,2>2,2 2,2>2,0 2,0>0,2]"},
        {{"IMAGE 8 0 10 0 20 0 11 1 21 0 12 0 22 1 13 4 23 4 280 1 14 0.5 24 0.5 14 1.5 24 2.5"},
         "1,3>2,3 2,3>2,1 2,1>1,1 1,1>1,3"},
        {{"OLE2FRAME 8 0 10 0 20 4 11 6 21 0"}, "0,4>6,4 6,4>6,0 6,0>0,0 0,0>0,4"},
        {{"VIEWPORT 8 0 69 2 10 5 20 5 40 4 41 2"}, "3,4>7,4 7,4>7,6 7,6>3,6 3,6>3,4"},
        {{"VIEWPORT 8 0 10 5 20 5 40 4 41 2"}, "3,4>7,4 7,4>7,6 7,6>3,6 3,6>3,4"},
        {{"VIEWPORT 8 0 69 1 10 5 20 5 40 4 41 2"}, ""},
        {{"MULTILEADER 8 0 300 CONTEXT_DATA{ 40 2 10 0 20 0 41 0.5 140 0.6 43 2 45 2 171 1 304 Note~book 12 "
          "10 22 "
          "5 13 1 23 0 302 LEADER{ 10 4 20 5 11 1 21 0 40 2 304 LEADER_LINE{ 10 0 20 0 10 2 20 2 305 } 303 } "
          "301 } 10 99"},
         "0,0>2,2 2,2>4,5 4,5>6,5 [0,0>0.354,0.495 0.354,0.495>0.495,0.354 0.495,0.354>0,0]'10,4.375 "
         "11.475,5''10,2.708 11.514,3.333'"},
        {{"MULTILEADER 8 0 300 CONTEXT_DATA{ 41 1 171 3 304 AA 12 10 22 5 13 0 23 1 302 LEADER{ 10 4 20 5 "
          "304 LEADER_LINE{ 10 0 20 0 305 } 303 } 301 }"},
         "0,0>4,5 '11.25,3.137 10,5'"},
        {{"MULTILEADER 8 0 300 CONTEXT_DATA{ 41 1 171 2 304 AA 12 10 22 5 301 }"}, "'9.068,3.75 10.932,5'"},
        {{"TOLERANCE 8 0 10 10 20 5 1 {\\Fgdt;n}%%v%%v0.1^J%%v "},
         "10,5.18>10,4.82 (10.261,5 10.135,5 10.261,5) 10.135,4.91>10.261,5.09 10.396,5.18>10.396,4.82 "
         "10.925,5.18>10.925,4.82 10,5.18>10.925,5.18 10,4.82>10.925,4.82 '10.486,4.865 10.835,5.09'"},
        {{"TOLERANCE 8 0 10 0 20 0 11 0 21 1 1 A{\\fgdt;b}\\\\ 1001 ACAD 1000 DSTYLE 1070 140 1040 1"},
         "-1,0>1,0 0.5,1.532>0.5,2.532 0.5,2.032>-0.5,2.032 -1,3.908>1,3.908 -1,0>-1,3.908 1,0>1,3.908 "
         "'0.75,0.5 -0.5,1.432''0.75,2.632 -0.5,3.408'"},
        {{"NOTHING 8 0 10 0 20 0"}, ""},
        {{"HATCH 8 0 91 1 92 2 72 1 73 1 93 2 10 4 20 5 42 1 10 6 20 5 42 1 97 0 75 0 98 0"},
         "[(4,5 5,4 6,5) (6,5 5,6 4,5)]"},
    };
    for (const auto& [entities, told] : rows) EXPECT_EQ(drawn(entities), told) << entities[0];
}

TEST(Drawn, TextsByTheirAlignment) {
    const std::pair<const char*, const char*> rows[] = {
        {"TEXT 8 0 10 1 20 2 40 1 1 A", "'1,1.75 1.932,3'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A", "'1,1.75 1.932,3'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 72 1", "'4.534,4.75 5.466,6'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 72 2", "'4.068,4.75 5,6'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 72 4", "'4.534,4.25 5.466,5.5'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 73 1", "'5,5 5.932,6.25'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 72 1 73 2", "'4.534,4.25 5.466,5.5'"},
        {"TEXT 8 0 10 1 20 2 11 5 21 5 40 1 1 A 72 2 73 3", "'4.068,3.75 5,5'"},
        {"TEXT 8 0 10 1 20 2 11 1 21 6 40 1 1 A 72 3", "'2.073,2 -3.294,6'"},
        {"TEXT 8 0 10 1 20 2 11 1 21 6 40 1 1 A 72 5 41 3", "'1.25,2 0,6'"},
        {"TEXT 8 0 10 1 20 2 40 2 41 0.5 1 A 50 90 51 45", "'1.5,1.5 -1,4.932'"},
        {"TEXT 8 0 10 1 20 2 40 1 1 A 71 2", "'1,1.75 0.068,3'"},
        {"TEXT 8 0 10 1 20 2 40 1 1 A 71 4", "'1,2.25 1.932,1'"},
        {"TEXT 8 0 10 1 20 2 40 1 1 A 230 -1", "'-1,1.75 -1.932,3'"},
        {"TEXT 8 0 10 1 20 2 40 1 1 ~~", ""},
        {"TEXT 8 0 10 1 20 2 40 0 1 A", ""},
        {"ATTDEF 8 0 10 1 20 2 40 1 1 A 2 TAG 70 1", "'1,1.75 3.872,3'"},
        {"ATTDEF 8 0 10 1 20 2 11 5 21 5 40 1 1 A 2 T 70 0 73 3 74 2", "'5,4.25 5.853,5.5'"},
        {"MTEXT 8 0 10 1 20 2 40 1 1 A 71 1", "'1,0.75 1.932,2'"},
        {"MTEXT 8 0 10 1 20 2 40 1 41 9 1 A 71 5", "'0.534,1.375 1.466,2.625'"},
        {"MTEXT 8 0 10 1 20 2 40 1 41 9 1 A 71 9", "'0.068,2 1,3.25'"},
        {"MTEXT 8 0 10 1 20 2 40 1 3 A\\P 1 A 71 7 44 2 50 90", "'1,2 -3.583,2.932'"},
        {"MTEXT 8 0 10 1 20 2 40 1 1 A 11 0 21 2 50 45", "'2.25,2 1,2.932'"},
        {"MTEXT 8 0 10 1 20 2 40 1 1 {\\H3x;A}\\PA 73 2", "'1,-2.917 3.795,2'"},
        {"MTEXT 8 0 10 1 20 2 40 1 1 A 230 -1", "'1,0.75 0.068,2'"},
        {"MTEXT 8 0 10 1 20 2 1 A", ""},
    };
    for (const auto& [words, told] : rows) EXPECT_EQ(drawn({words}), told) << words;
}

TEST(Drawn, DimensionsAndTablesShowTheBlockThatTheyName) {
    const auto drawing = PlainDrawing()
                             .block("*D1")
                             .block("*T1")
                             .entity("DIMENSION 8 0 2 *D1 10 1 20 2 12 3 22 4 2 *T1")
                             .entity("ACAD_TABLE 8 0 2 *T1 10 5 20 6 11 0 21 2 12 9 22 9")
                             .entity("ARC_DIMENSION 8 0 2 *D1 10 1 20 2 11 0 21 2")
                             .entity("DIMENSION 8 0 2 *D9")
                             .entity("LINE 8 0 2 *D1")
                             .make();
    const auto ids = drawing::modelEntities(*drawing);
    struct Row {
        const char* block;
        Point3 insertion;
        double rotation;
    };
    const Row rows[] = {{"*D1", {3, 4, 0}, 0}, {"*T1", {5, 6, 0}, geometry::kPi / 2}, {"*D1", {0, 0, 0}, 0}};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto placed = readPlaced(*drawing, ids.at(i));
        ASSERT_TRUE(placed) << i;
        EXPECT_EQ(placed->block, drawing->blocks().find(rows[i].block)) << i;
        drawing::expectNear(placed->placement.insertion, rows[i].insertion);
        EXPECT_NEAR(placed->placement.rotation, rows[i].rotation, 1e-12) << i;
    }
    EXPECT_FALSE(readPlaced(*drawing, ids.at(3)) || readPlaced(*drawing, ids.at(4)));
}

}  // namespace
}  // namespace shapes
