#include "platform/qt/print_paper.hpp"

#include <QMarginsF>
#include <QPageSize>
#include <QSizeF>

namespace quittika {

QPageLayout page_layout(const Paper& paper) {
    const bool across = paper.width > paper.height;
    const QSizeF upright = across ? QSizeF(paper.height, paper.width) : QSizeF(paper.width, paper.height);
    // A size that a printer knows by a name must get it, or the printer looks for a tray of its own.
    QPageLayout layout(QPageSize(upright, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch),
                       across ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

} // namespace quittika
