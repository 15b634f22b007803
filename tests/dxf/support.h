#pragma once

#include "desk/dxf/scanner.h"
#include "desk/dxf/source.h"
#include "desk/dxf/tag_writer.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

/// Lines of an ASCII drawing from a text with blanks for line ends: "0 SECTION 2 ENTITIES 0 ENDSEC 0 EOF".
inline std::string lines(std::string_view words) {
    std::string text;
    for (const char character : words) text.push_back(character == ' ' ? '\n' : character);
    return text + "\n";
}

/// All groups of a source as "code=text", comments included.
inline std::vector<std::string> groupTexts(const dxf::Source& source) {
    std::vector<std::string> texts;
    dxf::TagReader reader(source.tags());
    for (dxf::Tag tag; reader.next(tag);) texts.push_back(std::to_string(tag.code) + "=" + tag.text());
    return texts;
}

/// The sections of a whole pass.
inline dxf::Outline readOutline(const dxf::TagSource& source, dxf::Mode mode, dxf::Findings& findings) {
    dxf::Scanner scanner(source, mode, findings);
    for (dxf::Tag tag; scanner.next(tag) != dxf::Event::End;) {
    }
    return scanner.takeOutline();
}

/// The whole drawing converted to another format by the writer.
inline std::string convert(const dxf::Source& source, const dxf::Format& format) {
    std::string bytes;
    if (format.binary) bytes = dxf::kBinarySentinel;
    dxf::TagWriter writer(format, bytes);
    dxf::TagReader reader(source.tags());
    for (dxf::Tag tag; reader.next(tag);) writer.copy(tag);
    return bytes;
}

/// What the statement raised, or "" for nothing.
template <typename Statement>
std::string failureOf(Statement&& statement) {
    try {
        statement();
        return "";
    } catch (const basic::Error& error) {
        return error.description();
    }
}

inline std::vector<std::string> corpusFiles() {
    std::vector<std::string> files;
    const std::filesystem::path folder = VORLANE_ROOT "/../shared/corpus";
    if (!std::filesystem::exists(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".dxf") files.push_back(entry.path());
    return files;
}
