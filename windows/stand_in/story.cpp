#include "windows/stand_in/story.h"

#include "basic/text.h"
#include "faces/text/form_text.h"
#include "forms/acts.h"
#include "windows/stand_in/box_acts.h"
#include "windows/stand_in/dialog_acts.h"
#include "windows/stand_in/window_form.h"

#include <algorithm>
#include <exception>
#include <iostream>

namespace stand_in {

namespace {

/// The system's callbacks carry no pointer of ours: the one story that plays on this thread.
thread_local Story* playing = nullptr;

constexpr UINT kIdleMilliseconds = 10;

/// Dialogs that a released component keeps.
bool outlivesCommand(const std::string& name) {
    return name == "fmAttSet" || name == "fmHelpHidden" || name == "fmAbout";
}

}  // namespace

Story::Story(text_face::LineSource& source, std::ostream& output, Manner manner)
    : source_(source), output_(output), manner_(manner) {
    playing = this;
    hook_ = SetWindowsHookExW(WH_CALLWNDPROC, watch, nullptr, GetCurrentThreadId());
    timer_ = SetTimer(nullptr, 0, kIdleMilliseconds, tick);
}

Story::~Story() {
    KillTimer(nullptr, timer_);
    UnhookWindowsHookEx(hook_);
    playing = nullptr;
}

void Story::commandEnded() {
    std::erase_if(known_, [](const std::string& name) { return !outlivesCommand(name); });
    box_ = nullptr;
}

void Story::tick(HWND, UINT, UINT_PTR, DWORD) {
    if (playing != nullptr) playing->step();
}

LRESULT Story::watch(int code, WPARAM current, LPARAM message) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(message);
    const bool goes = sent.message == WM_DESTROY || (sent.message == WM_SHOWWINDOW && sent.wParam == FALSE);
    if (code == HC_ACTION && goes && playing != nullptr) playing->formHidden(sent.hwnd);
    return CallNextHookEx(nullptr, code, current, message);
}

void Story::formHidden(HWND form) {
    const auto found = std::find(up_.begin(), up_.end(), form);
    if (found == up_.end()) return;
    up_.erase(found);
    output_ << '[' << nameOf(form) << "] hidden\n";
}

void Story::step() {
    // No exception may pass through the system's frames.
    try {
        HWND top = topDialog();
        if (top != nullptr && !ended_) stepOn(top);
    } catch (const std::exception& error) {
        cannotGoOn(error.what());
    }
}

void Story::stepOn(HWND top) {
    try {
        if (isBox(top)) {
            stepOnBox(top);
        } else {
            stepOnForm(top);
        }
    } catch (const forms::ActError& error) {
        if (manner_ == Manner::Lenient) return cannotGoOn(error.what());
        text_face::refuseLine(source_, output_, error.what());
    }
}

void Story::cannotGoOn(const std::string& what) {
    if (manner_ == Manner::Lenient) {
        output_ << "? " << what << '\n';
        return;
    }
    output_.flush();
    std::cerr << "stand-in: " << what << "\n" << std::flush;
    ExitProcess(kStopped);
}

std::optional<std::string> Story::nextLine(const std::string& waiting) {
    std::optional<std::string> line = source_.nextAct(output_);
    if (!line && manner_ == Manner::Strict) text_face::endedWhile(waiting);
    ended_ = !line && manner_ == Manner::Holding;
    if (ended_) output_.flush();
    return line;
}

void Story::stepOnBox(HWND box) {
    if (isFailureReport(box)) {
        if (box_ == box) return;
        box_ = box;
        const std::string failure = passFailure(output_, box);
        if (manner_ == Manner::Strict) source_.fail(failure);
        return;
    }
    if (box_ != box) {
        box_ = box;
        printBox(output_, box);
        return;
    }
    const auto line = nextLine(isFileDialog(box) ? "a file dialog" : "a message box");
    if (ended_) return;
    if (!line) {
        box_ = nullptr;
        PostMessageW(box, WM_CLOSE, 0, 0);
        return;
    }
    const std::optional<std::string> warned = warning(box);
    answerBox(box, *line, folder_);
    box_ = nullptr;
    if (warned && manner_ == Manner::Strict) source_.fail(*warned);
}

void Story::announce(HWND form) {
    up_.push_back(form);
    const std::string name = nameOf(form);
    const bool first = known_.insert(name).second;
    output_ << '[' << name << "] " << textOf(form) << (first ? "\n" : " (again)\n");
    if (first) text_face::printForm(output_, WindowForm(form), text_face::Detail::Brief);
}

void Story::stepOnForm(HWND form) {
    if (std::find(up_.begin(), up_.end(), form) == up_.end()) return announce(form);
    // A system dialog on its way out lets timers through while the act that brought it goes on.
    if (std::find(acting_.begin(), acting_.end(), form) != acting_.end()) return;
    const std::string line = nextLine(nameOf(form)).value_or("close");
    if (ended_) return;
    // The close box unloads the form: it comes back as if it were new.
    if (basic::trim(line) == "close") known_.erase(nameOf(form));
    acting_.push_back(form);
    try {
        performOnWindow(output_, form, line);
    } catch (...) {
        acting_.pop_back();
        throw;
    }
    acting_.pop_back();
}

}  // namespace stand_in
