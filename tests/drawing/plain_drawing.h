#pragma once

#include "desk/drawing/drawing.h"
#include "desk/dxf/findings.h"
#include "tests/fakes/error_of.h"
#include "tests/geometry/expect_near.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace drawing {

using fakes::errorOf;
using geometry::expectNear;

/// Groups of DXF from words, code and value in turn; "~" stands for a blank inside a value. An old drawing,
/// of R12, knows neither subclass markers nor owners: they are left out.
inline std::string groups(const std::string& words, bool old = false) {
    std::istringstream stream(words);
    std::string result;
    for (std::string code, value; stream >> code >> value;) {
        if (old && (code == "100" || code == "330")) continue;
        std::replace(value.begin(), value.end(), '~', ' ');
        result.append(3 - std::min<std::size_t>(code.size(), 3), ' ').append(code).append("\r\n");
        result.append(value).append("\r\n");
    }
    return result;
}

/// What a small drawing starts from: layers only, without a header (R12), or a whole sample.
enum class Kind { Bare, R12, R2000 };

/// Builds small drawings from words, see `groups`: "LINE 8 0 10 0 20 0 11 3 21 4" is a group 0 and then code
/// and value in turn. Layers: WALLS (green), PLAIN, OFF, FROZEN and LOCKED.
///
/// A sample has three blocks besides. DOOR (base point 1,0): a line, the attributes TAG (at 1,2, layer WALLS)
/// and WIDTH (at 1,1, centred), the constant attribute MAKER. FIXED: one constant attribute. PLAIN: a circle.
class PlainDrawing {
  public:
    explicit PlainDrawing(Kind kind = Kind::Bare, const std::string& seed = "100")
        : old_(kind != Kind::R2000), isSample_(kind != Kind::Bare) {
        int handle = 10;
        for (const char* words : {"0 70 0 62 7", "WALLS 70 0 62 3", "LOCKED 70 4 62 1", "FROZEN 70 1 62 2",
                                  "PLAIN 70 0 62 7", "OFF 70 0 62 -7"})
            layer(std::to_string(handle++), words);
        if (!isSample_) return;
        header(old_ ? "9 $ACADVER 1 AC1009" : "9 $ACADVER 1 AC1015");
        header("9 $DWGCODEPAGE 3 ANSI_1252 9 $HANDSEED 5 " + seed);
        if (!old_) block("*Model_Space").block("*Paper_Space");
        block("DOOR", 1).inBlock("LINE 5 31 8 0 10 0.0 20 0.0 11 1.0 21 0.0");
        inBlock("ATTDEF 5 32 8 WALLS 10 1.0 20 2.0 30 0.0 40 2.5 1 T0 3 Tag? 2 TAG 70 0");
        inBlock(
            "ATTDEF 5 33 8 0 62 1 10 0.5 20 1.0 30 0.0 40 0.5 1 90 72 1 11 1.0 21 1.0 31 0.0 3 Width? "
            "2 WIDTH 70 8");
        inBlock("ATTDEF 5 34 8 0 10 0.0 20 0.0 40 1.0 1 us 3 x 2 MAKER 70 2");
        block("FIXED").inBlock("ATTDEF 5 41 8 0 10 0.0 20 0.0 40 1.0 1 us 3 x 2 MAKER 70 2");
        block("PLAIN").inBlock("CIRCLE 5 51 8 0 10 0.0 20 0.0 40 1.0");
    }

    PlainDrawing& header(const std::string& words) { return append(header_, words); }
    /// A layer by its handle and the words from its name on.
    PlainDrawing& layer(const std::string& handle, const std::string& words) {
        return append(
            layers_, "0 LAYER 5 " + handle +
                         " 330 2 100 AcDbSymbolTableRecord 100 AcDbLayerTableRecord 6 CONTINUOUS 2 " + words);
    }
    PlainDrawing& entity(const std::string& words) { return append(entities_, "0 " + words); }
    PlainDrawing& object(const std::string& words) { return append(objects_, "0 " + words); }
    /// Opens a block at a base point; the entities given after it by `inBlock` belong to it.
    PlainDrawing& block(const std::string& name, double baseX = 0, double baseY = 0) {
        blocks_ += std::exchange(endOfBlock_, groups("0 ENDBLK 8 0"));
        return inBlock("BLOCK 8 0 2 " + name + " 70 0 10 " + std::to_string(baseX) + " 20 " +
                       std::to_string(baseY));
    }
    PlainDrawing& inBlock(const std::string& words) { return append(blocks_, "0 " + words); }

    std::string text() const {
        std::string text = header_.empty() ? "" : section("HEADER", header_);
        text += section("TABLES", tables()) + section("BLOCKS", blocks_ + endOfBlock_);
        text += section("ENTITIES", entities_);
        if (!old_) text += section("OBJECTS", objects_);
        return text + groups("0 EOF");
    }
    std::unique_ptr<Drawing> make(Reading reading = Reading::Lenient) const {
        return Drawing::parse(text(), "plain.dxf", reading);
    }

  private:
    PlainDrawing& append(std::string& text, const std::string& words) {
        text += groups(words, old_);
        return *this;
    }
    static std::string section(const std::string& name, const std::string& body) {
        return groups("0 SECTION 2 " + name) + body + groups("0 ENDSEC");
    }
    std::string table(const std::string& name, const std::string& handle, const std::string& entries) const {
        const std::string markers = old_ ? "" : " 5 " + handle + " 330 0 100 AcDbSymbolTable";
        return groups("0 TABLE 2 " + name + markers + " 70 9") + entries + groups("0 ENDTAB");
    }
    std::string tables() const {
        if (!isSample_) return table("LAYER", "2", layers_);
        std::string result =
            table("LTYPE", "5", groups("0 LTYPE 5 1A 2 CONTINUOUS 70 0 3 x 72 65 73 0 40 0.0")) +
            table("LAYER", "2", layers_) + table("STYLE", "3", groups("0 STYLE 5 1B 2 STANDARD 70 0 40 0.0"));
        if (old_) return result;
        std::string records;
        for (const char* words :
             {"1F 2 *Model_Space", "1E 2 *Paper_Space", "30 2 DOOR", "40 2 FIXED", "50 2 PLAIN"})
            records += groups("0 BLOCK_RECORD 330 1 100 AcDbSymbolTableRecord 100 AcDbBlockTableRecord 5 " +
                              std::string(words));
        return result + table("APPID", "9", groups("0 APPID 5 1C 2 ACAD 70 0")) +
               table("BLOCK_RECORD", "1", records);
    }

    bool old_, isSample_;
    std::string header_, layers_, blocks_, endOfBlock_, entities_, objects_;
};

/// The entities of a block in order.
inline std::vector<EntityId> entitiesOf(const Drawing& drawing, BlockId block) {
    std::vector<EntityId> all;
    drawing.forEachEntity(block, [&](EntityId id) {
        all.push_back(id);
        return true;
    });
    return all;
}
inline std::vector<EntityId> modelEntities(const Drawing& drawing) {
    return entitiesOf(drawing, drawing.modelSpace());
}

/// The groups of an entity in one line, "0=LINE|8=0|...".
inline std::string groupsOf(const Drawing& drawing, EntityId id) {
    std::string line;
    dxf::TagReader reader = drawing.tags(id);
    for (dxf::Tag tag; reader.next(tag);) line += std::to_string(tag.code) + "=" + tag.text() + "|";
    return line;
}

inline bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

}  // namespace drawing
