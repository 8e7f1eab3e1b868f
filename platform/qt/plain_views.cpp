#include "platform/qt/plain_views.hpp"

#include "platform/qt/guard.hpp"
#include "platform/qt/qt_text.hpp"

#include <QAccessible>

namespace quittika {

namespace {

/// The design marks entries whose "&" is none of an access key, as in the name of a file.
QString menu_text(const std::string& caption, const QAction& action) {
    QString text = to_qt(caption);
    return action.property("verbatim").toBool() ? text.replace(QLatin1Char('&'), QLatin1String("&&")) : text;
}

} // namespace

LabelView::LabelView(Control& control, QLabel& widget) : TypedView(control, widget) {
    widget.setTextFormat(Qt::PlainText);
    if (widget.property("keepsPlace")
            .toBool()) { // of the design: what is around stays when it comes and goes
        QSizePolicy policy = widget.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget.setSizePolicy(policy);
    }
}

void LabelView::push(PropertyId id) {
    if (id != PropertyId::Caption) {
        return;
    }
    QString caption = lines_to_qt(control_.Caption());
    if (widget_.buddy() != nullptr) {
        caption.replace(QLatin1Char('&'), QLatin1String("&&"));
    }
    if (caption != widget_.text()) {
        widget_.setText(caption);
        if (widget_.property("announced").toBool()) { // of the design: read out when it changes
            QAccessibleEvent alert(&widget_, QAccessible::Alert);
            QAccessible::updateAccessibility(&alert);
        }
    }
}

TabView::TabView(SSTab& control, QTabWidget& widget) : TypedView(control, widget) {
    widget.tabBar()->setFocusPolicy(Qt::StrongFocus); // a click on a tab ends the entry in a field
    for (int page = 0; page < widget.count() && page < static_cast<int>(control.captions().size()); ++page) {
        widget.setTabText(page, to_qt(control.captions()[static_cast<std::size_t>(page)]));
    }
    connect(&widget, &QTabWidget::currentChanged, this, [this](int page) {
        if (page >= 0 && page != control_.Tab()) {
            guarded(control_.form(), [this, page] { control_.Tab = page; });
        }
    });
}

void TabView::push(PropertyId id) {
    if (id == PropertyId::Tab && control_.Tab() < widget_.count()) {
        widget_.setCurrentIndex(control_.Tab());
    }
}

MenuView::MenuView(Menu& control, QAction& action) : control_(control), action_(action) {
    connect(&action, &QAction::triggered, this,
            [this] { guarded(control_.form(), [this] { control_.user_click(); }); });
    for (const PropertyId id : {PropertyId::Caption, PropertyId::Enabled, PropertyId::Visible}) {
        property_changed(id);
    }
}

void MenuView::property_changed(PropertyId id) {
    switch (id) {
    case PropertyId::Caption:
        return action_.setText(menu_text(control_.Caption(), action_));
    case PropertyId::Enabled:
        return action_.setEnabled(control_.Enabled());
    case PropertyId::Visible:
        return action_.setVisible(control_.Visible());
    case PropertyId::ToolTipText:
        return action_.setToolTip(tool_tip(control_.ToolTipText()));
    default:
        return;
    }
}

} // namespace quittika
