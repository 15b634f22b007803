#pragma once

#include "faces/text/line_source.h"
#include "windows/stand_in/native.h"

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace stand_in {

/// Plays a script on the dialogs of this thread and prints the story as the text face does: whenever the
/// thread has nothing else to do, the dialog on top is told of and gets the script's next line. A line that
/// can't be carried out ends the program, as does the script's end while a dialog is up, unless told
/// otherwise.
class Story {
  public:
    enum class Manner {
        Strict,
        Lenient,  ///< passes over what can't be carried out, and closes what is up at the end
        Holding,  ///< leaves what is up at the end as it is, for a picture
    };
    Story(text_face::LineSource& source, std::ostream& output, Manner manner);
    ~Story();
    Story(const Story&) = delete;
    Story& operator=(const Story&) = delete;

    /// A command has ended and its component is released: the dialogs that go with it are told anew when they
    /// come again.
    void commandEnded();

    /// The exit code of a script that couldn't go on.
    static constexpr int kStopped = 1;

  private:
    static void CALLBACK tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    static LRESULT CALLBACK watch(int code, WPARAM current, LPARAM message);

    void step();
    void stepOn(HWND top);
    void stepOnBox(HWND box);
    void stepOnForm(HWND form);
    void announce(HWND form);
    void formHidden(HWND form);
    /// The script's next line; nothing at its end, where that is no failure.
    std::optional<std::string> nextLine(const std::string& waiting);
    void cannotGoOn(const std::string& what);

    text_face::LineSource& source_;
    std::ostream& output_;
    Manner manner_;
    std::filesystem::path folder_ = std::filesystem::current_path();  ///< as the program began
    bool ended_ = false;
    std::vector<HWND> up_;         ///< the forms told of that are visible
    std::set<std::string> known_;  ///< the dialogs that were drawn since they were loaded
    std::vector<HWND> acting_;  ///< the forms with an act under way, which may have brought the next one up
    HWND box_ = nullptr;        ///< the box told of
    HHOOK hook_ = nullptr;
    UINT_PTR timer_ = 0;
};

}  // namespace stand_in
