#include "desk/jobs/pool.h"

#include "tests/fakes/temp_folder.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <new>
#include <unistd.h>

namespace jobs {
namespace {

TEST(Pool, AWorkerThatEndsFailsItsPieceAlone) {
    const fakes::TempFolder folder;
    const std::string kept = folder.write("kept", "");
    const pid_t parent = getpid();
    std::vector<std::string> told;
    const std::atomic<bool> stop = false;
    const auto work = [&](std::size_t piece, std::size_t) {
        EXPECT_NE(getpid(), parent);
        if (piece == 2) throw std::bad_alloc();
        if (piece == 5) kill(getpid(), SIGKILL);
        Result result;
        result.drawing = std::to_string(piece);
        return result;
    };
    const auto done = [&](std::size_t piece, const Result& result) {
        EXPECT_EQ(getpid(), parent);
        told.push_back(result.state == Result::State::Failed ? result.reason : result.drawing);
        EXPECT_EQ(told.size(), piece + 1);
    };
    EXPECT_EQ(runPool(8, 3, work, done, stop), 8u);
    EXPECT_EQ(told,
              (std::vector<std::string>{"0", "1", "the program broke off on this drawing (exit code 1)", "3",
                                        "4", "the program broke off on this drawing (signal 9)", "6", "7"}));
    EXPECT_TRUE(std::filesystem::exists(kept)) << "a worker took the parent's folder away";
}

}  // namespace
}  // namespace jobs
