#pragma once

#include <QByteArray>
#include <QString>

namespace quittika {

/// Enters the author in a document of the toolkit's PDF writer, which knows none. The document itself stays;
/// a new version of its description stands behind it. One without such a description stays as it is.
QByteArray with_author(QByteArray pdf, const QString& author);

} // namespace quittika
