#include "desk/jobs/replace_options.h"

#include "basic/error.h"
#include "basic/numbers.h"
#include "basic/text.h"
#include "desk/model/successor.h"

#include <sstream>

namespace jobs {

namespace {

/// A number of the command line, with a decimal point whatever the regional settings.
double readNumber(const std::string& option, const std::string& text) {
    const basic::Regional english = basic::Regional::english();
    if (text.find(',') != std::string::npos || !basic::isNumeric(text, english))
        throw UsageError(option + ": \"" + text + "\" is no number");
    return basic::toDouble(text, english);
}

double readAngle(const std::string& text) {
    constexpr double kPerDegree = geometry::kPi / 180;
    if (text.ends_with("deg")) return readNumber("--rotation", text.substr(0, text.size() - 3)) * kPerDegree;
    return readNumber("--rotation", text);
}

geometry::Vector3 readScale(const std::string& text) {
    std::vector<double> factors;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(',', begin), text.size());
        factors.push_back(readNumber("--scale", text.substr(begin, end - begin)));
        if (factors.back() == 0) throw UsageError("--scale: a factor of 0");
        begin = end + 1;
    }
    if (factors.size() == 1) factors.assign(3, factors.front());
    if (factors.size() != 3) throw UsageError("--scale takes one factor or three, X,Y,Z");
    return {factors[0], factors[1], factors[2]};
}

void readPairFile(const std::string& path, std::vector<AttributePair>& pairs) {
    std::istringstream file(bytesOf("--map-file", path));
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (basic::trim(line).empty() || line.starts_with('#')) continue;
        const std::size_t tab = line.find('\t');
        if (tab == std::string::npos) {
            throw UsageError("--map-file: " + path + ", line " + std::to_string(number) +
                             ": no tab between two attributes");
        }
        pairs.push_back({std::string(basic::trim(line.substr(0, tab))),
                         std::string(basic::trim(line.substr(tab + 1))), false});
    }
}

}  // namespace

std::pair<std::string, std::string> readPair(const std::string& option, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        throw UsageError(option + ": \"" + text + "\" is no pair such as LEFT=RIGHT");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

ReplaceOptions readReplaceOptions(const Arguments& arguments) {
    ReplaceOptions options;
    options.from = arguments.value("--from");
    options.to = arguments.value("--to");
    if (options.from.empty() || options.to.empty()) throw UsageError("replace needs --from and --to");
    for (const std::string& text : arguments.values("--map")) {
        auto [from, to] = readPair("--map", text);
        options.pairs.push_back({std::move(from), std::move(to), true});
    }
    if (arguments.has("--map-file")) readPairFile(arguments.value("--map-file"), options.pairs);
    options.pairEqual = arguments.has("--map-equal");
    options.zones = arguments.values("--zone");
    if (arguments.has("--rotation")) options.rotation = readAngle(arguments.value("--rotation"));
    if (arguments.has("--scale")) options.scale = readScale(arguments.value("--scale"));
    if (arguments.has("--visible")) options.visible = arguments.value("--visible") == "on";
    options.keep = arguments.value("--keep");
    try {
        model::parseKeep(options.keep);
    } catch (const basic::Error& error) {
        throw UsageError("--keep: " + error.description());
    }
    return options;
}

}  // namespace jobs
