// Data, language and settings files: read, and written where the add-in writes them. The first byte chooses.
#include "basic/error.h"
#include "extract/block_data_file.h"
#include "fuzz/fuzz_input.h"
#include "session/entry_file.h"
#include "tests/fakes/fake_platform.h"

namespace {

void readData(const std::string& file) {
    extract::BlockDataReader reader(file);
    while (reader.next()) fuzz::require(reader.fields().size() < 1'000'000);
}

/// A value written comes back, whatever else stands in the file.
void writeSetting(const std::string& file) {
    using session::Overwrite;
    fakes::FakePlatform platform;
    session::EntryFiles files(platform);
    for (const char* key : {"Lng", ":Language", "msg_101", "V_0_1"})
        files.value(key, file, 0, "", Overwrite::Always);
    files.hasBareLineFeeds(file);
    files.value("V_0_1", file, -1, "kept", Overwrite::Always);
    fuzz::require(files.value("V_0_1", file, 0, "", Overwrite::Always) == "kept");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Folder folder;
    if (size == 0) return 0;
    const std::string file = folder.write("file", fuzz::text(data + 1, size - 1));
    try {
        data[0] % 2 == 0 ? readData(file) : writeSetting(file);
    } catch (const basic::Error&) {
    }
    return 0;
}
