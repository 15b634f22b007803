#include "basic/text_file.h"

#include "tests/fakes/error_of.h"
#include "tests/fakes/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace basic {
namespace {

namespace fs = std::filesystem;
using fakes::errorOf;

/// Lays root's rights down as long as it lives, since root may read everything.
class CommonUser {
  public:
    CommonUser() { change(kNobody); }
    ~CommonUser() { change(0); }

  private:
    static constexpr uid_t kNobody = 65534;
    void change(uid_t user) const {
        if (wasRoot_ && seteuid(user) != 0) ADD_FAILURE() << "can't change the user";
    }
    const bool wasRoot_ = geteuid() == 0;
};

class TextFile : public testing::Test {
  protected:
    std::string path(std::string_view name) const { return folder_.file(name); }
    std::string write(std::string_view name, std::string_view bytes) const {
        return folder_.write(name, bytes);
    }
    static std::vector<std::string> linesOf(const std::string& path) {
        std::vector<std::string> lines;
        TextReader reader(path);
        while (!reader.atEnd()) lines.push_back(reader.readLine());
        return lines;
    }
    static int readError(const std::string& path) {
        return errorOf([&] { TextReader reader(path); });
    }
    static int writeError(const std::string& path) {
        return errorOf([&] { TextWriter writer(path, TextWriter::Mode::Replace); });
    }

    fakes::TempFolder folder_;
};

using Lines = std::vector<std::string>;

TEST_F(TextFile, ReadsLinesByCarriageReturns) {
    EXPECT_EQ(linesOf(write("a", "un\r\n\r\ntrois\rquatre\r\n")), (Lines{"un", "", "trois", "quatre"}));
    EXPECT_EQ(linesOf(write("b", "bare\nfeeds\n")), (Lines{"bare\nfeeds\n"}));
    EXPECT_EQ(linesOf(write("c", "no end")), (Lines{"no end"}));
    EXPECT_EQ(linesOf(write("d", "")), Lines{});
    EXPECT_EQ(linesOf(write("e", "caf\xE9\r\n")), (Lines{"café"}));
    const std::string line(70000, 'x');  // longer than one chunk
    EXPECT_EQ(linesOf(write("g", line + "\r\n" + line)), (Lines{line, line}));
    TextReader reader(write("f", "x\r"));
    reader.readLine();
    EXPECT_EQ(errorOf([&] { reader.readLine(); }), kInputPastEnd);
}

TEST_F(TextFile, ReadsPairsAcrossChunksAndStopsAtAnEndlessLine) {
    for (const std::size_t length : {65534, 65535, 65536}) {
        const std::string line(length, 'x');
        EXPECT_EQ(linesOf(write("a", line + "\r\n\r\nlast")), (Lines{line, "", "last"})) << length;
        EXPECT_EQ(linesOf(write("b", std::string(line).append("\r").append(line).append("\r"))),
                  (Lines{line, line}))
            << length;
    }
    write("long", "");
    fs::resize_file(path("long"), std::uintmax_t{1} << 34);  // a hole of 16 GB
    TextReader reader(path("long"));
    EXPECT_EQ(errorOf([&] { reader.readLine(); }), kOutOfStringSpace);
}

TEST_F(TextFile, RefusesAPipeAndADevice) {
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(readError(path("pipe")), kPathFileAccess);
    EXPECT_EQ(writeError(path("pipe")), kPathFileAccess);
    EXPECT_EQ(readError("/dev/zero"), kPathFileAccess);
    for (const std::string& name : {path("pipe"), std::string("/dev/zero"), folder_.path()})
        EXPECT_EQ(errorOf([&] { readBytes(name); }), kPathFileAccess) << name;
}

TEST_F(TextFile, ReadsAWholeFileUpToALimit) {
    const std::string bytes = std::string(70000, 'x') + "\n\xE9";
    EXPECT_EQ(readBytes(write("a", bytes)), bytes);
    EXPECT_EQ(readBytes(write("b", "")), "");
    EXPECT_EQ(errorOf([&] { readBytes(path("none")); }), kFileNotFound);
    fs::resize_file(path("b"), std::uintmax_t{1} << 34);
    EXPECT_EQ(errorOf([&] { readBytes(path("b")); }), kOutOfStringSpace);
}

TEST_F(TextFile, WritesAndAppendsInTheCodePage) {
    const std::string file = write("a", "old content that is longer\r\n");
    TextWriter replacing(file, TextWriter::Mode::Replace);
    replacing.writeLine("N°");
    replacing.close();
    replacing.close();
    EXPECT_EQ(errorOf([&] { replacing.writeLine("late"); }), kBadFileName);
    TextWriter(file, TextWriter::Mode::Append).writeLine("Ж");  // closed when dropped
    EXPECT_EQ(folder_.read("a"), "N\xB0\r\n?\r\n");
}

TEST_F(TextFile, NamesTheFailure) {
    const std::pair<std::string, int> rows[] = {
        {"", kBadFileName},
        {std::string("a\0b", 3), kBadFileName},
        {path(std::string(300, 'n')), kBadFileName},
        {path("none"), kFileNotFound},
        {"no such file beside us", kFileNotFound},
        {path("none/file"), kPathNotFound},
        {write("plain", "") + "/file", kPathNotFound},
        {folder_.path(), kPathFileAccess},
    };
    for (const auto& [name, error] : rows) EXPECT_EQ(readError(name), error) << name;
    EXPECT_EQ(writeError(path("none/file")), kPathNotFound);
    EXPECT_EQ(writeError(folder_.path()), kPathFileAccess);
}

TEST_F(TextFile, RefusesWhatMayNotBeRead) {
    const std::string file = write("locked", "x");
    fs::permissions(file, fs::perms::none);
    fs::permissions(folder_.path(), fs::perms::all);
    const CommonUser user;
    EXPECT_EQ(readError(file), kPermissionDenied);
    EXPECT_EQ(writeError(file), kPermissionDenied);
}

TEST_F(TextFile, ReportsAFullDiskAtCloseAndWhileWriting) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no full device here";
    TextWriter small("/dev/full", TextWriter::Mode::Append);
    small.writeLine("fits the buffer");
    EXPECT_EQ(errorOf([&] { small.close(); }), kDiskFull);
    TextWriter large("/dev/full", TextWriter::Mode::Append);
    EXPECT_EQ(errorOf([&] { large.writeLine(std::string(1 << 20, 'x')); }), kDiskFull);
    EXPECT_EQ(errorOf([&] { large.close(); }), kDeviceError) << "told again to who skipped it";
}

}  // namespace
}  // namespace basic
