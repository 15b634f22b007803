#include "desk/jobs/result.h"

#include <cstring>

namespace jobs {

namespace {

// Both ends are the same program on the same machine: plain memory, lengths before what varies.

class Writer {
  public:
    void number(std::int64_t value) { bytes_.append(reinterpret_cast<const char*>(&value), sizeof value); }
    void text(const std::string& value) {
        number(static_cast<std::int64_t>(value.size()));
        bytes_ += value;
    }
    void texts(const std::vector<std::string>& values) {
        number(static_cast<std::int64_t>(values.size()));
        for (const std::string& value : values) text(value);
    }
    std::string take() { return std::move(bytes_); }

  private:
    std::string bytes_;
};

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}
    std::int64_t number() {
        std::int64_t value = 0;
        std::memcpy(&value, bytes_.data(), sizeof value);
        bytes_.remove_prefix(sizeof value);
        return value;
    }
    std::size_t size() { return static_cast<std::size_t>(number()); }
    std::string text() {
        const std::size_t length = size();
        std::string value(bytes_.substr(0, length));
        bytes_.remove_prefix(length);
        return value;
    }
    std::vector<std::string> texts() {
        std::vector<std::string> values(size());
        for (std::string& value : values) value = text();
        return values;
    }

  private:
    std::string_view bytes_;
};

constexpr double kMicroseconds = 1e6;

}  // namespace

std::string encode(const Result& result) {
    Writer writer;
    writer.text(result.drawing);
    writer.number(static_cast<int>(result.state));
    writer.text(result.reason);
    writer.text(result.output);
    writer.number(static_cast<std::int64_t>(result.counts.size()));
    for (const auto& [name, number] : result.counts) {
        writer.text(name);
        writer.number(number);
    }
    writer.texts(result.notes);
    writer.text(result.table.block);
    writer.texts(result.table.headers);
    writer.number(static_cast<std::int64_t>(result.table.rows.size()));
    for (const auto& row : result.table.rows) writer.texts(row);
    writer.number(static_cast<std::int64_t>(result.seconds * kMicroseconds));
    return writer.take();
}

Result decode(std::string_view bytes) {
    Reader reader(bytes);
    Result result;
    result.drawing = reader.text();
    result.state = static_cast<Result::State>(reader.number());
    result.reason = reader.text();
    result.output = reader.text();
    result.counts.resize(reader.size());
    for (auto& [name, number] : result.counts) {
        name = reader.text();
        number = reader.number();
    }
    result.notes = reader.texts();
    result.table.block = reader.text();
    result.table.headers = reader.texts();
    result.table.rows.resize(reader.size());
    for (auto& row : result.table.rows) row = reader.texts();
    result.seconds = static_cast<double>(reader.number()) / kMicroseconds;
    return result;
}

}  // namespace jobs
