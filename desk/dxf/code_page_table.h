#pragma once

#include "desk/dxf/encoding.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace dxf {

/// Both directions of one code page, made once, most of them from the system's converter. A character of 0
/// stands for none.
struct Encoding::Table {
    std::array<char16_t, 256> single{};  ///< by byte
    std::array<bool, 256> isLead{};      ///< bytes that begin a character of two
    std::vector<char16_t> pairs;         ///< by lead byte and second byte; empty for single-byte pages

    /// A character's byte or both its bytes, the lead one above; 0 for a character that the page lacks.
    std::uint16_t bytesOf(char16_t character) const {
        const auto& row = rows[character / kRow];
        return row ? (*row)[character % kRow] : 0;
    }
    void setBytes(char16_t character, std::uint16_t bytes);

  private:
    static constexpr std::size_t kRow = 256;
    std::array<std::unique_ptr<std::array<std::uint16_t, kRow>>, 0x10000 / kRow> rows;
};

/// The system converter's name for a code page as $DWGCODEPAGE has it; null for an unknown one.
const char* converterName(std::string_view codePageName);

/// Makes the table of a code page. Of a page that the machine has no converter for, only ASCII is known: all
/// other bytes are kept as they are.
std::shared_ptr<const Encoding::Table> makeTable(const char* converter);

/// The character that \M+nXXXX means: `page` is its n (1 to 5), `bytes` its XXXX; 0 for none.
char32_t multiByteCharacter(int page, std::uint16_t bytes);

}  // namespace dxf
