#include "desk/console/terminal_lines.h"

#include "basic/text.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <histedit.h>
#include <ostream>
#include <poll.h>
#include <unistd.h>

namespace console {

namespace {

constexpr int kHistoryLines = 1000;
constexpr wchar_t kEscape = 27;
/// Ctrl-C arrives as a signal, which breaks off the reading: the editor gets this key for it.
constexpr wchar_t kControlC = 3;

volatile std::sig_atomic_t interrupted = 0;  ///< what a signal handler can reach has to be global

extern "C" void onTerminalInterrupt(int) { interrupted = 1; }

/// What all candidates begin with, whatever the case; in the writing of the first.
std::string commonBeginning(const std::vector<std::string>& candidates) {
    std::string common = candidates.front();
    for (const std::string& other : candidates) {
        std::size_t same = 0;
        for (std::size_t a = 0, b = 0; a < common.size() && b < other.size();) {
            if (basic::foldCase(basic::nextCharacter(common, a)) !=
                basic::foldCase(basic::nextCharacter(other, b)))
                break;
            same = a;
        }
        common.resize(same);
    }
    return common;
}

bool beginsWith(std::string_view text, std::string_view beginning) {
    std::size_t at = 0;
    for (std::size_t position = 0; position < beginning.size();) {
        if (at >= text.size()) return false;
        if (basic::foldCase(basic::nextCharacter(text, at)) !=
            basic::foldCase(basic::nextCharacter(beginning, position)))
            return false;
    }
    return true;
}

}  // namespace

/// The line editor of the system and what its callbacks need.
class TerminalLines::Editor {
  public:
    Editor(TerminalLines& owner, std::string historyFile)
        : owner_(owner), historyFile_(std::move(historyFile)) {
        editor_ = el_init("vorlane", stdin, stdout, stderr);
        history_ = history_init();
        HistEvent event;
        history(history_, &event, H_SETSIZE, kHistoryLines);
        history(history_, &event, H_SETUNIQUE, 1);
        if (!historyFile_.empty()) history(history_, &event, H_LOAD, historyFile_.c_str());
        el_set(editor_, EL_CLIENTDATA, this);
        el_set(editor_, EL_PROMPT, &Editor::prompt);
        el_set(editor_, EL_EDITOR, "emacs");
        el_set(editor_, EL_HIST, history, history_);
        el_set(editor_, EL_GETCFN, &Editor::readCharacter);
        el_set(editor_, EL_ADDFN, "vorlane-complete", "completes the line", &Editor::complete);
        el_set(editor_, EL_ADDFN, "vorlane-break", "breaks off what waits", &Editor::breakOff);
        el_set(editor_, EL_BIND, "^I", "vorlane-complete", nullptr);
        el_set(editor_, EL_BIND, "^C", "vorlane-break", nullptr);
        struct sigaction action = {};
        action.sa_handler = onTerminalInterrupt;  // without SA_RESTART, so that the reading is broken off
        sigaction(SIGINT, &action, nullptr);
    }
    ~Editor() {
        HistEvent event;
        if (!historyFile_.empty()) history(history_, &event, H_SAVE, historyFile_.c_str());
        history_end(history_);
        el_end(editor_);
    }
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    std::optional<std::string> readLine() {
        brokenOff_ = false;
        int count = 0;
        const char* text = el_gets(editor_, &count);
        if (brokenOff_) return std::string(text_face::kBreakOff);
        if (text == nullptr || count <= 0) {
            std::fputs("\n", stdout);  // behind the echo of Ctrl-D
            return std::nullopt;
        }
        std::string line(text, static_cast<std::size_t>(count));
        while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
        HistEvent event;
        if (!line.empty()) history(history_, &event, H_ENTER, line.c_str());
        return line;
    }
    void setPrompt(std::string_view text) { prompt_ = text; }

  private:
    static Editor& of(EditLine* editor) {
        Editor* self = nullptr;
        el_get(editor, EL_CLIENTDATA, &self);
        return *self;
    }
    static char* prompt(EditLine* editor) { return of(editor).prompt_.data(); }

    /// The next character of the terminal. An escape that nothing follows is the Esc key; the keys of arrows
    /// and functions send more at once.
    static int readCharacter(EditLine*, wchar_t* character) {
        constexpr int kMilliseconds = 50;
        // While a command runs Ctrl-C is held back for it. Here nothing runs but the waiting.
        sigset_t signals;
        sigprocmask(SIG_SETMASK, nullptr, &signals);
        sigdelset(&signals, SIGINT);
        pollfd file = {STDIN_FILENO, POLLIN, 0};
        interrupted = 0;
        while (ppoll(&file, 1, nullptr, &signals) < 0 && errno == EINTR) {
            if (interrupted == 0) continue;  // stopped and gone on with
            *character = kControlC;
            return 1;
        }
        unsigned char byte = 0;
        if (::read(STDIN_FILENO, &byte, 1) <= 0) return 0;
        std::string bytes(1, static_cast<char>(byte));
        const int following = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC0 ? 1 : 0;
        for (int i = 0; i < following && ::read(STDIN_FILENO, &byte, 1) == 1; ++i)
            bytes += static_cast<char>(byte);
        std::size_t position = 0;
        *character = static_cast<wchar_t>(basic::nextCharacter(bytes, position));
        if (*character == kEscape && poll(&file, 1, kMilliseconds) == 0) *character = kControlC;
        return 1;
    }

    static unsigned char breakOff(EditLine* editor, int) {
        of(editor).brokenOff_ = true;
        std::fputs("\n", stdout);
        return CC_EOF;
    }

    static unsigned char complete(EditLine* editor, int) {
        const LineInfo* info = el_line(editor);
        const std::string line(info->buffer, static_cast<std::size_t>(info->cursor - info->buffer));
        std::vector<std::string> candidates = of(editor).owner_.completions(line);
        std::erase_if(candidates, [&](const std::string& text) { return !beginsWith(text, line); });
        if (candidates.empty()) return CC_REFRESH_BEEP;
        std::sort(candidates.begin(), candidates.end());
        candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
        const std::string common = commonBeginning(candidates);
        if (common.size() <= line.size() && candidates.size() > 1) {
            list(candidates, line);
            return CC_REDISPLAY;
        }
        el_deletestr(editor, static_cast<int>(characters(line)));
        el_insertstr(editor, common.c_str());
        return CC_REFRESH;
    }

    static std::size_t characters(const std::string& text) {
        std::size_t count = 0;
        for (std::size_t position = 0; position < text.size(); ++count) basic::nextCharacter(text, position);
        return count;
    }

    /// The candidates below the line, each without what they all have in front of their last word or entry.
    static void list(const std::vector<std::string>& candidates, const std::string& line) {
        constexpr std::size_t kMost = 60;
        const std::size_t entry = line.find_first_of("=:#");
        const std::size_t begin =
            entry != std::string::npos ? line.find_first_not_of(' ', entry + 1) : line.rfind(' ') + 1;
        const std::size_t cut = begin == std::string::npos ? line.size() : begin;
        std::fputs("\n", stdout);
        for (std::size_t i = 0; i < std::min(candidates.size(), kMost); ++i)
            std::fprintf(stdout, "  %s\n", candidates[i].substr(std::min(cut, candidates[i].size())).c_str());
        if (candidates.size() > kMost) std::fprintf(stdout, "  and %zu more\n", candidates.size() - kMost);
        std::fflush(stdout);
    }

    TerminalLines& owner_;
    std::string historyFile_;
    std::string prompt_;
    EditLine* editor_ = nullptr;
    History* history_ = nullptr;
    bool brokenOff_ = false;
};

TerminalLines::TerminalLines(std::string historyFile)
    : editor_(std::make_unique<Editor>(*this, std::move(historyFile))) {}

TerminalLines::~TerminalLines() = default;

std::optional<std::string> TerminalLines::read() { return editor_->readLine(); }

void TerminalLines::showPrompt(std::ostream& output, std::string_view prompt) {
    output.flush();
    editor_->setPrompt(prompt);
}

}  // namespace console
