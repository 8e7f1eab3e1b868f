#pragma once

#include "platform/forms/controls.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/platform.hpp"

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
    CommandButton Modal{*this, "Modal"};
    CommandButton Dialoge{*this, "Dialoge"};
    CommandButton Spaeter{*this, "Spaeter"};
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
        haupt_.Dialoge.Click = [this] {
            attempt([this] { return platform_.dialogs.open_file({"Bild|*.bmp", "", ""}); });
            attempt([this] { return platform_.dialogs.save_file({"", "5/08\tx.txt", "Sichern"}); });
            attempt([this] { return std::to_string(platform_.dialogs.choose_color(0)); });
            attempt([this] { return platform_.dialogs.choose_font("Arial"); });
        };
    }

    template <class Ask> void attempt(const Ask& ask) {
        try {
            log("gewählt " + ask());
        } catch (const Laufzeitfehler&) {
            log("nichts");
        }
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
