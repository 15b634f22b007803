#pragma once

#include <algorithm>
#include <string>

namespace bench {

/// Drawings that ask for more than a screen can show.
enum class Hostile { NestedBlocks, LongLine, LargeBlock, Fills, Lines, Hatches, kCount };

inline std::string at(double x, double y, int code = 10) {
    return " " + std::to_string(code) + " " + std::to_string(x) + " " + std::to_string(code + 10) + " " +
           std::to_string(y);
}

inline std::string block(const std::string& name) { return " 0 BLOCK 8 0 70 0 10 0 20 0 2 " + name; }

inline std::string hostileName(Hostile kind) {
    static constexpr const char* kNames[] = {"nested blocks", "long line", "large block",
                                             "fills",         "lines",     "hatches"};
    return kNames[static_cast<int>(kind)];
}

/// The text of one in DXF of R12.
inline std::string hostile(Hostile kind) {
    // Blocks and entities as code and value in turn, which stand on lines of their own in a file.
    std::string blocks;
    std::string entities;
    unsigned seed = 1;
    const auto random = [&] {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % 1'000'000 / 1000.0;
    };
    const auto line = [&] {
        const double x = random();
        const double y = random();
        return " 0 LINE 8 0" + at(x, y) + at(x + random() / 20, y + random() / 20, 11);
    };
    switch (kind) {
        case Hostile::NestedBlocks: {
            // Each holds ten of the one before: 10^9 lines.
            blocks = block("B0") + " 0 LINE 8 0 10 0 20 0 11 50 21 30 0 ENDBLK";
            for (int level = 1; level < 10; ++level) {
                blocks += block("B" + std::to_string(level));
                for (int copy = 0; copy < 10; ++copy) {
                    blocks +=
                        " 0 INSERT 8 0 2 B" + std::to_string(level - 1) + at(random() / 4, random() / 4);
                }
                blocks += " 0 ENDBLK";
            }
            entities = " 0 INSERT 8 0 2 B9 10 0 20 0";
            break;
        }
        case Hostile::LongLine: {
            entities = " 0 LWPOLYLINE 8 0 90 1000000 70 0";
            for (int i = 0; i < 1'000'000; ++i) entities += at(random(), random());
            break;
        }
        case Hostile::LargeBlock:
            blocks = block("ALL");
            for (int i = 0; i < 200'000; ++i) blocks += line();
            blocks += " 0 ENDBLK";
            for (int i = 0; i < 20; ++i) entities += " 0 INSERT 8 0 2 ALL" + at(i, i);
            break;
        case Hostile::Fills:
            for (int i = 0; i < 20'000; ++i) {
                const double x = random();
                entities += " 0 SOLID 8 0 62 " + std::to_string(i % 7 + 1) + at(x, x) + at(x + 300, x, 11) +
                            at(x, x + 300, 12) + at(x + 300, x + 300, 13);
            }
            break;
        case Hostile::Lines:
            for (int i = 0; i < 400'000; ++i) entities += line();
            break;
        default:
            for (int i = 0; i < 300; ++i) {
                const double x = random();
                entities += " 0 HATCH 8 0 10 0 20 0 30 0 2 LINE 70 0 71 0 91 1 92 3 72 0 73 1 93 4" +
                            at(x, 0) + at(x + 400, 0) + at(x + 400, 1000) + at(x, 1000) +
                            " 97 0 75 0 76 1 52 0 41 1 77 0 78 1 53 0 43 0 44 " +
                            std::to_string(i % 10 / 10.0) + " 45 0 46 3 79 0 98 0";
            }
            break;
    }
    std::string text =
        "0 SECTION 2 BLOCKS" + blocks + " 0 ENDSEC 0 SECTION 2 ENTITIES" + entities + " 0 ENDSEC 0 EOF\n";
    std::replace(text.begin(), text.end(), ' ', '\n');
    return text;
}

}  // namespace bench
