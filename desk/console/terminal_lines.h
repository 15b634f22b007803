#pragma once

#include "faces/text/line_source.h"

#include <memory>
#include <string>

namespace console {

/// A person's lines from a terminal, edited in place, with history and completion (Tab). Ctrl-C and Esc give
/// text_face::kBreakOff, Ctrl-D on an empty line the end.
class TerminalLines : public text_face::LineSource {
  public:
    /// `historyFile` keeps the lines from one session to the next; empty keeps none.
    explicit TerminalLines(std::string historyFile);
    ~TerminalLines() override;

    bool interactive() const override { return true; }

  protected:
    std::optional<std::string> read() override;
    void showPrompt(std::ostream& output, std::string_view prompt) override;

  private:
    class Editor;
    std::unique_ptr<Editor> editor_;
};

}  // namespace console
