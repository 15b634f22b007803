#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/dxf/findings.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// A whole small drawing of R2000 or R12 as text. Entities are given as words: a type, then code and value in
/// turn; "~" stands for a blank inside a value.
///
/// Layers: 0, WALLS, LOCKED, FROZEN. Block DOOR (base point 1,0): a line, the attributes TAG (at 1,2, layer
/// WALLS) and WIDTH (at 1,1, centred), the constant attribute MAKER. Block FIXED: one constant attribute.
/// Block PLAIN: a circle.
class SampleDrawing {
  public:
    explicit SampleDrawing(bool r12 = false) : r12_(r12) {}

    SampleDrawing& header(std::string_view words) { return append(header_, words); }
    SampleDrawing& model(std::string_view words) { return append(entities_, "0 " + std::string(words)); }
    SampleDrawing& block(std::string_view words) { return append(blocks_, "0 " + std::string(words)); }
    SampleDrawing& object(std::string_view words) { return append(objects_, "0 " + std::string(words)); }
    SampleDrawing& seed(const std::string& seed) {
        seed_ = seed;
        return *this;
    }

    std::string text() const {
        std::string header = words(r12_ ? "9 $ACADVER 1 AC1009" : "9 $ACADVER 1 AC1015") +
                             words("9 $DWGCODEPAGE 3 ANSI_1252 9 $HANDSEED 5 " + seed_) + header_;
        std::string text = section("HEADER", header) + section("TABLES", tables()) +
                           section("BLOCKS", standardBlocks() + blocks_) + section("ENTITIES", entities_);
        if (!r12_) text += section("OBJECTS", objects_);
        return text + "  0\r\nEOF\r\n";
    }
    std::unique_ptr<Drawing> make(Reading reading = Reading::Lenient) const {
        return Drawing::parse(text(), "sample.dxf", reading);
    }

    static std::string words(std::string_view words) {
        std::string result;
        bool isCode = true;
        std::string word;
        const auto end = [&] {
            if (isCode) result.append(word.size() < 3 ? 3 - word.size() : 0, ' ');
            result += word + "\r\n";
            word.clear();
            isCode = !isCode;
        };
        for (const char c : words) {
            if (c == ' ') {
                end();
            } else {
                word += c == '~' ? ' ' : c;
            }
        }
        end();
        return result;
    }

  private:
    SampleDrawing& append(std::string& text, std::string_view more) {
        text += words(more);
        return *this;
    }
    static std::string section(const std::string& name, const std::string& body) {
        return words("0 SECTION 2 " + name) + body + words("0 ENDSEC");
    }
    std::string table(const std::string& name, const std::string& handle, const std::string& entries) const {
        return words("0 TABLE 2 " + name + (r12_ ? "" : " 5 " + handle + " 330 0 100 AcDbSymbolTable") +
                     " 70 9") +
               entries + words("0 ENDTAB");
    }
    std::string tables() const {
        std::string layers;
        for (const char* layer :
             {"10 0 70 0 62 7", "11 WALLS 70 0 62 3", "12 LOCKED 70 4 62 1", "13 FROZEN 70 1 62 2"}) {
            const std::string_view entry(layer);
            layers += words((r12_ ? "0 LAYER 5 " : "0 LAYER 330 2 5 ") + std::string(entry.substr(0, 2)) +
                            (r12_ ? "" : " 100 AcDbSymbolTableRecord 100 AcDbLayerTableRecord") + " 2 " +
                            std::string(entry.substr(3)) + " 6 CONTINUOUS");
        }
        std::string result =
            table("LTYPE", "5", words("0 LTYPE 5 1A 2 CONTINUOUS 70 0 3 x 72 65 73 0 40 0.0"));
        result +=
            table("LAYER", "2", layers) + table("STYLE", "3", words("0 STYLE 5 1B 2 STANDARD 70 0 40 0.0"));
        if (r12_) return result;
        std::string records;
        for (const char* record : {"1F *Model_Space", "1E *Paper_Space", "30 DOOR", "40 FIXED", "50 PLAIN"}) {
            records += words("0 BLOCK_RECORD 330 1 100 AcDbSymbolTableRecord 100 AcDbBlockTableRecord 5 " +
                             std::string(record).replace(2, 1, " 2 "));
        }
        return result + table("APPID", "9", words("0 APPID 5 1C 2 ACAD 70 0")) +
               table("BLOCK_RECORD", "1", records);
    }
    static std::string define(const std::string& words, const std::string& content) {
        return SampleDrawing::words("0 BLOCK 8 0 " + words) + content + SampleDrawing::words("0 ENDBLK 8 0");
    }
    static std::string standardBlocks() {
        return define("2 *Model_Space 70 0 10 0.0 20 0.0", "") +
               define("2 *Paper_Space 70 0 10 0.0 20 0.0", "") +
               define("2 DOOR 70 2 10 1.0 20 0.0 30 0.0",
                      words("0 LINE 5 31 8 0 10 0.0 20 0.0 11 1.0 21 0.0 0 ATTDEF 5 32 8 WALLS 10 1.0 20 2.0 "
                            "30 0.0 40 2.5 "
                            "1 T0 3 Tag? 2 TAG 70 0 0 ATTDEF 5 33 8 0 62 1 10 0.5 20 1.0 30 0.0 40 0.5 1 90 "
                            "72 1 11 1.0 21 1.0 "
                            "31 0.0 3 Width? 2 WIDTH 70 8 0 ATTDEF 5 34 8 0 10 0.0 20 0.0 40 1.0 1 us 3 x 2 "
                            "MAKER 70 2")) +
               define("2 FIXED 70 0 10 0.0 20 0.0",
                      words("0 ATTDEF 5 41 8 0 10 0.0 20 0.0 40 1.0 1 us 3 x 2 MAKER 70 2")) +
               define("2 PLAIN 70 0 10 0.0 20 0.0", words("0 CIRCLE 5 51 8 0 10 0.0 20 0.0 40 1.0"));
    }

    bool r12_;
    std::string seed_ = "100";
    std::string header_;
    std::string blocks_;
    std::string entities_;
    std::string objects_;
};

/// The groups of an entity in one line, "0=LINE|8=0|...".
inline std::string groupsOf(const Drawing& drawing, EntityId id) {
    std::string line;
    dxf::TagReader reader = drawing.tags(id);
    for (dxf::Tag tag; reader.next(tag);) line += std::to_string(tag.code) + "=" + tag.text() + "|";
    return line;
}

inline std::vector<EntityId> entitiesOf(const Drawing& drawing, BlockId block) {
    std::vector<EntityId> all;
    drawing.forEachEntity(block, [&](EntityId id) {
        all.push_back(id);
        return true;
    });
    return all;
}

inline bool hasFinding(const Drawing& drawing, std::string_view part) {
    for (const dxf::Finding& finding : drawing.findings()) {
        if (finding.reason.find(part) != std::string::npos) return true;
    }
    return false;
}

/// The number of the error that an action raises, 0 for none.
template <typename Action>
std::int32_t errorOf(Action&& action) {
    try {
        action();
    } catch (const basic::Error& error) {
        return error.number();
    }
    return 0;
}

inline std::string bytesOfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace drawing
