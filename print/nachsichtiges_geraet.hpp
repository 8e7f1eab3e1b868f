#pragma once

#include "platform/printing.hpp"
#include "print/ueberdruck.hpp"

#include <string>

namespace quittika {

/// Passes everything on to another device; a drawing that fails there skips only itself.
/// A failing page feed or end of the document is still reported.
class NachsichtigesGeraet final : public PrintDevice {
public:
    /// `papier`: the sheet that `geraet` draws on; `erste_seite`: number of the page that is drawn first.
    NachsichtigesGeraet(PrintDevice& geraet, const Paper& papier, int erste_seite = 1)
        : geraet_(geraet), ueberdruck_(papier, erste_seite) {}

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    void new_page() override;
    void end_document() override { geraet_.end_document(); }

    /// The first picture that could not be drawn; empty if there was none.
    const std::string& fehlendes_bild() const { return fehlendes_bild_; }
    const Ueberdruck& ueberdruck() const { return ueberdruck_; }

private:
    PrintDevice& geraet_;
    Ueberdruck ueberdruck_;
    std::string fehlendes_bild_;
};

} // namespace quittika
