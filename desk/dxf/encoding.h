#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace dxf {

/// How the bytes of a drawing's texts stand for characters: UTF-8 from R2007 on, before it the code page that
/// $DWGCODEPAGE names. Cheap to copy; never changes.
class Encoding {
  public:
    /// UTF-8.
    Encoding() = default;
    /// By the name as $DWGCODEPAGE has it ("ANSI_1252", "dos850", "ANSI_932", ... in any case); an unknown
    /// name gives ANSI_1252, see `isKnown`.
    static Encoding codePage(std::string_view name);
    static bool isKnown(std::string_view codePageName);

    bool isUtf8() const { return table_ == nullptr; }
    /// Whether the same bytes mean the same text.
    bool sameAs(const Encoding& other) const { return name_ == other.name_; }

    /// Text bytes of a file as UTF-8, with the escapes \U+XXXX and \M+nXXXX taken as their characters (but
    /// those of control characters stay) and ^I, ^J and their like as the control characters, "^ " as the
    /// caret. Bytes that stand for nothing are kept. Returns `raw` itself where nothing needs decoding, else
    /// a view of `scratch`.
    std::string_view decode(std::string_view raw, std::string& scratch) const;
    std::string decode(std::string_view raw) const;

    /// Appends UTF-8 text as bytes for a file: a character that the encoding lacks as \U+XXXX, a control
    /// character as its ^ escape, so that a value never breaks its line, a caret as "^ ".
    void encode(std::string_view text, std::string& bytes) const;
    std::string encode(std::string_view text) const;

    struct Table;  ///< both directions of one code page

  private:
    std::string_view name_ = "UTF-8";  ///< the converter's name
    std::shared_ptr<const Table> table_;
};

}  // namespace dxf
