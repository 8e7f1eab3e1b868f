#include "platform/qt/print_metrics.hpp"

#include "platform/qt/print_paper.hpp"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QString>

#include <algorithm>
#include <array>

namespace quittika {

namespace {

constexpr double kMmPerPoint = kMmPerInch / 72;
constexpr int kEm = 1000;             ///< pixels at which outlines are measured
constexpr char16_t kTableEnd = 0x250; ///< end of the Latin letters whose widths are kept
constexpr const char* kFallbackFamily = "Liberation Sans";

struct Substitution {
    const char* name;
    const char* family;
};

constexpr Substitution kSubstitutions[] = {
    {"Arial", "Liberation Sans"},         {"Helvetica", "Liberation Sans"},
    {"MS Sans Serif", "Liberation Sans"}, {"Courier New", "Liberation Mono"},
    {"Courier", "Liberation Mono"},       {"Times New Roman", "Liberation Serif"},
    {"Times", "Liberation Serif"},
};

QString family_for(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    for (const Substitution& entry : kSubstitutions) {
        if (wanted.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0 &&
            QFontDatabase::hasFamily(QLatin1String(entry.family))) {
            return QLatin1String(entry.family);
        }
    }
    return QFontDatabase::hasFamily(wanted) ? wanted : QString(QLatin1String(kFallbackFamily));
}

QFont plain_font(const PrintFont& font) {
    QFont result(family_for(font.name));
    result.setBold(font.bold);
    result.setKerning(false);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setStyleStrategy(QFont::PreferOutline);
    return result;
}

QFont measuring_font(const PrintFont& font) {
    QFont result = plain_font(font);
    result.setPixelSize(kEm);
    return result;
}

} // namespace

QFont paper_font(const PrintFont& font) {
    QFont result = plain_font(font);
    result.setPointSizeF(font.size);
    return result;
}

struct QtFontMetrics::Face {
    explicit Face(const PrintFont& font)
        : name(font.name),
          bold(font.bold),
          metrics(measuring_font(font)),
          outlines(QRawFont::fromFont(measuring_font(font))) {
        widths.fill(-1);
        indexes.fill(kUnknown);
    }

    /// Number of a letter's outline, 0 where the font has none for it alone.
    quint32 index_of(char16_t letter) {
        quint32& index = indexes[letter];
        if (index == kUnknown) {
            const QChar c(letter);
            const QVector<quint32> found =
                c.isPrint() ? outlines.glyphIndexesForString(QString(c)) : QVector<quint32>();
            index = found.size() == 1 ? found.front() : 0;
        }
        return index;
    }

    double width_of(char16_t letter) {
        double& width = widths[letter];
        if (width < 0) {
            width = metrics.horizontalAdvance(QString(QChar(letter)));
        }
        return width;
    }

    /// In pixels of the measuring size.
    double width(std::string_view text) {
        double sum = 0;
        if (std::all_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
            for (const char c : text) {
                sum += width_of(static_cast<char16_t>(c));
            }
            return sum;
        }
        const QString wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        for (const QChar c : wide) {
            if (c.unicode() >= kTableEnd) {
                return metrics.horizontalAdvance(wide);
            }
            sum += width_of(c.unicode());
        }
        return sum;
    }

    std::string name;
    bool bold;
    static constexpr quint32 kUnknown = ~quint32{0};

    QFontMetricsF metrics;
    QRawFont outlines;
    std::array<double, kTableEnd> widths;
    std::array<quint32, kTableEnd> indexes;
};

QtFontMetrics::QtFontMetrics() = default;
QtFontMetrics::~QtFontMetrics() = default;

QtFontMetrics::Face& QtFontMetrics::face(const PrintFont& font) const {
    for (const std::unique_ptr<Face>& known : faces_) {
        if (known->bold == font.bold && known->name == font.name) {
            return *known;
        }
    }
    return *faces_.emplace_back(std::make_unique<Face>(font));
}

double QtFontMetrics::text_width(const PrintFont& font, std::string_view text) const {
    return face(font).width(text) / kEm * font.size * kMmPerPoint;
}

Outlines QtFontMetrics::outlines(const PrintFont& font, std::string_view text, double unit) const {
    Face& face = this->face(font);
    const QString wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const double pixel = unit / kEm * font.size * kMmPerPoint;
    Outlines result;
    result.indexes.reserve(wide.size());
    result.places.reserve(wide.size());
    double left = 0;
    for (const QChar c : wide) {
        const quint32 index = c.unicode() < kTableEnd ? face.index_of(c.unicode()) : 0;
        if (index == 0) {
            return {};
        }
        result.indexes.push_back(index);
        result.places.push_back({left * pixel, 0});
        left += face.width_of(c.unicode());
    }
    return result;
}

double QtFontMetrics::line_height(const PrintFont& font) const {
    return face(font).metrics.height() / kEm * font.size * kMmPerPoint;
}

double QtFontMetrics::ascent(const PrintFont& font) const {
    return face(font).metrics.ascent() / kEm * font.size * kMmPerPoint;
}

} // namespace quittika
