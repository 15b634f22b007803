#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace bench {

/// Makes the text of an R2000 drawing with `references` references of the block LAMP, each with the three
/// attributes TAG, ROOM and POWER, on a grid. A second block, SPOT, has the attributes CODE, PLACE and WATT
/// and no reference but one. About 930 bytes a reference, as other programs write them. `turned` gives each
/// reference a rotation of its own.
class BigDrawing {
  public:
    static std::string make(int references, bool turned = false) {
        BigDrawing drawing;
        drawing.turned_ = turned;
        drawing.out_.reserve(20'000 + static_cast<std::size_t>(references) * 960);
        drawing.groups("0|SECTION|2|HEADER|9|$ACADVER|1|AC1015|9|$DWGCODEPAGE|3|ANSI_1252|9|$INSBASE");
        drawing.point(0, 0);
        drawing.groups("9|$HANDSEED|5|00000000");
        const std::size_t seed = drawing.out_.size() - 9;
        drawing.groups("9|$CLAYER|8|0|0|ENDSEC");
        drawing.tables();
        drawing.blocks();
        drawing.entities(references);
        drawing.objects();
        // The seed stands at a fixed width in the header, so it can be filled in last.
        char text[9];
        std::snprintf(text, sizeof text, "%08X", drawing.handle_ + 1);
        drawing.out_.replace(seed, 8, text);
        return std::move(drawing.out_);
    }

  private:
    /// Group codes and values in turn, with "|" between them; "#" is the next handle, "@" the owner.
    void groups(std::string_view text, const std::string& owner = {}) {
        for (bool isCode = true;; isCode = !isCode) {
            const std::size_t bar = text.find('|');
            const std::string_view word = text.substr(0, bar);
            if (isCode) out_.append(word.size() < 3 ? 3 - word.size() : 0, ' ');
            out_.append(word == "#" ? next() : word == "@" ? std::string_view(owner) : word).append("\n");
            if (bar == std::string_view::npos) return;
            text.remove_prefix(bar + 1);
        }
    }
    void value(const char* code, const std::string& text) {
        groups(code);
        out_.append(text).append("\n");
    }
    void point(double x, double y) {
        char text[100];
        std::snprintf(text, sizeof text, "10|%.6f|20|%.6f|30|0.000000", x, y);
        groups(text);
    }
    std::string_view next() {
        std::snprintf(hex_, sizeof hex_, "%X", ++handle_);
        return hex_;
    }

    void tables() {
        groups("0|SECTION|2|TABLES");
        table("LTYPE", "5", "3");
        for (const auto& [handle, name] :
             {std::pair("14", "ByBlock"), std::pair("15", "ByLayer"), std::pair("16", "Continuous")}) {
            record("LTYPE", handle, "5", "AcDbLinetypeTableRecord", name);
            groups("70|0|3||72|65|73|0|40|0.000000");
        }
        groups("0|ENDTAB");
        table("LAYER", "2", "2");
        for (const auto& [handle, name] : {std::pair("10", "0"), std::pair("30", "LIGHTS")}) {
            record("LAYER", handle, "2", "AcDbLayerTableRecord", name);
            groups("70|0|62|7|6|Continuous|370|-3|390|F");
        }
        groups("0|ENDTAB");
        table("STYLE", "3", "1");
        record("STYLE", "11", "3", "AcDbTextStyleTableRecord", "Standard");
        groups("70|0|40|0.000000|41|1.000000|50|0.000000|71|0|42|2.500000|3|txt|4||0|ENDTAB");
        table("APPID", "9", "1");
        record("APPID", "12", "9", "AcDbRegAppTableRecord", "ACAD");
        groups("70|0|0|ENDTAB");
        table("BLOCK_RECORD", "1", "4");
        for (const auto& [handle, name, layout] :
             {std::tuple("1F", "*Model_Space", "340|1E"), std::tuple("1B", "*Paper_Space", "340|1D"),
              std::tuple("40", "LAMP", "340|0"), std::tuple("41", "SPOT", "340|0")}) {
            record("BLOCK_RECORD", handle, "1", "AcDbBlockTableRecord", name);
            groups(layout);
        }
        groups("0|ENDTAB|0|ENDSEC");
    }
    void table(const char* name, const char* handle, const char* count) {
        value("0|TABLE|2", name);
        groups("5|@|330|0|100|AcDbSymbolTable", handle);
        value("70", count);
    }
    void record(const char* type, const char* handle, const char* owner, const char* marker,
                const char* name) {
        value("0", type);
        value("5", handle);
        groups("330|@|100|AcDbSymbolTableRecord", owner);
        value("100", marker);
        value("2", name);
    }

    void blocks() {
        groups("0|SECTION|2|BLOCKS");
        block("1F", "*Model_Space", "70|0");
        endBlock("1F");
        block("1B", "*Paper_Space", "70|0");
        endBlock("1B");
        block("40", "LAMP", "70|2");
        circle("40", "40|1.000000");
        attribute("ATTDEF", "40", "TAG", "?", 2, 2);
        attribute("ATTDEF", "40", "ROOM", "-", 2, -1);
        attribute("ATTDEF", "40", "POWER", "60", 2, -4);
        endBlock("40");
        block("41", "SPOT", "70|2");
        circle("41", "40|0.500000");
        attribute("ATTDEF", "41", "CODE", "?", 1, 1);
        attribute("ATTDEF", "41", "PLACE", "-", 1, -2);
        attribute("ATTDEF", "41", "WATT", "0", 1, -5);
        endBlock("41");
        groups("0|ENDSEC");
    }
    void block(const char* owner, const char* name, const char* flags) {
        groups("0|BLOCK|5|#|330|@|100|AcDbEntity|8|0|100|AcDbBlockBegin", owner);
        value("2", name);
        groups(flags);
        point(0, 0);
        value("3", name);
        groups("1|");
    }
    void endBlock(const char* owner) {
        groups("0|ENDBLK|5|#|330|@|100|AcDbEntity|8|0|100|AcDbBlockEnd", owner);
    }
    void circle(const char* owner, const char* radius) {
        groups("0|CIRCLE|5|#|330|@|100|AcDbEntity|8|0|100|AcDbCircle", owner);
        point(0, 0);
        groups(radius);
    }
    void attribute(std::string_view type, const std::string& owner, const char* tag, const std::string& text,
                   double x, double y) {
        const bool isDefinition = type == "ATTDEF";
        groups(isDefinition ? "0|ATTDEF" : "0|ATTRIB");
        groups("5|#|330|@|100|AcDbEntity|8|LIGHTS|100|AcDbText", owner);
        point(x, y);
        value("40|2.500000|1", text);
        groups("50|0.000000|41|1.000000|7|Standard|72|0");
        groups(isDefinition ? "100|AcDbAttributeDefinition" : "100|AcDbAttribute");
        if (isDefinition) value("3", tag);
        value("2", tag);
        groups("70|0");
    }

    /// Returns the reference's handle.
    std::string insert(const char* head, const char* name, double x, double y, double degrees = 0) {
        groups("0|INSERT|5|#|330|1F|100|AcDbEntity|8|LIGHTS|100|AcDbBlockReference");
        std::string handle = hex_;
        if (*head != 0) groups(head);
        value("2", name);
        point(x, y);
        char rotation[40];
        std::snprintf(rotation, sizeof rotation, "%.6f", degrees);
        groups("41|1.000000|42|1.000000|43|1.000000");
        value("50", rotation);
        return handle;
    }
    void entities(int references) {
        groups("0|SECTION|2|ENTITIES");
        insert("", "SPOT", -10, -10);
        for (int i = 0; i < references; ++i) {
            const int row = i / 200, turns = i * 37 / 36000;
            const double x = (i % 200) * 20.0, y = row * 20.0;
            const std::string owner = insert("66|1", "LAMP", x, y, turned_ ? i * 0.37 - 360 * turns : 0);
            attribute("ATTRIB", owner, "TAG", "L-" + std::to_string(i + 1), x + 2, y + 2);
            attribute("ATTRIB", owner, "ROOM", "Room " + std::to_string(i / 12 + 1), x + 2, y - 1);
            attribute("ATTRIB", owner, "POWER", std::to_string(40 + 20 * (i % 5)), x + 2, y - 4);
            groups("0|SEQEND|5|#|330|@|100|AcDbEntity|8|LIGHTS", owner);
        }
        groups("0|ENDSEC");
    }

    void objects() {
        groups("0|SECTION|2|OBJECTS|0|DICTIONARY|5|C|330|0|100|AcDbDictionary|281|1|3|ACAD_LAYOUT|350|D");
        groups("0|DICTIONARY|5|D|330|C|100|AcDbDictionary|281|1|3|Model|350|1E|3|Layout1|350|1D");
        groups("0|LAYOUT|5|1E|330|D|100|AcDbPlotSettings|1||100|AcDbLayout|1|Model|70|1|71|0|330|1F");
        groups("0|LAYOUT|5|1D|330|D|100|AcDbPlotSettings|1||100|AcDbLayout|1|Layout1|70|1|71|1|330|1B");
        groups("0|ENDSEC|0|EOF");
    }

    std::string out_;
    char hex_[16];
    unsigned handle_ = 0x100;
    bool turned_ = false;
};

}  // namespace bench
