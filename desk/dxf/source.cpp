#include "desk/dxf/source.h"

#include "desk/dxf/file.h"

#include <cstring>

namespace dxf {

Source::Source(std::unique_ptr<char[]> bytes, std::size_t size, std::string path)
    : bytes_(std::move(bytes)),
      size_(size),
      path_(std::make_unique<const std::string>(std::move(path))),
      format_(std::make_unique<const Format>(detectFormat({bytes_.get(), size_}, *path_))) {}

Source Source::open(const std::string& path) {
    FileBytes file = readFile(path);
    return Source(std::move(file.data), file.size, path);
}

Source Source::fromBytes(std::string_view bytes, std::string path) {
    auto copy = std::make_unique_for_overwrite<char[]>(bytes.size());
    if (!bytes.empty()) std::memcpy(copy.get(), bytes.data(), bytes.size());
    return Source(std::move(copy), bytes.size(), std::move(path));
}

}  // namespace dxf
