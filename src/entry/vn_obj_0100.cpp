#include "entry/vn_obj_0100.h"

#include "basic/border.h"
#include "basic/error_state.h"
#include "basic/text.h"
#include "entry/vlax_obj.h"
#include "forms/form.h"
#include "forms/screen.h"
#include "language/language.h"
#include "platform/platform.h"
#include "platform/version.h"
#include "session/settings.h"

#include <string>
#include <utility>
#include <vector>

namespace entry {
namespace {

using session::Session;

constexpr std::int32_t kWrongArgumentCount = 450;

/// The symbol through which the caller hands over the command code.
constexpr const char* kCommandSymbol = "ZOL101";

template <typename Visit>
void forEachCell(Visit&& visit) {
    for (int i = 0; i < Session::kTableRows; ++i)
        for (int j = 0; j < Session::kTableColumns; ++j) visit(i, j);
}

/// Tells once of each settings or language file that an editor saved with line feeds alone. No language file
/// can say it, since it may be the one that is meant.
void warnOfLineFeeds(Session& session) {
    std::vector<std::string> files{session.IniFile};
    for (const session::LngRecord& language : session.LngList) files.push_back(language.File);
    for (const std::string& file : files) {
        if (session.toldFiles.contains(file) || !session.entryFiles().hasBareLineFeeds(file)) continue;
        session.toldFiles.insert(file);
        forms::MessageDialog box;
        box.text = file +
                   "\r\n\r\nCe fichier a été enregistré avec des fins de ligne LF seules : il est lu comme "
                   "une seule ligne. Enregistrez-le avec des fins de ligne CR LF.\r\n\r\nThis file was saved "
                   "with LF line ends alone, so it is read as one line. Save it with CR LF line ends.";
        box.title = session.AppTitle;
        box.icon = forms::MessageDialog::Icon::Exclamation;
        session.screen().messageBox(box);
    }
}

[[noreturn]] void noSuchMember(std::string_view member) {
    throw basic::Error(basic::kNoSuchMember, "VnObj0100 has no member " + std::string(member));
}

}  // namespace

VnObj0100::VnObj0100(std::shared_ptr<Session> session) : session_(std::move(session)) {}

VnObj0100::~VnObj0100() {
    basic::inDestructor([&] { Class_Terminate(); });
}

void VnObj0100::Exec(const host::Variant& Doc) {
    try {
        basic::acrossBorder([&] {
            setUp(Doc);
            session_->form("fmOwner").show(session_->screen());
        });
    } catch (const basic::Error& error) {
        ReportError(*session_, error);
    }
}

void VnObj0100::setUp(const host::Variant& Doc) {
    Session& session = *session_;
    platform::Platform& platform = session.platform();
    const platform::VersionResource& version = platform::kVersion;
    const std::string number = std::to_string(version.major) + "." + std::to_string(version.minor);

    session.AcadDoc = Doc.isNothing() ? nullptr : host::asObject(Doc);
    session.AppName = version.productName;
    session.AppTitle = session.AppName + " " + number;
    const std::string key = std::string(session::kRegistryPrefix) + session.AppName + "\\" + number;
    const auto install =
        session::ReadRegistryValue(platform, platform::RegistryRoot::LocalMachine, key, "InstallPath");
    session.InstallPath = install.isEmpty() ? std::string() : install.text();
    session.IniFile = platform.joinPath(session.InstallPath, session.AppName + ".ini");
    session.HelpFile = platform.joinPath(session.InstallPath, session.AppName + ".chm");
    session.LngFolder = session.InstallPath;
    session.CurLng.Name = session::readSetting(session, "Lng");
    language::LoadLanguages(session);
    warnOfLineFeeds(session);
    session.CmdCode = ReadLispCommand(session, kCommandSymbol);
    forEachCell(
        [&](int i, int j) { session.VTable[i][j] = session::readSetting(session, session::tableKey(i, j)); });
}

void VnObj0100::Class_Terminate() {
    Session& session = *session_;
    basic::ErrorState error;
    forEachCell([&](int i, int j) {
        error.skip([&] { session::writeSetting(session, session::tableKey(i, j), session.VTable[i][j]); });
    });
    // fmAttSet, fmHelpHidden and fmAbout stay and go only with the component.
    for (const char* dialog : {"fmAttFormat", "fmLabels", "fmParamIns", "fmReplace", "fmExtract",
                               "fmReInsert", "fmVnMessage", "fmHelp", "fmOwner"})
        error.skip([&] { session.dropForm(dialog); });
}

host::Variant VnObj0100::get(std::string_view member) { noSuchMember(member); }

void VnObj0100::set(std::string_view member, const host::Variant&) { noSuchMember(member); }

host::Variant VnObj0100::call(std::string_view member, host::Arguments& arguments) {
    if (!basic::equalIgnoringCase(member, "Exec")) noSuchMember(member);
    if (arguments.size() != 1)
        throw basic::Error(kWrongArgumentCount, "Exec takes one argument, the drawing document");
    Exec(arguments[0]);
    return {};
}

void VnObj0100::enumerate(const std::function<bool(const host::Variant&)>&) { noSuchMember("_NewEnum"); }

void ReportError(Session& session, const basic::Error& error) {
    forms::MessageDialog box;
    box.text = "Erreur " + std::to_string(error.number()) + "\r\n" + error.description();
    box.title = session.AppTitle;
    box.icon = forms::MessageDialog::Icon::Exclamation;
    session.screen().messageBox(box);
}

}  // namespace entry
