#include "language/language.h"

#include "basic/error.h"
#include "basic/error_state.h"
#include "basic/numbers.h"
#include "basic/text.h"
#include "platform/platform.h"
#include "session/settings.h"

#include <algorithm>
#include <limits>
#include <string>

namespace language {

using session::LngRecord;

void LoadLanguages(Session& session) {
    platform::Platform& platform = session.platform();
    if (session.LngFolder.empty()) session.LngFolder = platform.joinPath(platform.ownFolder(), "Languages");
    session.LngList.clear();
    for (std::string& path : platform.folderFiles(session.LngFolder)) {
        // The dot isn't looked at: any name that merely ends in these letters is a language file.
        if (!basic::toUpper(path).ends_with("LNG")) continue;
        if (session.LngList.size() >= std::numeric_limits<std::int16_t>::max())
            throw basic::Error(basic::kOverflow);
        std::string name = LngValue(session, ":Language", path, session::kReadEntry, {});
        session.LngList.push_back({std::move(name), std::move(path)});
    }
    SetLanguage(session, session.CurLng.Name);
}

void SetLanguage(Session& session, const std::string& Name) {
    const auto& list = session.LngList;
    if (list.empty()) return;
    auto found = std::find_if(list.begin(), list.end(), [&](const LngRecord& l) { return l.Name == Name; });
    if (found == list.end()) found = list.begin();
    session.CurLng = *found;
    basic::ErrorState error;
    error.skip([&] { session::writeSetting(session, "Lng", found->Name); });
}

std::string LngValue(const Session& session, const std::string& Key, std::string& File, std::int16_t Mode,
                     const std::string& Value) {
    if (File.empty()) File = session.CurLng.File;
    return session.entryFiles().value(Key, File, Mode, Value, session::Overwrite::EmptyOnly);
}

std::string GetMsg(const Session& session, std::int32_t Id) {
    std::string file;
    return LngValue(session, "msg_" + std::to_string(Id), file, session::kReadEntry, {});
}

std::string LngFormat(const Session& session, const std::string& Key, const basic::Array& Args) {
    std::string file;
    const std::string text = LngValue(session, Key, file, session::kReadEntry, {});
    std::string result = basic::replaceAll(text, "\\\\", "\r\n");
    for (std::size_t n = 0; n < Args.size(); ++n) {
        const std::string value = basic::toText(Args[n], session.platform().regional());
        result = basic::replaceAll(result, std::string("{").append(std::to_string(n)).append("}"), value);
    }
    return result;
}

}  // namespace language
