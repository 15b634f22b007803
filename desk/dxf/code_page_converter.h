#pragma once

#include <memory>
#include <string_view>

namespace dxf {

/// The system's converter from one code page to UTF-16, by the converter's name as `kPages` of
/// code_page_table.cpp has it.
class CodePageConverter {
  public:
    explicit CodePageConverter(std::string_view name);
    ~CodePageConverter();
    CodePageConverter(const CodePageConverter&) = delete;
    CodePageConverter& operator=(const CodePageConverter&) = delete;

    /// Whether the machine has a converter for the page.
    bool isOpen() const;
    /// The character that one or two bytes are alone, or 0.
    char16_t character(std::string_view bytes);

  private:
    struct System;
    std::unique_ptr<System> system_;
};

}  // namespace dxf
