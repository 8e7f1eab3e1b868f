#pragma once

#include "platform/printing.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// Finds texts that are printed one over the other or over the edge of the sheet. Each stands where its own
/// settings put it, so a long title reaches into the date and remarks below a full page into the footer.
class Ueberdruck {
public:
    /// `erste_seite`: number of the page that is drawn first.
    explicit Ueberdruck(const Paper& papier, int erste_seite = 1) : papier_(papier), seite_(erste_seite) {}

    /// A text of the present page; its line box begins at `left`, `top` and is `width` wide, in mm.
    void text(double left, double top, double width, const PrintFont& font, std::string_view text);
    void neue_seite();

    /// For the status bar: the first such text and what helps; empty if there is none.
    std::string hinweis(std::string_view ausweg) const;

private:
    void melden(const std::string& was);

    struct Druckbild {
        double links;
        double oben;
        double rechts;
        double unten;
        std::string text;
    };

    Paper papier_;
    std::vector<Druckbild> bilder_; ///< of the present page
    int seite_;
    std::string befund_;
};

} // namespace quittika
