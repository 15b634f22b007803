#include "desk/shell/install_folder.h"

#include "basic/error.h"
#include "basic/path.h"
#include "basic/text.h"
#include "basic/text_file.h"
#include "desk/dxf/file.h"

#include <cstdint>
#include <ctime>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <vector>

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr const char* kSettingsFile = "Vorlane.ini";
/// What was delivered, a line each: checksum, blank, path below the folder.
constexpr const char* kDeliveryList = "delivered.txt";
/// What `statesOf` said when all was in order.
constexpr const char* kDeliveryStates = "delivered.states";

std::string readBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    if (size <= 0) return {};
    std::string bytes(static_cast<std::size_t>(size), '\0');
    file.seekg(0);
    file.read(bytes.data(), size);
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// FNV-1a over 64 bits: enough to tell a changed file from an unchanged one.
std::string checksum(const std::string& bytes) {
    std::uint64_t hash = 14695981039346656037u;
    for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    std::ostringstream text;
    text << std::hex << hash;
    return text.str();
}

[[noreturn]] void fail(const fs::path& folder, const std::string& why) {
    throw basic::Error(basic::kPermissionDenied,
                       "The install folder " + folder.string() + " can't be written: " + why);
}

void writeBytes(const fs::path& folder, const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.flush();
    if (!file) fail(folder, path.filename().string());
}

using Delivery = std::map<std::string, std::string>;  ///< path below the folder to checksum

Delivery readDelivery(const fs::path& folder) {
    Delivery delivery;
    std::ifstream list(folder / kDeliveryList);
    for (std::string sum, path; list >> sum && std::getline(list >> std::ws, path);) delivery[path] = sum;
    return delivery;
}

using Files = std::map<std::string, fs::path>;  ///< path below the folder to where it is delivered from

/// The delivered files: language files at the top, as the add-in looks for them there; help in its folder.
Files deliveredFiles(const fs::path& resources) {
    Files files;
    std::error_code unseen;
    for (const fs::directory_entry& entry : basic::folderEntries(resources / "languages", unseen)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file(unseen) && !name.starts_with('.')) files[name] = entry.path();
    }
    std::vector<fs::path> folders{resources / "help"};
    while (!folders.empty()) {
        const fs::path folder = folders.back();
        folders.pop_back();
        for (const fs::directory_entry& entry : basic::folderEntries(folder, unseen)) {
            if (entry.is_directory(unseen) && !entry.is_symlink(unseen)) folders.push_back(entry.path());
            if (!entry.is_regular_file(unseen)) continue;
            files["help/" + entry.path().lexically_relative(resources / "help").generic_string()] =
                entry.path();
        }
    }
    return files;
}

/// What tells that nobody touched a delivered file, its copy or the list, without reading them. Nothing where
/// one was changed so lately that the next change might bear the same time.
std::string statesOf(const fs::path& folder, const Files& files) {
    constexpr std::int64_t kSettled = 2;
    const std::int64_t now = std::time(nullptr);
    std::string states;
    const auto add = [&](const fs::path& path) {
        const dxf::FileStamp stamp = dxf::stampOf(path.string());
        for (const std::uint64_t part : {stamp.device, stamp.node, stamp.size})
            states.append(std::to_string(part)).append(" ");
        states.append(std::to_string(stamp.seconds)).append(".");
        states.append(std::to_string(stamp.nanoseconds)).append("\n");
        return now - stamp.seconds >= kSettled;
    };
    for (const auto& [name, source] : files) {
        states.append(name).append("\n");
        if (!add(source) || !add(folder / name)) return {};
    }
    return add(folder / kDeliveryList) ? checksum(states) : std::string();
}

void deliver(const fs::path& folder, const Files& files) {
    const Delivery before = readDelivery(folder);
    Delivery after;
    for (const auto& [name, source] : files) {
        const fs::path target = folder / name;
        const std::string wanted = readBytes(source);
        const auto known = before.find(name);
        std::error_code error;
        // A name that leads to itself, or where we may not look, is there as well.
        if (fs::symlink_status(target, error).type() != fs::file_type::not_found) {
            if (!fs::is_regular_file(target, error)) fail(folder, name + " is not a file");
            const std::string present = readBytes(target);
            const bool untouched = known != before.end() && checksum(present) == known->second;
            if (present != wanted && !untouched) continue;
            if (present != wanted) writeBytes(folder, target, wanted);
        } else {
            fs::create_directories(target.parent_path(), error);
            writeBytes(folder, target, wanted);
        }
        after[name] = checksum(wanted);
    }
    if (after == before) return;
    std::string list;
    for (const auto& [name, sum] : after) list.append(sum).append(" ").append(name).append("\n");
    writeBytes(folder, folder / kDeliveryList, list);
}

void storeLanguage(const fs::path& settings, const std::string& language) {
    // A last line without its end, as editors leave it, must not run into ours.
    const std::string before = readBytes(settings);
    const bool endsOpen = !before.empty() && !before.ends_with("\r\n") && !before.ends_with('\r');
    basic::TextWriter writer(settings.string(), basic::TextWriter::Mode::Append);
    if (endsOpen) writer.writeLine("");
    writer.writeLine("Lng=" + language);
    writer.close();
}

}  // namespace

std::string storedLanguage(const fs::path& folder) {
    basic::TextReader reader((folder / kSettingsFile).string());
    while (!reader.atEnd()) {
        const std::string line = reader.readLine();
        if (line.size() > 4 && basic::equalIgnoringCase(line.substr(0, 4), "Lng=")) return line.substr(4);
    }
    return {};
}

void chooseLanguage(const fs::path& folder, const std::string& language) {
    if (storedLanguage(folder) == language) return;
    const std::string file = (folder / kSettingsFile).string();
    std::vector<std::string> lines;
    for (basic::TextReader reader(file); !reader.atEnd();) {
        std::string line = reader.readLine();
        if (!basic::equalIgnoringCase(line.substr(0, 4), "Lng=")) lines.push_back(std::move(line));
    }
    lines.push_back("Lng=" + language);
    basic::TextWriter writer(file, basic::TextWriter::Mode::Replace);
    for (const std::string& line : lines) writer.writeLine(line);
    writer.close();
}

void prepareInstallFolder(const fs::path& folder, const fs::path& resources, const std::string& language) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) fail(folder, error.message());
    // Nearly always nothing was touched since the start before, and reading it all would be most of a start.
    const Files files = deliveredFiles(resources);
    const std::string states = statesOf(folder, files);
    if (states.empty() || states != readBytes(folder / kDeliveryStates)) {
        deliver(folder, files);
        // A folder that can't be written is read again each time.
        if (!states.empty() && states == statesOf(folder, files))
            std::ofstream(folder / kDeliveryStates, std::ios::binary | std::ios::trunc) << states;
    }
    const fs::path settings = folder / kSettingsFile;
    if (fs::symlink_status(settings, error).type() == fs::file_type::not_found)
        writeBytes(folder, settings, {});
    if (!fs::is_regular_file(settings, error)) fail(folder, std::string(kSettingsFile) + " is not a file");
    if (storedLanguage(folder).empty()) storeLanguage(settings, language);
}

}  // namespace shell
