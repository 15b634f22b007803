#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace jobs {

/// What the program is asked to do. Each value is one bit, so that an option can name all verbs that take it.
enum Verb : unsigned {
    kConsole = 1,  ///< no verb: the window or the console
    kReplace = 2,
    kExtract = 4,
    kInsert = 8,
    kUpdate = 16,
    kList = 32,
    kCheck = 64,
    kPicture = 128,
};

/// One option. Parsing, help, manual page and completion are made from the one table of them.
struct Option {
    const char* name;   ///< with its two dashes
    const char* value;  ///< what the value stands for, such as "FILE"; empty for a switch
    unsigned verbs;     ///< those that take it
    const char* help;   ///< what it does, one sentence or two
    bool repeated = false;
    /// What the shell completes the value with: "file", "folder" or words; empty for nothing.
    const char* completes = "";
};

/// One verb with what the help says about it.
struct VerbText {
    Verb verb;
    const char* name;     ///< empty for the console
    const char* usage;    ///< what stands behind the name
    const char* summary;  ///< one line
    const char* about;    ///< what one has to know, in paragraphs parted by line ends
};

const std::vector<Option>& allOptions();
const std::vector<VerbText>& allVerbs();
const VerbText& textOf(Verb verb);
/// The verb of a name; null if there is none.
const VerbText* findVerb(std::string_view name);

/// A mistake on the program's command line, in words.
class UsageError : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// A command line taken apart.
struct Arguments {
    Verb verb = kConsole;
    std::map<std::string, std::vector<std::string>, std::less<>> options;
    std::vector<std::string> operands;

    bool has(std::string_view option) const { return options.find(option) != options.end(); }
    /// The value given last, empty for none.
    std::string value(std::string_view option) const;
    /// All values, in their order.
    std::vector<std::string> values(std::string_view option) const;
};

/// Reads the words behind the program's name (and the verb's): "--name value", "--name=value", operands; "--"
/// ends the options. Raises UsageError for an option that the verb doesn't have, a missing value, and an
/// option given twice that counts once.
Arguments parseArguments(Verb verb, const std::vector<std::string>& words);

/// The bytes of the file that an option names; raises UsageError where it can't be read.
std::string bytesOf(const std::string& option, const std::string& path);

}  // namespace jobs
