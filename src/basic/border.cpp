#include "basic/border.h"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <new>
#include <system_error>

namespace basic {

namespace {

ErrorNumber numberOf(const std::error_code& code) {
    if (code == std::errc::no_such_file_or_directory) return kFileNotFound;
    if (code == std::errc::not_a_directory) return kPathNotFound;
    if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted ||
        code == std::errc::read_only_file_system)
        return kPermissionDenied;
    if (code == std::errc::is_a_directory || code == std::errc::too_many_symbolic_link_levels)
        return kPathFileAccess;
    if (code == std::errc::filename_too_long || code == std::errc::invalid_argument) return kBadFileName;
    if (code == std::errc::no_space_on_device || code == std::errc::file_too_large) return kDiskFull;
    if (code == std::errc::not_enough_memory) return kOutOfMemory;
    return kDeviceError;
}

std::atomic<int> shortages = 0;

[[noreturn]] void raiseShortage() {
    ++shortages;
    throw Error(kOutOfMemory);
}

}  // namespace

int memoryShortages() { return shortages; }

void rethrowAcrossBorder() {
    try {
        throw;
    } catch (const Error&) {
        throw;
    } catch (const Interruption&) {
        throw;
    } catch (const std::bad_alloc&) {
        raiseShortage();
    } catch (const std::length_error&) {
        raiseShortage();
    } catch (const std::system_error& error) {  // files above all: its text names them
        throw Error(numberOf(error.code()), error.what());
    } catch (const std::out_of_range& error) {
        throw Error(kSubscript, error.what());
    } catch (const std::exception& error) {
        throw Error(kInternalError, std::string(standardDescription(kInternalError)) + ": " + error.what());
    } catch (...) {
        throw Error(kInternalError);
    }
}

}  // namespace basic
