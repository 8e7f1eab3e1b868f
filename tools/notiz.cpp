#include "tools/notiz.hpp"

#include "invoice/notiztext.hpp"

namespace quittika {

namespace {

/// Marks a flag as long as it lives.
class Merker {
public:
    explicit Merker(bool& flagge) : flagge_(flagge) { flagge_ = true; }
    Merker(const Merker&) = delete;
    Merker& operator=(const Merker&) = delete;
    ~Merker() { flagge_ = false; }

private:
    bool& flagge_;
};

} // namespace

Notiz::Notiz(Form_Notiz& form, Form1& form1, Rechnungszustand& zustand)
    : form_(form), form1_(form1), zustand_(zustand) {
    form.Load = [this] {
        Zeigen();
        form_.Text_Notiz.SetFocus();
        if (form_.Text_Notiz.Text() == vorgabe::kNotiz) {
            form_.Text_Notiz.select_all();
        }
    };
    form.Text_Notiz.Change = [this] { Text_Notiz_Change(); };
    form.Cmd_Schliessen.Click = [&form] { form.Close(); };
}

void Notiz::Zeigen() {
    if (!nimmt_) {
        const Merker hier(zeigt_);
        form_.Text_Notiz.Text = NOTIZ_LESBAR(zustand_.Notiztext);
    }
}

void Notiz::Text_Notiz_Change() {
    if (zeigt_) {
        return;
    }
    const Merker hier(nimmt_);
    zustand_.Notiztext = NOTIZ_ABLEGEN(form_.Text_Notiz.Text());
    form1_.Text_Notiz.Text = NOTIZ_LESBAR(zustand_.Notiztext);
    zustand_.aendern();
}

} // namespace quittika
