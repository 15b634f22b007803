#pragma once

#include "desk/drawing/drawing.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// Builds small drawings of R12 from words: "LINE 8 0 10 0 20 0 11 3 21 4" is a group 0 and then code and
/// value in turn. "_" stands for a blank inside a value. Layers: OFF, FROZEN, LOCKED and PLAIN.
class PlainDrawing {
  public:
    PlainDrawing& entity(std::string_view words) { return append(entities_, words); }
    /// Opens a block at a base point; the entities given after it by `inBlock` belong to it.
    PlainDrawing& block(const std::string& name, double baseX = 0, double baseY = 0) {
        closeBlock();
        open_ = name;
        return append(blocks_, "BLOCK 8 0 2 " + name + " 70 0 10 " + std::to_string(baseX) + " 20 " +
                                   std::to_string(baseY));
    }
    PlainDrawing& inBlock(std::string_view words) { return append(blocks_, words); }

    std::unique_ptr<Drawing> make() {
        closeBlock();
        std::string layers;
        append(layers, "TABLE 2 LAYER 70 4");
        append(layers, "LAYER 2 PLAIN 70 0 62 7");
        append(layers, "LAYER 2 OFF 70 0 62 -7");
        append(layers, "LAYER 2 FROZEN 70 1 62 7");
        append(layers, "LAYER 2 LOCKED 70 4 62 7");
        append(layers, "ENDTAB");
        return Drawing::parse(section("TABLES", layers) + section("BLOCKS", blocks_) +
                                  section("ENTITIES", entities_) + "0\nEOF\n",
                              "plain.dxf");
    }

  private:
    PlainDrawing& append(std::string& text, std::string_view words) {
        text += "0\n";
        for (const char c : words) text += c == ' ' ? '\n' : c == '_' ? ' ' : c;
        text += '\n';
        return *this;
    }
    static std::string section(const std::string& name, const std::string& body) {
        return "0\nSECTION\n2\n" + name + "\n" + body + "0\nENDSEC\n";
    }
    void closeBlock() {
        if (!open_.empty()) append(blocks_, "ENDBLK 8 0");
        open_.clear();
    }

    std::string blocks_;
    std::string entities_;
    std::string open_;
};

/// The entities of model space in order.
inline std::vector<EntityId> modelEntities(const Drawing& drawing) {
    std::vector<EntityId> result;
    drawing.forEachEntity(drawing.modelSpace(), [&](EntityId id) {
        result.push_back(id);
        return true;
    });
    return result;
}

}  // namespace drawing
