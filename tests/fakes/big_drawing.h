#pragma once

#include <cstdio>
#include <string>

namespace fakes {

/// Makes the text of an R2000 drawing with `references` references of the block LAMP, each with the three
/// attributes TAG, ROOM and POWER, on a grid. A second block, SPOT, has the attributes CODE, PLACE and WATT
/// and no reference but one. About 930 bytes a reference, as other programs write them.
class BigDrawing {
  public:
    static std::string make(int references) {
        BigDrawing drawing;
        drawing.out_.reserve(20'000 + static_cast<std::size_t>(references) * 960);
        drawing.header();
        drawing.tables();
        drawing.blocks();
        drawing.entities(references);
        drawing.objects();
        drawing.tag(0, "EOF");
        // The seed stands at a fixed width in the header, so it can be filled in last.
        char seed[9];
        std::snprintf(seed, sizeof seed, "%08X", drawing.handle_ + 1);
        drawing.out_.replace(drawing.seedAt_, 8, seed);
        return std::move(drawing.out_);
    }

  private:
    void tag(int code, const std::string& value) {
        char number[16];
        std::snprintf(number, sizeof number, "%3d\n", code);
        out_.append(number).append(value).append("\n");
    }
    void real(int code, double value) {
        char text[40];
        std::snprintf(text, sizeof text, "%.6f", value);
        tag(code, text);
    }
    void point(int code, double x, double y) {
        real(code, x);
        real(code + 10, y);
        real(code + 20, 0.0);
    }
    std::string hex(unsigned value) {
        char text[16];
        std::snprintf(text, sizeof text, "%X", value);
        return text;
    }
    std::string next() { return hex(++handle_); }
    void section(const char* name) {
        tag(0, "SECTION");
        tag(2, name);
    }
    void endSection() { tag(0, "ENDSEC"); }

    void header() {
        section("HEADER");
        tag(9, "$ACADVER");
        tag(1, "AC1015");
        tag(9, "$DWGCODEPAGE");
        tag(3, "ANSI_1252");
        tag(9, "$INSBASE");
        point(10, 0, 0);
        tag(9, "$HANDSEED");
        out_.append("  5\n");
        seedAt_ = out_.size();
        out_.append("00000000\n");
        tag(9, "$CLAYER");
        tag(8, "0");
        endSection();
    }

    void table(const char* name, const char* handle, int count) {
        tag(0, "TABLE");
        tag(2, name);
        tag(5, handle);
        tag(330, "0");
        tag(100, "AcDbSymbolTable");
        tag(70, std::to_string(count));
    }
    void record(const char* type, const char* handle, const char* owner, const char* marker,
                const char* name) {
        tag(0, type);
        tag(std::string(type) == "DIMSTYLE" ? 105 : 5, handle);
        tag(330, owner);
        tag(100, "AcDbSymbolTableRecord");
        tag(100, marker);
        tag(2, name);
    }
    void linetype(const char* handle, const char* name) {
        record("LTYPE", handle, "5", "AcDbLinetypeTableRecord", name);
        tag(70, "0");
        tag(3, "");
        tag(72, "65");
        tag(73, "0");
        real(40, 0.0);
    }
    void tables() {
        section("TABLES");
        table("LTYPE", "5", 3);
        linetype("14", "ByBlock");
        linetype("15", "ByLayer");
        linetype("16", "Continuous");
        tag(0, "ENDTAB");
        table("LAYER", "2", 2);
        for (const auto& [handle, name] : {std::pair{"10", "0"}, std::pair{"30", "LIGHTS"}}) {
            record("LAYER", handle, "2", "AcDbLayerTableRecord", name);
            tag(70, "0");
            tag(62, "7");
            tag(6, "Continuous");
            tag(370, "-3");
            tag(390, "F");
        }
        tag(0, "ENDTAB");
        table("STYLE", "3", 1);
        record("STYLE", "11", "3", "AcDbTextStyleTableRecord", "Standard");
        tag(70, "0");
        real(40, 0.0);
        real(41, 1.0);
        real(50, 0.0);
        tag(71, "0");
        real(42, 2.5);
        tag(3, "txt");
        tag(4, "");
        tag(0, "ENDTAB");
        table("APPID", "9", 1);
        record("APPID", "12", "9", "AcDbRegAppTableRecord", "ACAD");
        tag(70, "0");
        tag(0, "ENDTAB");
        table("BLOCK_RECORD", "1", 4);
        blockRecord("1F", "*Model_Space", "1E");
        blockRecord("1B", "*Paper_Space", "1D");
        blockRecord("40", "LAMP", "0");
        blockRecord("41", "SPOT", "0");
        tag(0, "ENDTAB");
        endSection();
    }
    void blockRecord(const char* handle, const char* name, const char* layout) {
        record("BLOCK_RECORD", handle, "1", "AcDbBlockTableRecord", name);
        tag(340, layout);
    }

    void block(const char* owner, const char* name, bool hasAttributes, auto&& content) {
        tag(0, "BLOCK");
        tag(5, next());
        tag(330, owner);
        tag(100, "AcDbEntity");
        tag(8, "0");
        tag(100, "AcDbBlockBegin");
        tag(2, name);
        tag(70, hasAttributes ? "2" : "0");
        point(10, 0, 0);
        tag(3, name);
        tag(1, "");
        content();
        tag(0, "ENDBLK");
        tag(5, next());
        tag(330, owner);
        tag(100, "AcDbEntity");
        tag(8, "0");
        tag(100, "AcDbBlockEnd");
    }
    void attribute(const char* type, const std::string& owner, const char* tagName, const std::string& text,
                   double x, double y) {
        const bool definition = std::string(type) == "ATTDEF";
        tag(0, type);
        tag(5, next());
        tag(330, owner);
        tag(100, "AcDbEntity");
        tag(8, "LIGHTS");
        tag(100, "AcDbText");
        point(10, x, y);
        real(40, 2.5);
        tag(1, text);
        real(50, 0.0);
        real(41, 1.0);
        tag(7, "Standard");
        tag(72, "0");
        tag(100, definition ? "AcDbAttributeDefinition" : "AcDbAttribute");
        if (definition) tag(3, tagName);
        tag(2, tagName);
        tag(70, "0");
    }
    void circle(const char* owner, double radius) {
        tag(0, "CIRCLE");
        tag(5, next());
        tag(330, owner);
        tag(100, "AcDbEntity");
        tag(8, "0");
        tag(100, "AcDbCircle");
        point(10, 0, 0);
        real(40, radius);
    }
    void blocks() {
        section("BLOCKS");
        block("1F", "*Model_Space", false, [] {});
        block("1B", "*Paper_Space", false, [] {});
        block("40", "LAMP", true, [this] {
            circle("40", 1.0);
            attribute("ATTDEF", "40", "TAG", "?", 2, 2);
            attribute("ATTDEF", "40", "ROOM", "-", 2, -1);
            attribute("ATTDEF", "40", "POWER", "60", 2, -4);
        });
        block("41", "SPOT", true, [this] {
            circle("41", 0.5);
            attribute("ATTDEF", "41", "CODE", "?", 1, 1);
            attribute("ATTDEF", "41", "PLACE", "-", 1, -2);
            attribute("ATTDEF", "41", "WATT", "0", 1, -5);
        });
        endSection();
    }

    std::string insert(const char* name, bool attributes, double x, double y) {
        const std::string handle = next();
        tag(0, "INSERT");
        tag(5, handle);
        tag(330, "1F");
        tag(100, "AcDbEntity");
        tag(8, "LIGHTS");
        tag(100, "AcDbBlockReference");
        if (attributes) tag(66, "1");
        tag(2, name);
        point(10, x, y);
        real(41, 1.0);
        real(42, 1.0);
        real(43, 1.0);
        real(50, 0.0);
        return handle;
    }
    void sequenceEnd(const std::string& owner) {
        tag(0, "SEQEND");
        tag(5, next());
        tag(330, owner);
        tag(100, "AcDbEntity");
        tag(8, "LIGHTS");
    }
    void entities(int references) {
        section("ENTITIES");
        insert("SPOT", false, -10, -10);
        for (int i = 0; i < references; ++i) {
            const double x = (i % 200) * 20.0, y = (i / 200) * 20.0;
            const std::string owner = insert("LAMP", true, x, y);
            attribute("ATTRIB", owner, "TAG", "L-" + std::to_string(i + 1), x + 2, y + 2);
            attribute("ATTRIB", owner, "ROOM", "Room " + std::to_string(i / 12 + 1), x + 2, y - 1);
            attribute("ATTRIB", owner, "POWER", std::to_string(40 + 20 * (i % 5)), x + 2, y - 4);
            sequenceEnd(owner);
        }
        endSection();
    }

    void dictionary(const char* handle, const char* owner) {
        tag(0, "DICTIONARY");
        tag(5, handle);
        tag(330, owner);
        tag(100, "AcDbDictionary");
        tag(281, "1");
    }
    void layout(const char* handle, const char* name, const char* order, const char* blockRecordHandle) {
        tag(0, "LAYOUT");
        tag(5, handle);
        tag(330, "D");
        tag(100, "AcDbPlotSettings");
        tag(1, "");
        tag(100, "AcDbLayout");
        tag(1, name);
        tag(70, "1");
        tag(71, order);
        tag(330, blockRecordHandle);
    }
    void objects() {
        section("OBJECTS");
        dictionary("C", "0");
        tag(3, "ACAD_LAYOUT");
        tag(350, "D");
        dictionary("D", "C");
        tag(3, "Model");
        tag(350, "1E");
        tag(3, "Layout1");
        tag(350, "1D");
        layout("1E", "Model", "0", "1F");
        layout("1D", "Layout1", "1", "1B");
        endSection();
    }

    std::string out_;
    std::size_t seedAt_ = 0;
    unsigned handle_ = 0x100;
};

}  // namespace fakes
