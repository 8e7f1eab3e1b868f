#pragma once

#include "platform/printing.hpp"
#include "print/satzspiegel.hpp"
#include "print/ueberdruck.hpp"

#include <string>

namespace quittika {

/// Passes everything on to another device; a drawing that fails there skips only itself.
/// A failing page feed or end of the document is still reported.
class NachsichtigesGeraet final : public PrintDevice {
public:
    /// `papier`: the sheet that `geraet` draws on; `erste_seite`: number of the page that is drawn first.
    NachsichtigesGeraet(PrintDevice& geraet, const Paper& papier, int erste_seite = 1)
        : geraet_(geraet), ueberdruck_(papier, erste_seite), papier_(papier), belegt_(papier.height) {}

    void text(double left, double top, double width, const PrintFont& font, Color color,
              std::string_view text) override;
    void line(double x1, double y1, double x2, double y2, Color color) override;
    void picture(double left, double top, double width, double height, const std::string& path) override;
    /// Leaves a grid out that would cover something, or reach over the edge of the sheet.
    void squares(double left, double top, double size, const SquareGrid& grid) override;
    void new_page() override;
    void end_document() override { geraet_.end_document(); }

    /// The first picture that could not be drawn; empty if there was none.
    const std::string& fehlendes_bild() const { return fehlendes_bild_; }
    const Ueberdruck& ueberdruck() const { return ueberdruck_; }
    /// Whether there was no room for a grid.
    bool code_fehlt() const { return code_fehlt_; }

private:
    PrintDevice& geraet_;
    Ueberdruck ueberdruck_;
    Paper papier_;
    std::string fehlendes_bild_;
    Satzspiegel belegt_; ///< what stands on the present page
    bool code_fehlt_ = false;
};

} // namespace quittika
