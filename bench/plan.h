#pragma once

#include <cstdio>
#include <string>

namespace bench {

/// Text of a plan in DXF of R12: `entities` lines, polylines, arcs, circles and texts in turn and
/// `references` of a door with three attributes, over an area of 1000 x 1000.
inline std::string plan(int entities, int references) {
    std::string out;
    out.reserve(static_cast<std::size_t>(entities) * 160 + static_cast<std::size_t>(references) * 700);
    const auto add = [&](auto... words) {
        char text[600];
        const int size = std::snprintf(text, sizeof text, words...);
        out.append(text, static_cast<std::size_t>(size));
    };
    unsigned seed = 1;
    const auto random = [&] {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % 1'000'000 / 1000.0;
    };
    add("%s", "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n8\n");
    for (int i = 0; i < 8; ++i) add("0\nLAYER\n2\nL%d\n70\n0\n62\n%d\n6\nCONTINUOUS\n", i, i + 1);
    add("%s", "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nDOOR\n70\n2\n10\n0\n20\n0\n");
    add("%s",
        "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n0\n21\n0.9\n0\nARC\n8\n0\n10\n0\n20\n0\n40\n0.9\n50\n0\n51\n90\n");
    add("%s", "0\nSOLID\n8\n0\n10\n-0.05\n20\n0\n11\n0.05\n21\n0\n12\n-0.05\n22\n0.9\n13\n0.05\n23\n0.9\n");
    for (const char* tag : {"MARK", "WIDTH", "FIRE"})
        add("0\nATTDEF\n8\n0\n10\n0.1\n20\n0.1\n40\n0.1\n1\nx\n3\n?\n2\n%s\n70\n0\n", tag);
    add("%s", "0\nENDBLK\n8\n0\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n");
    for (int i = 0; i < entities; ++i) {
        const double x = random();
        const double y = random();
        switch (i % 5) {
            case 0:
                add("0\nLINE\n8\nL%d\n10\n%.3f\n20\n%.3f\n11\n%.3f\n21\n%.3f\n", i % 8, x, y, x + 3,
                    y + i % 4);
                break;
            case 1:
                add("0\nPOLYLINE\n8\nL%d\n66\n1\n70\n1\n", i % 8);
                for (const auto& [dx, dy] :
                     {std::pair(0, 0), std::pair(4, 0), std::pair(4, 3), std::pair(0, 3)})
                    add("0\nVERTEX\n8\n0\n10\n%.3f\n20\n%.3f\n", x + dx, y + dy);
                add("%s", "0\nSEQEND\n8\n0\n");
                break;
            case 2:
                add("0\nARC\n8\nL%d\n10\n%.3f\n20\n%.3f\n40\n1.5\n50\n10\n51\n200\n", i % 8, x, y);
                break;
            case 3:
                add("0\nCIRCLE\n8\nL%d\n10\n%.3f\n20\n%.3f\n40\n0.8\n", i % 8, x, y);
                break;
            default:
                add("0\nTEXT\n8\nL%d\n10\n%.3f\n20\n%.3f\n40\n0.4\n1\nRoom %d\n", i % 8, x, y, i);
                break;
        }
    }
    for (int i = 0; i < references; ++i) {
        const double x = random();
        const double y = random();
        add("0\nINSERT\n8\nL%d\n66\n1\n2\nDOOR\n10\n%.3f\n20\n%.3f\n50\n%d\n", i % 8, x, y, i % 4 * 90);
        int row = 0;
        for (const char* tag : {"MARK", "WIDTH", "FIRE"})
            add("0\nATTRIB\n8\n0\n10\n%.3f\n20\n%.3f\n40\n0.1\n1\nP-%d\n2\n%s\n70\n0\n", x, y + 0.15 * ++row,
                i, tag);
        add("%s", "0\nSEQEND\n8\n0\n");
    }
    add("%s", "0\nENDSEC\n0\nEOF\n");
    return out;
}

}  // namespace bench
