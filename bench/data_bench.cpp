// Extraction to a file and re-insertion with a save, as a script of the console does them, by the number of
// rows: each row has three attributes. What is measured is everything but the start of the process.

#include "bench/big_drawing.h"
#include "desk/console/session_loop.h"
#include "desk/console/text_prompter.h"
#include "desk/shell/desk.h"
#include "desk/shell/surroundings.h"
#include "faces/text/text_screen.h"
#include "tests/fakes/temp_folder.h"

#include <benchmark/benchmark.h>
#include <sstream>
#include <string>

namespace {

/// A folder with drawings and a data file in it, and a console to work there.
class Work {
  public:
    explicit Work(int rows) {
        folder_.write("full.dxf", bench::BigDrawing::make(rows));
        folder_.write("empty.dxf", bench::BigDrawing::make(1));
    }

    /// Opens a drawing and carries out a script on it.
    void run(const std::string& drawing, const std::string& script) const {
        std::istringstream lines(script);
        std::ostringstream story;
        text_face::StreamLines source(lines, false);
        text_face::TextScreen screen(source, story);
        console::TextPrompter prompter(source, story);
        shell::DeskOptions options;
        options.installFolder = folder_.file("install");
        options.resources = VORLANE_ROOT "/resources";
        options.regional = basic::Regional::english();
        shell::Desk desk(options, screen, prompter, story);
        desk.open(folder_.file(drawing));
        console::runCommandLine(desk, source);
    }
    void extract() const {
        // The second reference of the drawing is the first of the block with many.
        run("full.dxf", "VNEXTRACT\nBtnNew\n@112\nOKButton\nall\n\nBtnSave\nfile " +
                            folder_.file("data.txt") + "\nBtnClose\n");
    }
    void insert() const {
        run("empty.dxf", "VNINSERT\nCombo1 # 2\nBtnData\nfile " + folder_.file("data.txt") +
                             "\nBtnInsert\nok\nBtnClose\nSAVE " + folder_.file("result.dxf") + "\n");
    }
    /// How often a text stands in a file of the folder.
    int count(const char* file, const std::string& text) const {
        const std::string bytes = folder_.read(file);
        int found = 0;
        for (std::size_t at = bytes.find(text); at != bytes.npos; at = bytes.find(text, at + 1)) ++found;
        return found;
    }

  private:
    fakes::TempFolder folder_;
};

void extractToFile(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    const Work work(rows);
    for (auto _ : state) work.extract();
    if (work.count("data.txt", "\r\n") != rows + 2) state.SkipWithError("the file isn't complete");
    state.SetComplexityN(rows);
}

void insertAndSave(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    const Work work(rows);
    work.extract();
    for (auto _ : state) work.insert();
    if (work.count("result.dxf", "INSERT\n") != rows + 2) state.SkipWithError("references are missing");
    state.SetComplexityN(rows);
}

#define SIZES ->Arg(1000)->Arg(10000)->Arg(32000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity()
BENCHMARK(extractToFile) SIZES;
BENCHMARK(insertAndSave) SIZES;

}  // namespace
