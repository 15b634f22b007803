#pragma once

#include <cstddef>
#include <string>

namespace dxf {

/// A file or folder that has to go should a signal end the program before whoever made it can take it away.
/// It removes nothing itself in the ordinary run of things. For the process that made it: a child leaves it.
class Transient {
  public:
    enum class Kind { File, Folder };
    Transient() = default;
    ~Transient() { release(); }
    Transient(const Transient&) = delete;
    Transient& operator=(const Transient&) = delete;

    /// From here on `path` goes at a signal. Best called before the file is made.
    void hold(const std::string& path, Kind kind = Kind::File);
    void release();

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    std::size_t slot_ = kNone;
};

/// Takes away all that is held by this process. May be called in a signal handler.
void removeTransients();

/// From here on SIGINT, SIGTERM and SIGHUP take away what is held and give the terminal back as it was before
/// they end the program; those that whoever started it wanted ignored stay ignored.
void removeTransientsAtSignals();

}  // namespace dxf
