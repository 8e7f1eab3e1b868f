#include "platform/qt/qt_text.hpp"

#include <QFile>
#include <QTextDocument>

#include <algorithm>

namespace quittika {

namespace {

/// Characters that the control counts for the unit at `i`: a line end is two, half a pair is none.
int weight(const QString& text, int i) {
    if (text.at(i) == QLatin1Char('\n')) {
        return 2;
    }
    const bool second_half = text.at(i).isLowSurrogate() && i > 0 && text.at(i - 1).isHighSurrogate();
    return second_half ? 0 : 1;
}

} // namespace

QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string from_qt(const QString& text) {
    return text.toStdString();
}

QString lines_to_qt(std::string_view text) {
    QString lines = to_qt(text);
    if (lines.contains(QLatin1Char('\r'))) {
        lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    }
    return lines;
}

std::string lines_from_qt(QString text) {
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return from_qt(text);
}

#ifdef Q_OS_WIN
QString path_to_qt(const std::string& path) {
    return to_qt(path);
}
std::string path_from_qt(const QString& path) {
    return from_qt(path);
}
#else
QString path_to_qt(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}
std::string path_from_qt(const QString& path) {
    return QFile::encodeName(path).toStdString();
}
#endif

int widget_position(const QString& text, int characters) {
    int position = 0;
    for (int counted = 0; position < text.size(); ++position) {
        counted += weight(text, position);
        if (counted > characters) {
            break;
        }
    }
    return position;
}

int control_position(const QString& text, int position) {
    int counted = 0;
    const int end = std::min(position, static_cast<int>(text.size()));
    for (int i = 0; i < end; ++i) {
        counted += weight(text, i);
    }
    return counted;
}

QString tool_tip(std::string_view text) {
    const QString plain = to_qt(text);
    return Qt::mightBeRichText(plain) ? plain.toHtmlEscaped() : plain;
}

} // namespace quittika
