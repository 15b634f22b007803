#include "extract/fm_vn_message.h"

#include "language/translation.h"

namespace extract {

fmVnMessage::fmVnMessage(session::Session& session)
    : Dialog(session, "fmVnMessage", "004", "Message", 100400) {
    layOut();
    BtnSelect.onClick = [this] { BtnSelect_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { CancelButton_Click(); };
}

void fmVnMessage::layOut() {
    resizeTo(6000 + kFrameWidth, 2040 + kFrameHeight);
    Label1.place(240, 240, 5520, 855);  // three lines, for the longest of names
    Label1.setCaption("#");
    Line1.setEnds(240, 1230, 5760, 1230);
    constexpr forms::Twips kTop = 1410, kHeight = 375;
    BtnSelect.place(240, kTop, 1740, kHeight);
    BtnSelect.setCaption("Recommencer");
    OKButton.place(2130, kTop, 1740, kHeight);
    OKButton.setCaption("Zone de reférence");
    OKButton.setDefault(true);
    CancelButton.place(4020, kTop, 1740, kHeight);
    CancelButton.setCaption("Annuler");
    CancelButton.setCancel(true);
    Text1.place(5160, 60, 600, 315);
    Text1.setVisible(false);
    setFirstFocus(OKButton);
}

void fmVnMessage::Form_Initialize() { language::InitForm(session_, *this); }

void fmVnMessage::BtnSelect_Click() {
    Text1.setText("0");
    hide();
}

void fmVnMessage::OKButton_Click() {
    Text1.setText("1");
    hide();
}

void fmVnMessage::CancelButton_Click() {
    Text1.setText("2");
    hide();
}

}  // namespace extract
