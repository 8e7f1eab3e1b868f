#pragma once

#include "platform/forms/controls.hpp"
#include "platform/forms/twips.hpp"
#include "tools/vorlagendatei.hpp"

#include <array>
#include <utility>

namespace quittika {

/// The text templates, six on each of three pages.
struct Form_txt_Vorlagen : Form {
    static constexpr int kProSeite = 6;

    Form_txt_Vorlagen() : Form_txt_Vorlagen(std::make_index_sequence<kTextvorlagen>{}) {}

    OptionButton Option1{*this, "Option1", "Vorlagen &1-6"};
    OptionButton Option2{*this, "Option2", "Vorlagen &7-12"};
    OptionButton Option3{*this, "Option3", "Vorlagen 1&3-18"};
    Frame Frame3{*this, "Frame3", "Vorlagen 1-6"};
    Frame Frame2{*this, "Frame2", "Vorlagen 7-12"};
    Frame Frame1{*this, "Frame1", "Vorlagen 13-18"};

    /// A template; its controls are elements `n` of their arrays.
    struct Vorlage {
        Vorlage(Frame& seite, int n);
        Frame Frame_Bemerkungen;
        Label Label1; ///< number, from 1
        CommandButton Command1_choose;
        std::array<TextBox, kVorlagenzeilen> Text;        ///< Text1 to Text4
        std::array<Label, kVorlagenzeilen> Label_Hinweis; ///< beside the fields, what will not be kept
    };
    std::array<Vorlage, kTextvorlagen> Vorlagen;

    CommandButton Command1_SAVE{*this, "Command1_SAVE", "&Speichern"};
    CommandButton Command1{*this, "Command1", "S&chließen"};

    std::array<OptionButton*, 3> Seitenwahl() { return {&Option1, &Option2, &Option3}; }
    std::array<Frame*, 3> Seiten() { return {&Frame3, &Frame2, &Frame1}; }

private:
    template <std::size_t... I>
    explicit Form_txt_Vorlagen(std::index_sequence<I...> /*nummern*/)
        : Form("Form_txt_Vorlagen", "Textvorlagen", {.width = twips(980), .height = twips(580)}),
          Vorlagen{{Vorlage(*Seiten().at(I / kProSeite), static_cast<int>(I))...}} {
        Option1.Value.adopt(true);
        Frame2.Visible.adopt(false);
        Frame1.Visible.adopt(false);
    }
};

} // namespace quittika
