#include "basic/border.h"

#include "basic/error_state.h"
#include "tests/fakes/error_of.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <new>

namespace basic {
namespace {

using fakes::errorOf;

TEST(Border, GivesEveryFailureANumber) {
    const auto across = [](auto failure) { return errorOf([&] { acrossBorder([&] { throw failure; }); }); };
    const auto code = [](std::errc reason) {
        return std::filesystem::filesystem_error("", std::make_error_code(reason));
    };
    EXPECT_EQ(across(Error(kOverflow)), kOverflow);
    EXPECT_EQ(across(std::bad_alloc()), kOutOfMemory);
    EXPECT_EQ(across(code(std::errc::too_many_symbolic_link_levels)), kPathFileAccess);
    EXPECT_EQ(across(code(std::errc::permission_denied)), kPermissionDenied);
    EXPECT_EQ(across(code(std::errc::io_error)), kDeviceError);
    EXPECT_EQ(across(std::logic_error("ours")), kInternalError);
    EXPECT_EQ(across(1), kInternalError);
}

TEST(Border, LetsAnInterruptionThroughRegimesButNotOutOfADestructor) {
    ErrorState error;
    EXPECT_THROW(error.skip([] { throw Interruption("the script ended"); }), Interruption);
    error.skip([] { throw std::bad_alloc(); });
    EXPECT_EQ(error.number(), kOutOfMemory);
    inDestructor([] { throw Interruption("the script ended"); });
}

}  // namespace
}  // namespace basic
