#include "about/fm_about.h"

#include "about/open_document.h"
#include "about/product.h"
#include "language/language.h"
#include "language/translation.h"
#include "session/settings.h"

namespace about {

fmAbout::fmAbout(session::Session& session) : Dialog(session, "fmAbout", "001", "A propos de ", 100100) {
    setIcon("vorlane");
    layOut();
    Combo1.onChange = [this] { Combo1_Change(); };
    Combo1.onClick = [this] { Combo1_Click(); };
    BtnWeb.onClick = [this] { BtnWeb_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
}

void fmAbout::layOut() {
    resizeTo(7200 + kFrameWidth, 4620 + kFrameHeight);
    Label1.place(120, 120, 6960, 255);
    Label1.setCaption("Label1");
    Label2.place(120, 420, 6960, 255);
    Label2.setCaption("Label2");
    Label3.place(120, 780, 5340, 255);
    Label3.setCaption("Label3");
    BtnWeb.place(5580, 720, 1500, 375);
    BtnWeb.setCaption("Go Web");

    Text1.place(120, 1260, 6960, 2160);
    Text1.setMultiLine(true);
    Text1.setLocked(true);
    Text1.setText(kNotice);

    Label6.place(120, 3645, 2700, 255);
    Label6.setCaption("Label6");
    Combo1.place(2940, 3600, 4140, 315);
    Combo1.setText("Combo1");
    OKButton.place(5580, 4125, 1500, 375);
    OKButton.setCaption("OK");
    OKButton.setDefault(true);
    OKButton.setCancel(true);
    setFirstFocus(OKButton);
}

void fmAbout::Form_Initialize() {
    language::InitForm(session_, *this);
    fillLanguages();
    RefreshAboutTexts();
}

void fmAbout::Form_Load() {
    // The frame's close box gives the design state back, with an empty list; the next showing fills it anew.
    if (Combo1.listCount() != 0) return;
    fillLanguages();
    RefreshAboutTexts();
}

void fmAbout::fillLanguages() {
    Combo1.clear();
    for (const session::LngRecord& language : session_.LngList) Combo1.addItem(language.Name);
}

void fmAbout::RefreshAboutTexts() {
    // Runs Combo1_Change within, and by it this once more, where it changes the text.
    Combo1.setText(session_.CurLng.Name);
    Label1.setCaption(session_.AppTitle);
    Label2.setCaption(copyrightLine());
    Label3.setCaption(kSite);
    setCaption(language::GetMsg(session_, 54) + session_.AppTitle);
    // In the other language, for the reader who is lost in this one.
    Label6.setCaption(language::GetMsg(session_, 128));
}

// Any text counts, also one half typed: a name that no language has gives the first language of the list.
void fmAbout::Combo1_Change() {
    language::SetLanguage(session_, Combo1.text());
    std::string prefix = tag();
    language::TranslateForm(session_, *this, prefix, session::kReadEntry, "");
    RefreshAboutTexts();
}

void fmAbout::Combo1_Click() { Combo1_Change(); }

void fmAbout::BtnWeb_Click() {
    // The name goes into the address as it stands, accents and all.
    OpenDocument(session_, siteAddress("/query.php?app=03&ver=01.00&act=00&lng=") + session_.CurLng.Name);
}

void fmAbout::OKButton_Click() { hide(); }

}  // namespace about
