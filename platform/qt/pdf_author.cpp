#include "platform/qt/pdf_author.hpp"

#include <QRegularExpression>

namespace quittika {

namespace {

/// What the document's last part tells of it.
struct Trailer {
    QByteArray entries; ///< as they are written: how many objects, description, catalogue
    QByteArray info;    ///< "1 0": the description
    QByteArray xref;    ///< offset of the table of objects
};

Trailer trailer_of(const QByteArray& pdf) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(trailer\s*<<(.*/Info (\d+ \d+) R.*)>>\s*startxref\s+(\d+)\s+%%EOF\s*$)"),
        QRegularExpression::DotMatchesEverythingOption);
    const QByteArray end = pdf.mid(qMax<qsizetype>(0, pdf.lastIndexOf("trailer")));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(end));
    return {match.captured(1).trimmed().toLatin1(), match.captured(2).toLatin1(),
            match.captured(3).toLatin1()};
}

QByteArray text_string(const QString& text) {
    QByteArray hex = "<FEFF";
    for (const QChar c : text) {
        hex += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    }
    return hex + ">";
}

} // namespace

QByteArray with_author(QByteArray pdf, const QString& author) {
    const Trailer trailer = trailer_of(pdf);
    const QByteArray head = trailer.info + " obj";
    const qsizetype begin = trailer.info.isEmpty() ? -1 : pdf.indexOf(head);
    const qsizetype end = begin < 0 ? -1 : pdf.indexOf("endobj", begin);
    const qsizetype close = end < 0 ? -1 : pdf.lastIndexOf(">>", end);
    if (author.isEmpty() || close < begin || begin < 0) {
        return pdf;
    }
    const QByteArray info =
        pdf.mid(begin, close - begin) + "/Author " + text_string(author) + "\n>>\nendobj\n";
    const QByteArray number = trailer.info.left(trailer.info.indexOf(' '));
    const QByteArray at = QByteArray::number(pdf.size()).rightJustified(10, '0');
    pdf += info;
    const QByteArray table = QByteArray::number(pdf.size());
    pdf += "xref\n" + number + " 1\n" + at + " 00000 n \ntrailer\n<<\n" + trailer.entries + "\n/Prev " +
           trailer.xref + "\n>>\nstartxref\n" + table + "\n%%EOF\n";
    return pdf;
}

} // namespace quittika
