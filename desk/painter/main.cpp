// vorlane-picture DRAWING PICTURE [options]: a picture of a drawing as a file. It needs no display.

#include "basic/error.h"
#include "desk/drawing/drawing.h"
#include "desk/painter/picture_file.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

namespace {

enum ExitCode { kDone = 0, kFailed = 1, kBadCall = 2 };

int fail(const std::string& text, ExitCode code) {
    std::fprintf(stderr, "vorlane-picture: %s\n", text.c_str());
    return code;
}

/// "1600x1000"
std::optional<QSize> sizeOf(const QString& text) {
    const QStringList parts = text.split('x');
    bool wide = false;
    bool high = false;
    if (parts.size() != 2) return std::nullopt;
    const QSize size(parts[0].toInt(&wide), parts[1].toInt(&high));
    constexpr int kMost = 20'000;
    const bool fits =
        size.width() > 0 && size.height() > 0 && size.width() <= kMost && size.height() <= kMost;
    return wide && high && fits ? std::optional(size) : std::nullopt;
}

/// "x1,y1,x2,y2"
std::optional<geometry::Box> areaOf(const QString& text) {
    const QStringList parts = text.split(',');
    if (parts.size() != 4) return std::nullopt;
    double value[4];
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        value[i] = parts[i].toDouble(&isNumber);
        if (!isNumber) return std::nullopt;
    }
    geometry::Box box;
    box.add(geometry::Point3{value[0], value[1], 0});
    box.add(geometry::Point3{value[2], value[3], 0});
    return box;
}

/// Model space, or the space of a layout or the block of that name.
drawing::BlockId spaceOf(const drawing::Drawing& drawing, const QString& layout, const QString& block) {
    const drawing::BlockTable& blocks = drawing.blocks();
    if (!block.isEmpty()) return blocks.find(block.toStdString());
    if (layout.isEmpty()) return drawing.modelSpace();
    for (drawing::BlockId id = 0; id < blocks.size(); ++id) {
        if (blocks[id].isErased || !blocks[id].isLayout()) continue;
        const std::string name(blocks[id].shownLayoutName());
        if (QString::fromStdString(name).compare(layout, Qt::CaseInsensitive) == 0) return id;
    }
    return drawing::kNoBlock;
}

int run(QCommandLineParser& line) {
    const QStringList files = line.positionalArguments();
    if (files.size() != 2) return fail("needs a drawing and a picture's name, see --help", kBadCall);
    painter::PictureFileOptions options;
    if (line.isSet("size")) {
        const auto size = sizeOf(line.value("size"));
        if (!size) return fail("--size is WIDTHxHEIGHT in pixels", kBadCall);
        options.size = *size;
    }
    if (line.isSet("window")) {
        options.area = areaOf(line.value("window"));
        if (!options.area) return fail("--window is x1,y1,x2,y2", kBadCall);
    }
    options.dark = line.isSet("dark");
    options.screenColors = line.isSet("screen-colors");
    options.weights = line.isSet("weights");
    if (line.isSet("no-margin")) options.margin = 0;
    const auto drawing = drawing::Drawing::open(files[0].toStdString());
    const drawing::BlockId space = spaceOf(*drawing, line.value("layout"), line.value("block"));
    if (space == drawing::kNoBlock) return fail("the drawing has no such layout or block", kFailed);
    picture::Picture picture(*drawing);
    painter::writePicture(picture, space, files[1], options);
    const picture::Counts counts = picture.counts(space);
    std::printf("%s: not drawn %zu, hidden %zu\n", files[1].toUtf8().constData(), counts.notDrawnTotal(),
                counts.hidden());
    for (const auto& [type, count] : counts.notDrawn)
        std::printf("  not drawn: %s %zu\n", type.c_str(), count);
    return kDone;
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription("Draws a DXF drawing as a picture.");
    line.addHelpOption();
    line.addPositionalArgument("DRAWING", "the drawing");
    line.addPositionalArgument("PICTURE", "the file to write: .png, .svg or .pdf");
    line.addOption({"layout", "the layout to draw instead of model space", "NAME"});
    line.addOption({"block", "the block to draw", "NAME"});
    line.addOption({"window", "the part to draw, in drawing units", "x1,y1,x2,y2"});
    line.addOption({"size", "pixels; of SVG and PDF the proportions", "WIDTHxHEIGHT"});
    line.addOption({"dark", "on a near-black ground"});
    line.addOption({"screen-colors", "with colours that show on the ground, as on a screen"});
    line.addOption({"weights", "with lineweights"});
    line.addOption({"no-margin", "without a free edge"});
    line.process(application);
    try {
        return run(line);
    } catch (const std::exception& error) {
        return fail(error.what(), kFailed);
    }
}
