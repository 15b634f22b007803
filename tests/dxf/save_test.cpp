#include "desk/dxf/file.h"
#include "support.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/temp_folder.h"

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Save : public testing::Test {
  protected:
    std::string path(std::string_view name) const { return folder_.file(name); }
    static void save(const std::string& path, std::string_view text) {
        dxf::saveAtomically(path, std::vector<std::string_view>{text.substr(0, 1), "", text.substr(1)});
    }
    static int saveNumber(const std::string& path, std::string_view text = "new") {
        return fakes::errorOf([&] { save(path, text); });
    }
    int fileCount() const {
        return static_cast<int>(std::distance(fs::directory_iterator(folder_.path()), {}));
    }
    void allow(std::string_view name, int rights) const {
        fs::permissions(path(name), static_cast<fs::perms>(rights));
    }
    /// The result of `act` in a process of its own, which may lay rights down.
    template <typename Act>
    static int inChild(Act&& act) {
        const pid_t child = fork();
        if (child == 0) _exit(act());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fakes::TempFolder folder_;
};

bool becomeNobody() { return geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0); }

}  // namespace

TEST_F(Save, replacesAndKeepsRights) {
    folder_.write("a.dxf", "old");
    allow("a.dxf", 0640);
    save(path("a.dxf"), "new text");
    EXPECT_EQ(folder_.read("a.dxf"), "new text");
    EXPECT_EQ(fs::status(path("a.dxf")).permissions(), static_cast<fs::perms>(0640));
    save(path("b.dxf"), "fresh");
    EXPECT_EQ(folder_.read("b.dxf"), "fresh");
    EXPECT_EQ(fileCount(), 2);
}

TEST_F(Save, keepsAttributesAndTellsOfOtherNames) {
    folder_.write("a.dxf", "old");
    allow("a.dxf", 0600);
    // The owner reads and writes, user 1234 reads (version 2; tag, bits, id of each entry).
    const unsigned char list[] = {2, 0,    0,   0,   1,   0,   6,  0, 255, 255, 255, 255, 2,   0,  4,
                                  0, 0xD2, 4,   0,   0,   4,   0,  0, 0,   255, 255, 255, 255, 16, 0,
                                  4, 0,    255, 255, 255, 255, 32, 0, 0,   0,   255, 255, 255, 255};
    const std::pair<const char*, std::string> attributes[] = {
        {"user.note", "kept"},
        {"system.posix_acl_access", {reinterpret_cast<const char*>(list), sizeof list}}};
    for (const auto& [name, value] : attributes) {
        if (setxattr(path("a.dxf").c_str(), name, value.data(), value.size(), 0) != 0)
            GTEST_SKIP() << "the temporary folder takes no " << name;
    }
    fs::create_hard_link(path("a.dxf"), path("b.dxf"));
    EXPECT_TRUE(dxf::saveAtomically(path("a.dxf"), std::vector<std::string_view>{"new"}).otherNames);
    EXPECT_EQ(folder_.read("b.dxf"), "old");
    for (const auto& [name, value] : attributes) {
        std::string kept(100, 0);
        kept.resize(static_cast<std::size_t>(
            std::max<ssize_t>(getxattr(path("a.dxf").c_str(), name, kept.data(), kept.size()), 0)));
        EXPECT_EQ(kept, value) << name;
    }
}

TEST_F(Save, writesInPlaceWhereTheFolderTakesNoFiles) {
    fs::create_directory(path("folder"));
    fs::create_directory(path("backup"));
    allow("backup", 0777);
    allow("", 0755);
    folder_.write("folder/a.dxf", "the old text");
    allow("folder/a.dxf", 0666);
    allow("folder", 0555);
    const auto inPlace = [&](std::string_view text) {
        return inChild([&] {
            if (!becomeNobody()) return 99;
            const std::string_view pieces[] = {text};
            return dxf::saveAtomically(path("folder/a.dxf"), pieces, path("backup")).inPlace ? 1 : 0;
        });
    };
    for (const char* text : {"new", "a longer text than the old one"}) {
        EXPECT_EQ(inPlace(text), 1);
        EXPECT_EQ(folder_.read("folder/a.dxf"), text);
        EXPECT_TRUE(fs::is_empty(path("backup")));
    }
    const int tooLarge = inChild([&] {
        const rlimit limit{50000, 50000};
        std::signal(SIGXFSZ, SIG_IGN);
        const std::string large(100000, 'x');
        const std::string_view pieces[] = {large};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || !becomeNobody()) return 99;
        return fakes::errorOf([&] { dxf::saveAtomically(path("folder/a.dxf"), pieces, path("backup")); });
    });
    EXPECT_EQ(tooLarge, basic::kDiskFull);
    EXPECT_EQ(folder_.read("folder/a.dxf"), "a longer text than the old one");
}

TEST_F(Save, manyPiecesInOrder) {
    std::vector<std::string> parts;
    std::string whole;
    for (int i = 0; i < 5000; ++i) {
        parts.push_back(std::to_string(i) + (i % 7 == 0 ? std::string(9000, 'x') : "\n"));
        whole += parts.back();
    }
    dxf::saveAtomically(path("a.dxf"), std::vector<std::string_view>(parts.begin(), parts.end()));
    EXPECT_TRUE(folder_.read("a.dxf") == whole);
    std::vector<std::string_view> neighbours;
    for (std::size_t at = 0; at < whole.size(); at += 1001)
        neighbours.push_back(std::string_view(whole).substr(at, 1001));
    dxf::saveAtomically(path("a.dxf"), neighbours);
    EXPECT_TRUE(folder_.read("a.dxf") == whole);
}

TEST_F(Save, linksStay) {
    fs::create_directory(path("store"));
    folder_.write("store/a.dxf", "old");
    fs::create_symlink("store/a.dxf", path("link.dxf"));
    fs::create_symlink("store/none.dxf", path("dangling.dxf"));
    fs::create_symlink("loop.dxf", path("loop.dxf"));
    save(path("link.dxf"), "new");
    save(path("dangling.dxf"), "made");
    EXPECT_TRUE(fs::is_symlink(path("link.dxf")) && fs::is_symlink(path("dangling.dxf")));
    EXPECT_EQ(folder_.read("store/a.dxf"), "new");
    EXPECT_EQ(folder_.read("store/none.dxf"), "made");
    EXPECT_EQ(saveNumber(path("loop.dxf")), basic::kBadFileName);
}

TEST_F(Save, whatCantBeWritten) {
    const std::pair<std::string, int> rows[] = {
        {folder_.path(), basic::kPathFileAccess},
        {path(""), basic::kPathFileAccess},
        {"/dev/null", basic::kPathFileAccess},
        {path("missing/a.dxf"), basic::kPathNotFound},
        {path(std::string(300, 'x')), basic::kBadFileName},
        {"", basic::kBadFileName},
    };
    for (const auto& [name, error] : rows) EXPECT_EQ(saveNumber(name), error) << name;
    EXPECT_EQ(fileCount(), 0);
}

TEST_F(Save, whateverFailsTheFileStays) {
    folder_.write("a.dxf", "old");
    const auto asNobody = [&] { return becomeNobody() ? saveNumber(path("a.dxf")) : 99; };
    allow("a.dxf", 0444);
    allow("", 0777);
    EXPECT_EQ(inChild(asNobody), basic::kPermissionDenied) << "a write-protected file";
    allow("a.dxf", 0666);
    allow("", 0555);
    EXPECT_EQ(inChild(asNobody), basic::kPermissionDenied) << "a write-protected folder";
    allow("", 0755);
    const std::string large(100000, 'x');
    const int tooLarge = inChild([&] {
        const rlimit limit{50000, 50000};
        std::signal(SIGXFSZ, SIG_IGN);
        return setrlimit(RLIMIT_FSIZE, &limit) == 0 ? saveNumber(path("a.dxf"), large) : 99;
    });
    EXPECT_EQ(tooLarge, basic::kDiskFull);
    EXPECT_EQ(folder_.read("a.dxf"), "old");
    EXPECT_EQ(fileCount(), 1) << "the unfinished file is gone";
}

TEST_F(Save, fullDiskLeavesTheOldOne) {
    if (mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "no right to mount a small disk";
    folder_.write("a.dxf", "old");
    const std::string large(100000, 'x');
    EXPECT_EQ(saveNumber(path("a.dxf"), large), basic::kDiskFull);
    EXPECT_EQ(failureOf([&] { save(path("a.dxf"), large); }), path("a.dxf") + ": the disk is full");
    EXPECT_EQ(folder_.read("a.dxf"), "old");
    EXPECT_EQ(fileCount(), 1);
    EXPECT_EQ(saveNumber(path("a.dxf"), "small"), 0);
    umount(folder_.path().c_str());
}

TEST_F(Save, readingFailsClearly) {
    const auto failure = [](const std::string& name) { return failureOf([&] { dxf::Source::open(name); }); };
    EXPECT_EQ(failure(path("none.dxf")), path("none.dxf") + ": there is no such file");
    EXPECT_EQ(failure(path("none/a.dxf")), path("none/a.dxf") + ": there is no such folder");
    EXPECT_EQ(failure(folder_.path()), folder_.path() + ": this is a folder, not a file");
    EXPECT_EQ(failure("/dev/zero"), "/dev/zero: this is a device, not a file");
    folder_.write("secret.dxf", "0\nSECTION\n");
    allow("secret.dxf", 0);
    allow("", 0755);
    const bool told = inChild(
        [&] { return becomeNobody() && failure(path("secret.dxf")).ends_with(": permission denied"); });
    EXPECT_TRUE(told);
}
