#pragma once

#include <QLayout>
#include <QWidget>

namespace quittika::test {

/// A new widget of that name in its parent and in the parent's layout, if there is one.
template <class W> W* add(QWidget& parent, const char* name) {
    auto* widget = new W(&parent);
    widget->setObjectName(QString::fromUtf8(name));
    if (parent.layout() != nullptr) {
        parent.layout()->addWidget(widget);
    }
    return widget;
}

} // namespace quittika::test
