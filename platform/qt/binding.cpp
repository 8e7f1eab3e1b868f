#include "platform/qt/binding.hpp"

#include "platform/qt/button_views.hpp"
#include "platform/qt/chart_view.hpp"
#include "platform/qt/directory_views.hpp"
#include "platform/qt/frame_view.hpp"
#include "platform/qt/list_views.hpp"
#include "platform/qt/picture_view.hpp"
#include "platform/qt/plain_views.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/range_views.hpp"
#include "platform/qt/text_views.hpp"
#include "platform/qt/widgets/late_content.hpp"

#include <QDebug>
#include <QHash>
#include <QMenu>
#include <QScrollBar>
#include <QSlider>
#include <QTabBar>
#include <QToolButton>

namespace quittika {

namespace {

using Views = std::unique_ptr<ControlView>;

/// A kind of control and a class of widgets that shows it; a kind may have several.
struct Pair {
    std::string_view kind;
    const char* widget; ///< class name, for reports
    bool (*fits)(QObject&);
    Views (*tie)(Control&, QObject&, PaintTools&);
};

template <class C, class W, class View> Views tie(Control& control, QObject& object, PaintTools& /*tools*/) {
    auto view = std::make_unique<View>(static_cast<C&>(control), static_cast<W&>(object));
    view->start();
    return view;
}

template <class W> bool is_a(QObject& object) {
    return qobject_cast<W*>(&object) != nullptr;
}

/// A widget that holds others and has no use of its own.
bool is_container(QObject& object) {
    const bool other = is_a<QLabel>(object) || is_a<QAbstractButton>(object) || is_a<QLineEdit>(object) ||
                       is_a<QComboBox>(object) || is_a<QAbstractItemView>(object) ||
                       is_a<QPlainTextEdit>(object) || is_a<QAbstractSlider>(object) ||
                       is_a<QProgressBar>(object) || is_a<QTabWidget>(object) || is_a<QChartView>(object);
    return object.isWidgetType() && !other;
}

template <Qt::Orientation Direction> bool is_scroll_bar(QObject& object) {
    const auto* bar = qobject_cast<QScrollBar*>(&object);
    return bar != nullptr && bar->orientation() == Direction;
}

bool shows_picture(QObject& object) {
    return is_a<QLabel>(object) || is_container(object);
}

bool is_command(QObject& object) {
    return is_a<QAbstractButton>(object) && !is_a<QCheckBox>(object) && !is_a<QRadioButton>(object);
}

bool is_menu(QObject& object) {
    return is_a<QAction>(object) || is_a<QMenu>(object);
}

Views tie_picture(Control& control, QObject& object, PaintTools& tools) {
    auto view = std::make_unique<PictureView>(static_cast<PictureControl&>(control),
                                              static_cast<QWidget&>(object), tools);
    view->start();
    return view;
}

Views tie_menu(Control& control, QObject& object, PaintTools& /*tools*/) {
    auto* menu = qobject_cast<QMenu*>(&object);
    QAction& action = menu != nullptr ? *menu->menuAction() : static_cast<QAction&>(object);
    return std::make_unique<MenuView>(static_cast<Menu&>(control), action);
}

constexpr Pair kPairs[] = {
    {"TextBox", "QLineEdit", is_a<QLineEdit>, tie<TextBox, QLineEdit, TextLineView>},
    {"TextBox", "QPlainTextEdit", is_a<QPlainTextEdit>, tie<TextBox, QPlainTextEdit, TextAreaView>},
    {"CheckBox", "QCheckBox", is_a<QCheckBox>, tie<CheckBox, QCheckBox, CheckBoxView>},
    {"OptionButton", "QRadioButton", is_a<QRadioButton>, tie<OptionButton, QRadioButton, OptionButtonView>},
    {"CommandButton", "QPushButton", is_command, tie<CommandButton, QAbstractButton, CommandButtonView>},
    {"Label", "QLabel", is_a<QLabel>, tie<Control, QLabel, LabelView>},
    {"StatusPanel", "QLabel", is_a<QLabel>, tie<Control, QLabel, LabelView>},
    {"Frame", "QFrame", is_container, tie<Control, QWidget, FrameView>},
    {"Shape", "QFrame", is_container, tie<Control, QWidget, FrameView>},
    {"Line", "QFrame", is_container, tie<Control, QWidget, FrameView>},
    {"ListBox", "QListView", is_a<QListView>, tie<ListBox, QListView, ListBoxView>},
    {"Chart", "QChartView", is_a<QChartView>, tie<Chart, QChartView, ChartBarsView>},
    {"ComboBox", "QComboBox", is_a<QComboBox>, tie<ComboBox, QComboBox, ComboBoxView>},
    {"HScrollBar", "horizontal QScrollBar", is_scroll_bar<Qt::Horizontal>,
     tie<RangeControl, QAbstractSlider, RangeView>},
    {"VScrollBar", "vertical QScrollBar", is_scroll_bar<Qt::Vertical>,
     tie<RangeControl, QAbstractSlider, RangeView>},
    {"Slider", "QSlider", is_a<QSlider>, tie<RangeControl, QAbstractSlider, RangeView>},
    {"ProgressBar", "QProgressBar", is_a<QProgressBar>, tie<ProgressBar, QProgressBar, ProgressView>},
    {"Image", "QLabel", shows_picture, tie_picture},
    {"PictureBox", "QLabel", shows_picture, tie_picture},
    {"Menu", "QAction", is_menu, tie_menu},
    {"SSTab", "QTabWidget", is_a<QTabWidget>, tie<SSTab, QTabWidget, TabView>},
    {"DriveListBox", "QComboBox", is_a<QComboBox>, tie<DriveListBox, QComboBox, DriveView>},
    {"DirListBox", "QTreeView", is_a<QTreeView>, tie<DirListBox, QTreeView, DirectoryView>},
};

bool needs_widget(const Control& control) {
    return control.kind() != "Timer" && !control.data_only();
}

const Pair* pair_of(const Control& control, QObject& object) {
    for (const Pair& pair : kPairs) {
        if (pair.kind == control.kind() && pair.fits(object)) {
            return &pair;
        }
    }
    return nullptr;
}

std::string wanted_class(const Control& control) {
    std::string classes;
    for (const Pair& pair : kPairs) {
        if (pair.kind == control.kind()) {
            classes += (classes.empty() ? "" : " or ") + std::string(pair.widget);
        }
    }
    return classes;
}

bool is_helper(const QString& name) {
    return name.isEmpty() || name.startsWith(QLatin1String("ui_")) || name.startsWith(QLatin1String("qt_")) ||
           name.startsWith(QLatin1String("_q_"));
}

/// The design compiler writes "Text(1)" as "Text_1_"; gives the elements of control arrays their names back.
void restore_names(const Form& form, QMultiHash<QString, QObject*>& parts) {
    for (const Control* control : form.controls()) {
        if (control->index() < 0) {
            continue;
        }
        const QString name = to_qt(control->name());
        QString written = name;
        written.replace(QLatin1Char('('), QLatin1Char('_')).replace(QLatin1Char(')'), QLatin1Char('_'));
        for (QObject* object : parts.values(written)) {
            object->setObjectName(name);
            parts.insert(name, object);
        }
        parts.remove(written);
    }
}

/// Widgets and actions of the window by name.
QMultiHash<QString, QObject*> named_parts(const Form& form, QWidget& window) {
    QMultiHash<QString, QObject*> parts;
    for (QObject* object : window.findChildren<QObject*>()) {
        const bool part = object->isWidgetType() || is_a<QAction>(*object);
        const bool of_tab_bar = qobject_cast<QTabBar*>(object->parent()) != nullptr;
        if (part && !of_tab_bar && !is_helper(object->objectName())) {
            parts.insert(object->objectName(), object);
        }
    }
    restore_names(form, parts);
    return parts;
}

/// What is wrong between the pages of a form and those of its window; empty when all is right.
std::string page_finding(const Control& control, const QWidget& widget) {
    if (const auto* tabs = dynamic_cast<const SSTab*>(&control)) {
        const auto count = static_cast<std::size_t>(static_cast<const QTabWidget&>(widget).count());
        return count == tabs->captions().size() ? "" : "has " + std::to_string(count) + " pages";
    }
    const auto* tabs = dynamic_cast<const SSTab*>(control.container().container_control());
    if (tabs == nullptr) {
        return {};
    }
    const auto index = tabs->index_of(control.container());
    const auto* around = widget.window()->findChild<QTabWidget*>(to_qt(tabs->name()));
    const QWidget* page = around == nullptr ? nullptr : around->widget(index);
    return page != nullptr && page->isAncestorOf(&widget) ? "" : "not on page " + std::to_string(index);
}

std::string finding(const Control& control, const QList<QObject*>& widgets) {
    const std::string name = control.form().name() + "." + control.name();
    if (widgets.isEmpty()) {
        return name + ": no widget; a " + std::string(control.kind()) + " needs a " + wanted_class(control);
    }
    if (widgets.size() > 1) {
        return name + ": " + std::to_string(widgets.size()) + " widgets of that name";
    }
    if (pair_of(control, *widgets.front()) == nullptr) {
        return name + ": a " + widgets.front()->metaObject()->className() + " cannot show a " +
               std::string(control.kind()) + ", it needs a " + wanted_class(control);
    }
    auto* widget = qobject_cast<QWidget*>(widgets.front());
    if (widget == nullptr) {
        return control.placing() == Placing::Layout ? "" : name + ": has a place, but no widget stands there";
    }
    std::string wrong = place_finding(control, *widget);
    if (wrong.empty()) {
        wrong = page_finding(control, *widget);
    }
    return wrong.empty() ? "" : name + ": " + wrong;
}

/// Ties the controls that nothing shows yet; returns the names of those for which there is no widget.
std::vector<std::string> bind_missing(Form& form, QWidget& window, PaintTools& tools) {
    std::vector<std::string> missing;
    const QMultiHash<QString, QObject*> parts = named_parts(form, window);
    for (Control* control : form.controls()) {
        if (control->view() != nullptr || !needs_widget(*control)) {
            continue;
        }
        QObject* object = parts.value(to_qt(control->name()));
        const Pair* pair = object == nullptr ? nullptr : pair_of(*control, *object);
        if (pair != nullptr) {
            control->attach(pair->tie(*control, *object, tools));
        } else {
            missing.push_back(control->name());
        }
    }
    return missing;
}

} // namespace

void bind(Form& form, QWidget& window, PaintTools& tools) {
    bool complete = true;
    for (LateContent* late : window.findChildren<LateContent*>()) {
        if (!late->is_complete()) {
            complete = false;
            QObject::connect(late, &LateContent::completed, late,
                             [&form, &window, &tools] { bind_missing(form, window, tools); });
        }
    }
    const std::vector<std::string> missing = bind_missing(form, window, tools);
    for (const std::string& name : complete ? missing : std::vector<std::string>{}) {
        qWarning("%s.%s is not shown", form.name().c_str(), name.c_str());
    }
}

void unbind(Form& form) {
    for (Control* control : form.controls()) {
        control->attach(nullptr);
    }
}

std::vector<std::string> check_binding(Form& form, QWidget& window) {
    for (LateContent* late : window.findChildren<LateContent*>()) {
        late->complete();
    }
    std::vector<std::string> findings;
    if (form.Width() <= 0 || form.Height() <= 0) {
        findings.push_back(form.name() + ": no size to start with");
    }
    const QMultiHash<QString, QObject*> parts = named_parts(form, window);
    for (const Control* control : form.controls()) {
        if (!needs_widget(*control)) {
            continue;
        }
        std::string found = finding(*control, parts.values(to_qt(control->name())));
        if (!found.empty()) {
            findings.push_back(std::move(found));
        }
    }
    for (const QString& name : parts.uniqueKeys()) {
        const Control* control = form.find(from_qt(name));
        if (control == nullptr || !needs_widget(*control)) {
            findings.push_back(form.name() + "." + from_qt(name) + ": no control is shown by this " +
                               parts.value(name)->metaObject()->className());
        }
    }
    return findings;
}

} // namespace quittika
