#include "session/settings.h"

#include <string>

namespace session {

std::string IniValue(const Session& session, const std::string& Key, std::string& File, std::int16_t Mode,
                     const std::string& Value) {
    if (File.empty()) File = session.IniFile;
    return session.entryFiles().value(Key, File, Mode, Value, Overwrite::Always);
}

std::string readSetting(const Session& session, const std::string& key) {
    std::string file;
    return IniValue(session, key, file, kReadEntry, {});
}

void writeSetting(const Session& session, const std::string& key, const std::string& value) {
    std::string file;
    IniValue(session, key, file, kWriteEntry, value);
}

std::string tableKey(int row, int column) {
    return "V_" + std::to_string(row) + "_" + std::to_string(column);
}

basic::Variant ReadRegistryValue(platform::Platform& platform, platform::RegistryRoot Root,
                                 const std::string& KeyPath, const std::string& ValueName) {
    const auto value = platform.queryRegistry(Root, KeyPath, ValueName);
    if (!value) return {};
    const std::string& bytes = value->bytes;
    switch (value->type) {
        case platform::kRegistryString:
            return bytes.substr(0, bytes.find('\0'));
        case platform::kRegistryBinary: {
            const auto byte = [&](std::size_t at) {
                return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
            };
            return std::to_string(static_cast<std::int16_t>(byte(0) | byte(1) << 8));
        }
        default:
            return {};
    }
}

}  // namespace session
