#include "basic/text.h"
#include "desk/jobs/job.h"
#include "desk/shell/picture_program.h"

#include <algorithm>
#include <charconv>

namespace jobs {

namespace {

/// Options that go to the program that draws, as they stand.
constexpr const char* kHandedOn[] = {"--layout", "--block",         "--window",  "--size",
                                     "--dark",   "--screen-colors", "--weights", "--no-margin"};

/// Whether a text is `count` numbers parted by a character.
template <typename Number>
bool areNumbers(std::string_view text, char separator, int count) {
    for (int i = 0; i < count; ++i) {
        const std::size_t end = std::min(text.find(separator), text.size());
        Number number{};
        const auto [rest, error] = std::from_chars(text.data(), text.data() + end, number);
        if (error != std::errc() || rest != text.data() + end) return false;
        const bool isLast = i + 1 == count;
        if (isLast != (end == text.size())) return false;
        text.remove_prefix(isLast ? end : end + 1);
    }
    return true;
}

}  // namespace

void checkPictureOptions(const Arguments& arguments) {
    const auto require = [&](const char* option, bool isRight) {
        if (arguments.has(option) && !isRight)
            throw UsageError(std::string(option) + ": \"" + arguments.value(option) +
                             "\" is not of the right form");
    };
    require("--size", areNumbers<unsigned>(arguments.value("--size"), 'x', 2));
    require("--window", areNumbers<double>(arguments.value("--window"), ',', 4));
    if (arguments.has("--layout") && arguments.has("--block"))
        throw UsageError("a picture shows --layout or --block, not both");
    shell::requirePictureProgram();
}

void drawPicture(Job& job) {
    std::vector<std::string> options;
    for (const char* option : kHandedOn) {
        if (!job.arguments.has(option)) continue;
        options.emplace_back(option);
        const std::string value = job.arguments.value(option);
        if (!value.empty()) options.back() += "=" + value;
    }
    const shell::PictureGaps gaps = shell::writePicture(job.drawing(), job.output, options);
    job.result.output = job.output;
    if (gaps.hidden > 0) job.result.count("hidden", gaps.hidden);
    std::size_t notDrawn = 0;
    for (const auto& [type, count] : gaps.notDrawn) {
        notDrawn += count;
        job.result.notes.push_back("not drawn: " + std::to_string(count) + " " + type);
    }
    if (notDrawn > 0) job.result.count("notDrawn", notDrawn);
}

}  // namespace jobs
