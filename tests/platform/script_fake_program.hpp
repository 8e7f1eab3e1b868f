#pragma once

#include "platform/forms/controls.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/platform.hpp"
#include "platform/print_surface.hpp"

#include <memory>
#include <stdexcept>
#include <string>

namespace quittika::script_test {

/// Every byte is two millimetres wide, every line five high.
class FakeMetrics final : public FontMetrics {
public:
    double text_width(const PrintFont&, std::string_view text) const override {
        return 2.0 * static_cast<double>(text.size());
    }
    double line_height(const PrintFont&) const override { return 5; }
};

struct Splash : Form {
    Splash() : Form("Form_START", "Start") {}
    Timer Timer1{*this, "Timer1", 150};
};

struct Notiz : Form {
    Notiz() : Form("Form_Notiz", "Notiz") {}
    TextBox Text{*this, "Text"};
    CommandButton Weiter{*this, "Weiter"};
    CommandButton Schliessen{*this, "Schliessen"};
    CommandButton Drucken{*this, "Drucken"};
};

struct Zweite : Form {
    Zweite() : Form("Form_Zweite", "Zweite|Frage") {}
    CommandButton Fehler{*this, "Fehler"};
};

struct Haupt : Form {
    Haupt() : Form("form1", "Haupt") {}
    ListBox Log{*this, "Log"}; ///< what happened, in order
    TextBox Text1{*this, "Text1", "eins"};
    TextBox Text2{*this, "Text2", "zwei"};
    TextBox Scanner{*this, "Scanner"};
    ControlArray<TextBox, 2> Feld{*this, "Feld"};
    CheckBox Haken{*this, "Haken"};
    Frame Rahmen{*this, "Rahmen"};
    OptionButton Option1{Rahmen, "Option1"};
    OptionButton Option2{Rahmen, "Option2"};
    ListBox Liste{*this, "Liste"};
    ComboBox Wahl{*this, "Wahl", {"rot", "blau"}};
    ComboBox Offen{*this, "Offen", {"a"}, true};
    HScrollBar Rolle{*this, "Rolle", 1, 9, 5};
    ProgressBar Balken{*this, "Balken", 0, 100, 40};
    Label Ziel{*this, "Ziel", "hierher"};
    CommandButton Modal{*this, "Modal"};
    CommandButton Fragen{*this, "Fragen"};
    CommandButton Dialoge{*this, "Dialoge"};
    CommandButton Drucken{*this, "Drucken"};
    CommandButton Bild{*this, "Bild"};
    CommandButton Fehler{*this, "Fehler"};
    CommandButton Spaeter{*this, "Spaeter"};
    CommandButton Oeffnen{*this, "Oeffnen"};
    Timer Schnell{*this, "Schnell", 400, false};
    Timer Langsam{*this, "Langsam", 1000, false};
};

/// A program small enough to be read, with every kind of thing that the runner has to deal with.
class FakeProgram {
public:
    FakeProgram(const Platform& platform, std::string directory)
        : platform_(platform), directory_(std::move(directory)) {
        for (Form* form : {static_cast<Form*>(&splash_), static_cast<Form*>(&haupt_),
                           static_cast<Form*>(&notiz_), static_cast<Form*>(&zweite_)}) {
            platform_.desktop.adopt(*form);
        }
        wire_windows();
        wire_events();
        wire_devices();
        haupt_.Log.BackColor = 255;
        haupt_.Liste.assign({"Apfel", "Birne|Quitte"});
        splash_.Show();
    }

private:
    void log(const std::string& text) { haupt_.Log.AddItem(text); }

    void wire_windows() {
        splash_.Timer1.Tick = [this] {
            if (++splash_ticks_ == 3) {
                splash_.Close();
                haupt_.Show();
                log("Start " + directory_);
            }
        };
        haupt_.QueryUnload = [this](bool& cancel) { cancel = haupt_.Haken.ticked(); };
        haupt_.Unload = [this] { platform_.desktop.end(); };
        haupt_.Modal.Click = [this] {
            try {
                notiz_.Show(Modality::Modal);
            } catch (const std::exception&) {
                platform_.shell.open("aufgehalten");
            }
            log("zurück: " + notiz_.Text.Text());
            if (notiz_.Text.Text() == "krach") {
                throw Laufzeitfehler(fehler::kFalscherTyp);
            }
        };
        notiz_.Schliessen.Click = [this] { notiz_.Hide(); };
        notiz_.Weiter.Click = [this] { zweite_.Show(Modality::Modal); };
        notiz_.Text.LostFocus = [this] { log("Notiz raus"); };
        notiz_.Text.Change = [this] {
            if (notiz_.Text.Text() == "zu") {
                notiz_.Hide();
            } else if (notiz_.Text.Text() == "ende") {
                platform_.desktop.end();
            }
        };
        notiz_.Unload = [this] { log("Notiz entladen"); };
        zweite_.Fehler.Click = [] { throw std::runtime_error("oben\nunten"); };
    }

    void wire_events() {
        for (TextBox* box : {&haupt_.Text1, &haupt_.Text2}) {
            box->GotFocus = [this, box] { log(box->name() + " rein"); };
            box->LostFocus = [this, box] { log(box->name() + " raus"); };
            box->Change = [this, box] { log(box->name() + "=" + box->Text()); };
        }
        haupt_.Text2.Locked = true;
        haupt_.Scanner.Change = [this] {
            if (haupt_.Scanner.Text().ends_with("\r\n")) {
                log("Code " + haupt_.Scanner.Text());
                haupt_.Scanner.Text = "";
            }
        };
        haupt_.Haken.Click = [this] { log("Haken=" + haupt_.Haken.main_value()); };
        haupt_.Option2.Click = [this] { log("Option2"); };
        haupt_.Liste.Click = [this] { log("Liste " + haupt_.Liste.Text()); };
        haupt_.Liste.DblClick = [this] { log("Doppelt"); };
        haupt_.Liste.KeyDown = [this](int code) { log("Taste " + std::to_string(code)); };
        haupt_.Wahl.Click = [this] { log("Wahl " + haupt_.Wahl.Text()); };
        haupt_.Rolle.Change = [this] { log("Rolle " + haupt_.Rolle.main_value()); };
        haupt_.Ziel.MouseDown = [this](const MouseEvent& e) {
            log("Maus " + std::to_string(e.x + 1000 * e.y));
        };
        haupt_.Ziel.OLEDragDrop = [this](const std::string& text) { log("Fund " + text); };
        haupt_.Schnell.Tick = [this] { log("schnell " + std::to_string(platform_.clock.now().sekunde)); };
        haupt_.Langsam.Tick = [this] {
            log("langsam " + std::to_string(platform_.clock.now().sekunde));
            notiz_.Show(Modality::Modal);
        };
        haupt_.Feld[0].Change = [this] {
            haupt_.Schnell.Enabled = haupt_.Feld[0].Text() != "aus";
            haupt_.Schnell.Interval = haupt_.Feld[0].Text() == "lang" ? 600 : 400;
        };
        haupt_.Feld[1].Change = [this] { haupt_.Langsam.Enabled = haupt_.Feld[1].Text() == "an"; };
    }

    void wire_devices() {
        haupt_.Fehler.Click = [this] {
            haupt_.Fehler.Enabled = false;
            throw std::runtime_error("schief");
        };
        haupt_.Spaeter.Click = [this] {
            platform_.desktop.later([this] { log("danach"); });
            log("davor");
        };
        haupt_.Oeffnen.Click = [this] { platform_.shell.open("C:\\hilfe.pdf"); };
        haupt_.Fragen.Click = [this] {
            platform_.dialogs.message({"Fertig", "Hinweis", Buttons::Ok, Symbol::Information});
            platform_.dialogs.message({"a|b\nc", "Frage", Buttons::YesNo, Symbol::Question});
            platform_.dialogs.message({"Ende?", "Frage", Buttons::YesNoCancel, Symbol::Exclamation});
        };
        haupt_.Dialoge.Click = [this] {
            attempt([this] { return platform_.dialogs.open_file({"Bild|*.bmp", "", ""}); });
            attempt([this] { return platform_.dialogs.save_file({"", "x.txt", "Sichern"}); });
            attempt([this] { return std::to_string(platform_.dialogs.choose_color(0)); });
            attempt([this] { return platform_.dialogs.choose_font("Arial"); });
            attempt([this] { return std::to_string(platform_.dialogs.choose_printer({})); });
        };
        haupt_.Drucken.Click = [this] { print("Blatt\t1", 2); };
        notiz_.Drucken.Click = [this] { print("Notiz", 1); };
        haupt_.Bild.Click = [this] {
            platform_.printing.printer("Bild")->picture(1, 2, 3, 4, directory_ + "/logo.bmp");
        };
    }

    template <class Ask> void attempt(const Ask& ask) {
        try {
            log("gewählt " + ask());
        } catch (const Laufzeitfehler&) {
            log("nichts");
        }
    }

    void print(const std::string& title, int copies) {
        for (int copy = 1; copy <= copies; ++copy) {
            const auto device = platform_.printing.printer(title);
            PrintSurface surface(*device, platform_.printing.metrics());
            surface.CurrentX = -0.001;
            surface.CurrentY = 12.345678;
            surface.FontSize = 9.5;
            surface.FontBold = true;
            surface.ForeColor = 255;
            surface.PrintOn("Nr. " + std::to_string(copy));
            surface.NewPage();
            surface.Line(0, 1, 210, 1, color::kBlack);
            surface.EndDoc();
        }
    }

    Platform platform_;
    std::string directory_;
    int splash_ticks_ = 0;
    Splash splash_;
    Haupt haupt_;
    Notiz notiz_;
    Zweite zweite_;
};

inline std::shared_ptr<void> fake_program(const Platform& platform, const std::string& directory) {
    if (directory == "kaputt") {
        throw Laufzeitfehler(fehler::kPfadFehlt);
    }
    return std::make_shared<FakeProgram>(platform, directory);
}

} // namespace quittika::script_test
