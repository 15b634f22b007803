// Lines of a session: commands, acts on dialogs, answers to boxes. Lisp has a target of its own, and no line
// may name a file of the machine.
#include "desk/shell/desk.h"
#include "faces/text/text_screen.h"
#include "fuzz/document.h"
#include "fuzz/fuzz_input.h"

#include <cstdlib>
#include <sstream>

namespace {

class Screen : public text_face::TextScreen {
  public:
    Screen(text_face::LineSource& source, std::ostream& output, std::string file)
        : TextScreen(source, output), file_(std::move(file)) {}
    std::optional<std::string> fileDialog(const forms::FileDialog&, forms::FileDialogMode) override {
        return file_;
    }

  private:
    std::string file_;
};

bool isAllowed(const std::string& line) {
    const std::string name = line.substr(0, line.find(' '));
    return name.starts_with("VN") || name == "U" || name == "LIST";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Folder folder;
    static const std::string drawing = folder.write("drawing.dxf", fuzz::readSample("template.dxf"));
    static const std::string table = folder.write("table.txt", fuzz::readSample("survey_points.txt"));
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");

    std::istringstream input(std::string(fuzz::text(data, size)));
    std::ostringstream output;
    text_face::StreamLines source(input, true);
    Screen screen(source, output, table);
    fuzz::Answers answers;
    shell::DeskOptions options;
    options.installFolder = folder.file("install");
    options.resources = VORLANE_ROOT "/resources";
    options.regional = basic::Regional::english();
    shell::Desk desk(options, screen, answers, output);
    desk.open(drawing);
    try {
        while (const std::optional<std::string> line = source.nextAct(output)) {
            if (isAllowed(*line)) desk.run(*line);
        }
    } catch (const basic::Interruption&) {  // the lines ended in a dialog
    }
    return 0;
}
