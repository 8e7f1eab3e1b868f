#pragma once

#include "platform/printing.hpp"

#include <QFont>
#include <QPointF>
#include <QVector>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quittika {

/// The font that stands for `font` on paper: unhinted, without kerning and ligatures, so that a text is
/// as wide as the sum of its characters. Well-known names lead to their metric-compatible free families.
QFont paper_font(const PrintFont& font);

/// A text as outlines of one font: which, and where each begins on the base line.
struct Outlines {
    QVector<quint32> indexes;
    QVector<QPointF> places;
};

/// Measures with the outlines themselves, so that every device gets the same values.
/// Widths of the usual characters are kept; for one thread only. Needs a `QGuiApplication`.
class QtFontMetrics final : public FontMetrics {
public:
    QtFontMetrics();
    ~QtFontMetrics() override;

    double text_width(const PrintFont& font, std::string_view text) const override;
    double line_height(const PrintFont& font) const override;
    /// The outlines of `text`, each as far from the one before as that is wide; `unit` is a millimetre. Empty
    /// for a text that the font cannot show by itself, letter by letter.
    Outlines outlines(const PrintFont& font, std::string_view text, double unit) const;
    /// From the top of a line to its base line, mm.
    double ascent(const PrintFont& font) const;

private:
    struct Face;
    Face& face(const PrintFont& font) const;

    mutable std::vector<std::unique_ptr<Face>> faces_;
};

} // namespace quittika
