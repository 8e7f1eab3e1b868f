#pragma once

#include "platform/forms/controls.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/platform.hpp"
#include "platform/print_surface.hpp"

#include <memory>
#include <stdexcept>
#include <string>

namespace quittika::script_test {

struct Notiz : Form {
    Notiz() : Form("Form_Notiz", "Notiz") {}
    TextBox Text{*this, "Text"};
    CommandButton Weiter{*this, "Weiter"};
    CommandButton Schliessen{*this, "Schliessen"};
};

struct Zweite : Form {
    Zweite() : Form("Form_Zweite", "Zweite|Frage") {}
    CommandButton Fehler{*this, "Fehler"};
};

struct Haupt : Form {
    Haupt() : Form("form1", "Haupt") {}
    Label Log{*this, "Log"}; ///< what happened, in order; a click empties it
    TextBox Text1{*this, "Text1", "eins"};
    TextBox Text2{*this, "Text2", "zwei"};
    TextBox Scanner{*this, "Scanner"};
    TextBox Schalter{*this, "Schalter"}; ///< "schnell", "lang" and "langsam" switch a timer on
    ListBox Liste{*this, "Liste"};
    ComboBox Offen{*this, "Offen", {"a"}, true};
    HScrollBar Rolle{*this, "Rolle", 1, 9, 5};
    Label Ziel{*this, "Ziel", "hierher"};
    CommandButton Modal{*this, "Modal"};
    CommandButton Dialoge{*this, "Dialoge"};
    CommandButton Drucken{*this, "Drucken"};
    CommandButton Bild{*this, "Bild"};
    CommandButton Spaeter{*this, "Spaeter"};
    CommandButton Arbeit{*this, "Arbeit"};
    DriveListBox Laufwerk{*this, "Laufwerk"};
    DirListBox Ordner{*this, "Ordner"};
    Timer Schnell{*this, "Schnell", 400, false};
    Timer Langsam{*this, "Langsam", 1000, false};
};

/// A program small enough to be read, with what the real one does not (yet) do to the runner.
class FakeProgram {
public:
    FakeProgram(const Platform& platform, std::string directory)
        : platform_(platform), directory_(std::move(directory)) {
        for (Form* form :
             {static_cast<Form*>(&haupt_), static_cast<Form*>(&notiz_), static_cast<Form*>(&zweite_)}) {
            platform_.desktop.adopt(*form);
        }
        wire_windows();
        wire_events();
        wire_devices();
        haupt_.Liste.assign({"Apfel", "Birne|Quitte"});
        haupt_.Show();
        log("Start " + directory_);
    }

private:
    void log(const std::string& text) { haupt_.Log.Caption = haupt_.Log.Caption() + "; " + text; }

    void wire_windows() {
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
        haupt_.Log.Click = [this] { haupt_.Log.Caption = ""; };
        for (TextBox* box : {&haupt_.Text1, &haupt_.Text2}) {
            box->GotFocus = [this, box] { log(box->name() + " rein"); };
            box->LostFocus = [this, box] { log(box->name() + " raus"); };
            box->Change = [this, box] { log(box->name() + "=" + box->Text()); };
        }
        haupt_.Scanner.Change = [this] {
            if (haupt_.Scanner.Text().ends_with("\r\n")) {
                log("Code " + haupt_.Scanner.Text());
                haupt_.Scanner.Text = "";
            }
        };
        haupt_.Schalter.Change = [this] {
            const std::string& wahl = haupt_.Schalter.Text();
            haupt_.Schnell.Enabled = wahl != "aus";
            haupt_.Schnell.Interval = wahl == "lang" ? 600 : 400;
            haupt_.Langsam.Enabled = wahl == "langsam";
        };
        haupt_.Liste.Click = [this] { log("Liste " + haupt_.Liste.Text()); };
        haupt_.Liste.DblClick = [this] { log("Doppelt"); };
        haupt_.Rolle.Change = [this] { log("Rolle " + haupt_.Rolle.main_value()); };
        haupt_.Ziel.MouseDown = [this](const MouseEvent& e) {
            log("Maus " + std::to_string(e.x + 1000 * e.y));
        };
        haupt_.Schnell.Tick = [this] { log("schnell " + std::to_string(platform_.clock.now().sekunde)); };
        haupt_.Langsam.Tick = [this] {
            log("langsam " + std::to_string(platform_.clock.now().sekunde));
            notiz_.Show(Modality::Modal);
        };
    }

    void wire_devices() {
        haupt_.Spaeter.Click = [this] {
            platform_.desktop.later([this] { log("danach"); });
            log("davor");
        };
        haupt_.Arbeit.Click = [this] { work(); };
        haupt_.Dialoge.Click = [this] {
            attempt([this] { return platform_.dialogs.open_file({"Bild|*.bmp", "", ""}); });
            attempt([this] { return platform_.dialogs.save_file({"", "5/08\tx.txt", "Sichern"}); });
            attempt([this] { return std::to_string(platform_.dialogs.choose_color(0)); });
            attempt([this] { return platform_.dialogs.choose_font("Arial"); });
        };
        haupt_.Drucken.Click = [this] { print(); };
        haupt_.Bild.Click = [this] { platform_.printing.printer({"Bild"})->picture(1, 2, 3, 4, directory_); };
    }

    void work() {
        platform_.progress.begin("nichts zu tun");
        const auto progress = platform_.progress.begin("a|b");
        for (int step = 1; step <= 3 && !progress->aborted(); ++step) {
            progress->update(static_cast<std::size_t>(step), 3);
        }
    }

    template <class Ask> void attempt(const Ask& ask) {
        try {
            log("gewählt " + ask());
        } catch (const Laufzeitfehler&) {
            log("nichts");
        }
    }

    void print() {
        const auto device = platform_.printing.printer({"Blatt\t1"});
        PrintSurface surface(*device, platform_.printing.metrics());
        surface.CurrentX = -0.001;
        surface.CurrentY = 12.345678;
        surface.FontSize = 9.5;
        surface.FontBold = true;
        surface.ForeColor = 255;
        surface.PrintOn("Nr. 1");
        surface.NewPage();
        surface.Line(0, 1, 210, 1, color::kBlack);
        surface.EndDoc();
    }

    Platform platform_;
    std::string directory_;
    Haupt haupt_;
    Notiz notiz_;
    Zweite zweite_;
};

inline std::shared_ptr<void> fake_program(const Platform& platform, const std::string& directory) {
    return std::make_shared<FakeProgram>(platform, directory);
}

} // namespace quittika::script_test
