#include "desk/jobs/help_texts.h"

#include "basic/text.h"

#include <sstream>

namespace jobs {

namespace {

constexpr std::size_t kWidth = 78;

/// Breaks a text into lines of at most kWidth columns, each with a margin.
std::string wrapped(std::string_view text, std::size_t margin, std::size_t column = 0) {
    std::string lines;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        if (column > margin && column + 1 + word.size() > kWidth) {
            lines += '\n';
            column = 0;
        }
        if (column < margin) {
            lines.append(margin - column, ' ');
            column = margin;
        } else if (column > margin) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
    }
    return lines + "\n";
}

std::string withValue(const Option& option) {
    return *option.value == 0 ? std::string(option.name) : std::string(option.name) + " " + option.value;
}

std::string optionsText(Verb verb) {
    constexpr std::size_t kMargin = 24;
    std::string text;
    for (const Option& option : allOptions()) {
        if ((option.verbs & verb) == 0) continue;
        std::string line = "  " + withValue(option);
        if (line.size() + 1 >= kMargin) {
            text += line + "\n" + wrapped(option.help, kMargin);
        } else {
            text += line + wrapped(option.help, kMargin, line.size());
        }
    }
    return text;
}

constexpr const char* kExitCodes[][2] = {
    {"0", "all was done, or there was nothing to do"},
    {"1", "a drawing failed, or a script stopped at a line that failed; the reason is on the error stream"},
    {"2", "nothing was begun: a wrong option, a drawing or script that can't be read"},
    {"130", "Ctrl-C: the drawings in work were finished, no other was begun"},
};

/// Text for a manual page: what roff would read as a command is masked.
std::string roff(std::string_view text) {
    std::string masked = basic::replaceAll(text, "\\", "\\e");
    masked = basic::replaceAll(masked, "-", "\\-");
    if (masked.starts_with('.') || masked.starts_with('\'')) masked.insert(0, "\\&");
    return masked;
}

void writeOptions(std::ostream& page, Verb verb) {
    for (const Option& option : allOptions()) {
        if ((option.verbs & verb) == 0) continue;
        page << ".TP\n\\fB" << roff(option.name) << "\\fR";
        if (*option.value != 0) page << " \\fI" << roff(option.value) << "\\fR";
        page << "\n" << roff(option.help) << "\n";
    }
}

constexpr const char* kExamples[][2] = {
    {"Replace a door in a folder of drawings, with the value of an attribute:",
     "vorlane replace --from PORTE_80 --to PORTE_90 --map REPERE=CODE *.dxf --out new"},
    {"One table of all terminals for a spreadsheet:", "vorlane extract --block BORNE *.dxf --out table.csv"},
    {"Values to the spreadsheet and back:",
     "vorlane extract --block BORNE --handles *.dxf --out table.csv\n"
     "vorlane update --data table.csv --in-place *.dxf"},
    {"A surveyor's points:",
     "vorlane insert --block SURVEY_POINT --data points.txt --regional en plan.dxf --out surveyed.dxf"},
};

constexpr const char* kOtherPrograms =
    ".SH OTHER PROGRAMS\n.TP\n.B vorlane\\-console\nThe console, also where there is a display; it takes "
    "what "
    "vorlane takes.\n.TP\n.B vorlane\\-window\nThe window, which vorlane becomes where there is a display. "
    "\\-\\-help tells its options.\n.TP\n.B vorlane\\-picture\nDraws one picture, as the verb picture does "
    "for "
    "many drawings: vorlane\\-picture DRAWING PICTURE.\n";

}  // namespace

std::string helpText(Verb verb) {
    const VerbText& text = textOf(verb);
    const std::string name = *text.name == 0 ? "vorlane" : std::string("vorlane ") + text.name;
    std::string help = "Usage: " + name + " " + text.usage + "\n";
    if (verb == kConsole) {
        help += "       vorlane VERB [OPTION...] DRAWING...     (vorlane VERB --help tells more)\n\n";
        for (const VerbText& other : allVerbs()) {
            if (*other.name == 0) continue;
            std::string line = std::string("  ") + other.name;
            line.resize(11, ' ');
            help += line + other.summary + "\n";
        }
    }
    help += "\n";
    if (*text.about != 0) help += wrapped(text.about, 0) + "\n";
    help += optionsText(verb);
    if (verb == kConsole) help += "\nThe manual page vorlane(1) has recipes and the exit codes.\n";
    return help;
}

std::string manualPage() {
    std::ostringstream page;
    page << ".TH VORLANE 1\n.SH NAME\nvorlane, vorlane\\-console, vorlane\\-window, vorlane\\-picture \\- "
            "manages block "
            "references in CAD drawings\n.SH SYNOPSIS\n";
    for (const VerbText& text : allVerbs()) {
        page << ".B vorlane " << text.name << "\n" << roff(text.usage) << "\n.br\n";
    }
    page << ".SH DESCRIPTION\nReplaces the references of a block with another block, extracts them into a "
            "table, "
            "inserts a block from a\ntable and places labels, in DXF drawings. What nobody touched keeps its "
            "bytes.\n.PP\n"
         << roff(textOf(kConsole).about) << "\n";
    writeOptions(page, kConsole);
    page << ".SH VERBS\nA verb does its job on all drawings of the call, several at once. Each drawing is "
            "whole "
            "in the end or\nuntouched; one that fails doesn't stop the others.\n";
    for (const VerbText& text : allVerbs()) {
        if (*text.name == 0) continue;
        page << ".SS vorlane " << text.name << " " << roff(text.usage) << "\n"
             << "It " << roff(text.summary) << ".\n";
        if (*text.about != 0) page << roff(text.about) << "\n";
        writeOptions(page, text.verb);
    }
    page << kOtherPrograms << ".SH EXIT STATUS\n";
    for (const auto& [code, meaning] : kExitCodes) page << ".TP\n" << code << "\n" << roff(meaning) << "\n";
    page << ".SH ENVIRONMENT\n.TP\nLC_ALL, LC_NUMERIC, LC_MESSAGES, LANG\nLanguage and decimal separator "
            "where "
            "no option and no setting says otherwise.\n.TP\nXDG_DATA_HOME\nThe settings are in its folder "
            "vorlane, else in ~/.local/share/vorlane.\n.SH EXAMPLES\n";
    for (const auto& [what, line] : kExamples)
        page << ".PP\n" << what << "\n.nf\n" << roff(line) << "\n.fi\n";
    return page.str();
}

std::string bashCompletion() {
    std::ostringstream script;
    std::string verbs;
    for (const VerbText& text : allVerbs()) {
        if (*text.name != 0) verbs.append(verbs.empty() ? "" : " ").append(text.name);
    }
    script << "# Completion of vorlane for bash.\n_vorlane() {\n"
              "    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} options\n"
              "    COMPREPLY=()\n    case ${COMP_WORDS[1]} in\n";
    for (const VerbText& text : allVerbs()) {
        script << "        " << (*text.name == 0 ? "*" : text.name) << ") options=\"";
        bool first = true;
        for (const Option& option : allOptions()) {
            if ((option.verbs & text.verb) == 0) continue;
            script << (first ? "" : " ") << option.name;
            first = false;
        }
        script << "\" ;;\n";
    }
    std::string text = script.str();
    // The case of no verb stands first in the table, but has to come last in the script.
    const std::size_t begin = text.find("        *)");
    const std::size_t end = text.find('\n', begin) + 1;
    const std::string any = text.substr(begin, end - begin);
    text.erase(begin, end - begin);
    text += any + "    esac\n    case $before in\n";
    for (const Option& option : allOptions()) {
        const std::string words = option.completes;
        if (words.empty()) continue;
        const std::string wordList = words == "file"     ? "-f"
                                     : words == "folder" ? "-d"
                                                         : "-W \"" + words + "\"";
        text += "        " + std::string(option.name) + ") COMPREPLY=($(compgen " + wordList +
                " -- \"$word\")); return ;;\n";
    }
    text +=
        "    esac\n    if [[ $word == -* ]]; then\n"
        "        COMPREPLY=($(compgen -W \"$options\" -- \"$word\"))\n"
        "    else\n        COMPREPLY=($(compgen -f -- \"$word\"))\n"
        "        [ \"$COMP_CWORD\" -eq 1 ] && COMPREPLY+=($(compgen -W \"" +
        verbs +
        "\" -- \"$word\"))\n"
        "    fi\n}\ncomplete -o filenames -F _vorlane vorlane\n";
    return text;
}

}  // namespace jobs
