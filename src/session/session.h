#pragma once

#include "basic/text.h"
#include "basic/variant.h"
#include "host/object.h"
#include "session/entry_file.h"
#include "session/records.h"

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace forms {
class Form;
class Screen;
}  // namespace forms

namespace platform {
class Platform;
}

namespace session {

/// The public variables of the add-in, shared by all its dialogs, in one object that is made when the
/// component is loaded and handed on by reference. They keep the values of the last command until the next
/// one sets them.
class Session {
  public:
    static constexpr int kTableRows = 31;
    static constexpr int kTableColumns = 5;

    /// Both outlive the session.
    Session(platform::Platform& platform, forms::Screen& screen);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    platform::Platform& platform() const { return platform_; }
    forms::Screen& screen() const { return screen_; }
    /// The settings and the language files; what it keeps of them shows to nobody.
    EntryFiles& entryFiles() const { return entryFiles_; }

    host::ObjectPtr AcadDoc;  ///< the host's drawing document: every host operation starts from it
    std::string AppName;      ///< the product name, "Vorlane"
    std::string AppTitle;     ///< product name and version, the title of message boxes
    std::string InstallPath;  ///< install folder, empty if the registry doesn't name it
    std::string CmdCode;      ///< the command in hand, "0" to "5"
    /// Persisted texts. Rows 0 to 12: the remembered format of each value mode of the labelling (prefix,
    /// suffix, list index of the decimals, initial value, step). Rows 21 and 22: window width, height, left
    /// and top in twips of the re-insertion and the extraction. The other rows only pass through.
    std::array<std::array<std::string, kTableColumns>, kTableRows> VTable;
    host::ObjectPtr ReplaceSelectionSet;  ///< the selection set of the replacement
    std::string HelpFile;                 ///< the application's help file, which F1 opens

    std::string IniFile;              ///< path of the settings file
    LngRecord CurLng;                 ///< the current language
    std::vector<LngRecord> LngList;   ///< all languages found, in the order of the folder's enumeration
    std::string LngFolder;            ///< where language files are looked for
    std::set<std::string> toldFiles;  ///< files of whose line ends the user was told

    basic::Variant PickPoint;                             ///< the last point that the labelling was given
    std::vector<std::vector<basic::Variant>> LabelTable;  ///< the labelling's table, by attribute position

    // The dialogs' variables. A dialog is known here by its name, such as "fmReplace", matched without regard
    // to case.

    using FormFactory = std::function<std::unique_ptr<forms::Form>(Session&)>;
    /// Tells how the dialog `name` is made. Each feature does this once for its dialogs.
    void registerForm(std::string_view name, FormFactory factory);

    /// The dialog `name`, made at its first use: the variable holds it before its Form_Initialize runs, so
    /// that this may refer to it. If Form_Initialize fails, the failure comes out and the variable is empty
    /// again. Raises kObjectNotSet for a dialog that nothing registered.
    forms::Form& form(std::string_view name);
    /// The same as its own type.
    template <typename T>
    T& form(std::string_view name) {
        return dynamic_cast<T&>(form(name));
    }
    /// Sets the dialog's variable to nothing; the next use makes a new one.
    void dropForm(std::string_view name);

  private:
    struct NameLess {
        using is_transparent = void;
        bool operator()(std::string_view left, std::string_view right) const;
    };

    platform::Platform& platform_;
    forms::Screen& screen_;
    mutable EntryFiles entryFiles_;
    std::map<std::string, FormFactory, NameLess> factories_;
    std::map<std::string, std::unique_ptr<forms::Form>, NameLess> forms_;
};

}  // namespace session
