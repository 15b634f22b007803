#include "desk/dxf/file.h"
#include "support.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Save : public testing::Test {
  protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "vorlane-save-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    void TearDown() override { fs::remove_all(folder_); }

    std::string path(const char* name) const { return folder_ / name; }
    static void write(const std::string& path, std::string_view text) { std::ofstream(path) << text; }
    static std::string read(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }
    static void save(const std::string& path, std::string_view text) {
        dxf::saveAtomically(path, std::vector<std::string_view>{text.substr(0, 1), "", text.substr(1)});
    }
    static std::int32_t saveNumber(const std::string& path, std::string_view text = "new") {
        try {
            save(path, text);
            return 0;
        } catch (const basic::Error& error) {
            return error.number();
        }
    }
    int fileCount() const {
        return static_cast<int>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
    }
    /// Saves in a process of its own after `prepare`, which may take rights away; returns the error's number.
    template <typename Prepare>
    static int saveInChild(const std::string& path, std::string_view text, Prepare&& prepare) {
        const pid_t child = fork();
        if (child == 0) _exit(prepare() ? saveNumber(path, text) : 99);
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path folder_;
};

bool becomeNobody() { return geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0); }

}  // namespace

TEST_F(Save, replacesAndKeepsRights) {
    write(path("a.dxf"), "old");
    fs::permissions(path("a.dxf"), static_cast<fs::perms>(0640));
    save(path("a.dxf"), "new text");
    EXPECT_EQ(read(path("a.dxf")), "new text");
    EXPECT_EQ(fs::status(path("a.dxf")).permissions(), static_cast<fs::perms>(0640));
    save(path("b.dxf"), "fresh");
    EXPECT_EQ(read(path("b.dxf")), "fresh");
    EXPECT_EQ(fileCount(), 2);
}

TEST_F(Save, manyPiecesInOrder) {
    std::vector<std::string> parts;
    for (int i = 0; i < 5000; ++i)
        parts.push_back(std::to_string(i) + (i % 7 == 0 ? std::string(9000, 'x') : "\n"));
    const std::vector<std::string_view> pieces(parts.begin(), parts.end());
    std::string whole;
    for (const std::string& part : parts) whole += part;
    dxf::saveAtomically(path("a.dxf"), pieces);
    EXPECT_TRUE(read(path("a.dxf")) == whole);

    // Neighbours in memory and pieces that overlap nothing come out the same.
    std::vector<std::string_view> cuts;
    for (std::size_t at = 0; at < whole.size(); at += 1001)
        cuts.push_back(std::string_view(whole).substr(at, 1001));
    dxf::saveAtomically(path("a.dxf"), cuts);
    EXPECT_TRUE(read(path("a.dxf")) == whole);
}

TEST_F(Save, linksStay) {
    fs::create_directory(path("store"));
    write(path("store/a.dxf"), "old");
    fs::create_symlink("store/a.dxf", path("link.dxf"));
    fs::create_symlink("store/none.dxf", path("dangling.dxf"));
    fs::create_symlink("loop.dxf", path("loop.dxf"));
    save(path("link.dxf"), "new");
    save(path("dangling.dxf"), "made");
    EXPECT_TRUE(fs::is_symlink(path("link.dxf")) && fs::is_symlink(path("dangling.dxf")));
    EXPECT_EQ(read(path("store/a.dxf")), "new");
    EXPECT_EQ(read(path("store/none.dxf")), "made");
    EXPECT_EQ(saveNumber(path("loop.dxf")), basic::kBadFileName);
}

TEST_F(Save, whatCantBeWritten) {
    EXPECT_EQ(saveNumber(folder_), basic::kPathFileAccess);
    EXPECT_EQ(saveNumber(path("")), basic::kPathFileAccess);
    EXPECT_EQ(saveNumber("/dev/null"), basic::kPathFileAccess);
    EXPECT_EQ(saveNumber(path("missing/a.dxf")), basic::kPathNotFound);
    EXPECT_EQ(saveNumber(path(std::string(300, 'x').c_str())), basic::kBadFileName);
    EXPECT_EQ(saveNumber(""), basic::kBadFileName);
    EXPECT_EQ(fileCount(), 0);
}

TEST_F(Save, withoutRightsTheFileStays) {
    write(path("a.dxf"), "old");
    fs::permissions(path("a.dxf"), static_cast<fs::perms>(0444));
    fs::permissions(folder_, static_cast<fs::perms>(0777));
    EXPECT_EQ(saveInChild(path("a.dxf"), "new", becomeNobody), basic::kPermissionDenied)
        << "a write-protected file";
    fs::permissions(path("a.dxf"), static_cast<fs::perms>(0666));
    fs::permissions(folder_, static_cast<fs::perms>(0555));
    EXPECT_EQ(saveInChild(path("a.dxf"), "new", becomeNobody), basic::kPermissionDenied)
        << "a write-protected folder";
    fs::permissions(folder_, static_cast<fs::perms>(0755));
    EXPECT_EQ(read(path("a.dxf")), "old");
    EXPECT_EQ(fileCount(), 1);
}

TEST_F(Save, fileTooLargeLeavesTheOldOne) {
    write(path("a.dxf"), "old");
    const std::string large(100000, 'x');
    const int number = saveInChild(path("a.dxf"), large, [] {
        const rlimit limit{50000, 50000};
        std::signal(SIGXFSZ, SIG_IGN);
        return setrlimit(RLIMIT_FSIZE, &limit) == 0;
    });
    EXPECT_EQ(number, basic::kDiskFull);
    EXPECT_EQ(read(path("a.dxf")), "old");
    EXPECT_EQ(fileCount(), 1) << "the unfinished file is gone";
}

TEST_F(Save, fullDiskLeavesTheOldOne) {
    if (mount("tmpfs", folder_.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "no right to mount a small disk";
    write(path("a.dxf"), "old");
    const std::string large(100000, 'x');
    std::string text;
    EXPECT_EQ(saveNumber(path("a.dxf"), large), basic::kDiskFull);
    EXPECT_EQ(failureOf([&] { save(path("a.dxf"), large); }), path("a.dxf") + ": the disk is full");
    EXPECT_EQ(read(path("a.dxf")), "old");
    EXPECT_EQ(fileCount(), 1);
    EXPECT_EQ(saveNumber(path("a.dxf"), "small"), 0);
    umount(folder_.c_str());
}

TEST_F(Save, readingFailsClearly) {
    const auto failure = [](const std::string& name) { return failureOf([&] { dxf::Source::open(name); }); };
    EXPECT_EQ(failure(path("none.dxf")), path("none.dxf") + ": there is no such file");
    EXPECT_EQ(failure(path("none/a.dxf")), path("none/a.dxf") + ": there is no such folder");
    EXPECT_EQ(failure(folder_), folder_.string() + ": this is a folder, not a file");
    EXPECT_EQ(failure("/dev/zero"), "/dev/zero: this is a device, not a file");
    write(path("secret.dxf"), "0\nSECTION\n");
    fs::permissions(path("secret.dxf"), fs::perms::none);
    fs::permissions(folder_, static_cast<fs::perms>(0755));
    const pid_t child = fork();
    if (child == 0)
        _exit(becomeNobody() && failure(path("secret.dxf")).ends_with(": permission denied") ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}
