#include "platform/qt/qt_desktop.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/amount_field.hpp"
#include "platform/qt/widgets/card.hpp"
#include "platform/qt/widgets/contrast.hpp"
#include "platform/qt/widgets/late_content.hpp"
#include "settings/programmstil.hpp"
#include "tests/qt/desktop_look.hpp"
#include "tests/qt/form_table.hpp"
#include "tests/qt/shipped.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <random>

namespace quittika::test {
namespace {

struct Text {
    QString what;
    QRect place; ///< in the window
    bool enabled;
    bool alone; ///< nothing but ground and text is drawn there
};

/// The texts that a user sees in a window, and where they stand.
class Texts {
public:
    explicit Texts(QWidget& window) : window_(window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && !widget->visibleRegion().isEmpty()) {
                add(*widget);
            }
        }
    }
    const std::vector<Text>& all() const { return texts_; }

private:
    void add(const QWidget& widget, const QString& text, const QRect& place, bool alone = false) {
        const QRect seen = place.intersected(widget.visibleRegion().boundingRect());
        if (!text.trimmed().isEmpty() && !seen.isEmpty()) {
            texts_.push_back({widget.objectName() + ": " + text,
                              seen.translated(widget.mapTo(&window_, QPoint())), widget.isEnabled(), alone});
        }
    }

    void add(const QWidget& widget) {
        QStyleOptionButton button;
        QStyleOptionComboBox combo;
        button.initFrom(&widget);
        combo.initFrom(&widget);
        const QStyle& style = *widget.style();
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            add(widget, label->text(), label->contentsRect(), true);
        } else if (const auto* tick = qobject_cast<const QCheckBox*>(&widget)) {
            add(widget, tick->text(), style.subElementRect(QStyle::SE_CheckBoxContents, &button, &widget));
        } else if (const auto* option = qobject_cast<const QRadioButton*>(&widget)) {
            add(widget, option->text(),
                style.subElementRect(QStyle::SE_RadioButtonContents, &button, &widget));
        } else if (const auto* pressed = qobject_cast<const QAbstractButton*>(&widget)) {
            add(widget, pressed->text(), widget.rect().adjusted(4, 4, -4, -4));
        } else if (const auto* group = qobject_cast<const Card*>(&widget)) {
            add(widget, group->title(), QRect(2, 2, widget.width() - 4, widget.fontMetrics().height() + 5));
        } else if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) {
            QStyleOptionGroupBox box;
            box.initFrom(&widget);
            box.text = frame->title();
            box.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
            add(widget, frame->title(),
                style.subControlRect(QStyle::CC_GroupBox, &box, QStyle::SC_GroupBoxLabel, &widget));
        } else if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
            add(widget, line->text(), widget.rect().adjusted(3, 3, -3, -3));
        } else if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget)) {
            const QRect lines(0, 0, area->viewport()->width(), 2 * widget.fontMetrics().height());
            add(*area->viewport(), area->toPlainText(), lines);
        } else if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
            add(widget, choice->currentText(),
                style.subControlRect(QStyle::CC_ComboBox, &combo, QStyle::SC_ComboBoxEditField, &widget));
        } else if (const auto* list = qobject_cast<const QListView*>(&widget)) {
            const QModelIndex first = list->model()->index(0, 0);
            add(*list->viewport(), first.data().toString(), list->visualRect(first));
        } else if (const auto* menu = qobject_cast<const QMenuBar*>(&widget)) {
            for (QAction* entry : menu->actions()) {
                add(widget, entry->text(), menu->actionGeometry(entry));
            }
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                add(widget, tabs->tabText(i), tabs->tabRect(i).adjusted(3, 3, -3, -3));
            }
        }
    }

    QWidget& window_;
    std::vector<Text> texts_;
};

/// The contrast of what is drawn at a place: of the ground, the colour that most of it has, to what stands
/// out most. Where nothing else is drawn, every other shade of the ground counts too.
double drawn_contrast(const QImage& picture, const Text& text) {
    constexpr int kStem = 3; ///< pixels; a letter has more of its colour
    QHash<QRgb, int> colors;
    const QRect place = text.place.intersected(picture.rect());
    for (int y = place.top(); y <= place.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* end = line + place.right() + 1;
        for (const auto* run = line + place.left(); run != end;) {
            const auto* next = std::find_if(run, end, [run](QRgb color) { return color != *run; });
            colors[*run] += static_cast<int>(next - run);
            run = next;
        }
    }
    QRgb ground = 0;
    int most = 0;
    for (const auto& [color, count] : colors.asKeyValueRange()) {
        if (count > most) {
            most = count;
            ground = color;
        }
    }
    QRgb letters = ground;
    double best = 1;
    for (const auto& [color, count] : colors.asKeyValueRange()) {
        const double contrast = theme::contrast(QColor(color), QColor(ground));
        if (count >= kStem && contrast > best) {
            best = contrast;
            letters = color;
        }
    }
    for (const QRgb color : text.alone ? colors.keys() : QList<QRgb>()) {
        best = color == letters ? best : std::min(best, theme::contrast(QColor(color), QColor(letters)));
    }
    return best;
}

/// All windows of the program on one desktop, their letters drawn without softened edges.
class Contrast {
public:
    explicit Contrast(const QPalette& palette) : look_(sharp(), palette) {
        desktop_.adopt(einstellungen_);
        for (const MakeForm make : kForms) {
            forms_.push_back(make());
            desktop_.adopt(*forms_.back());
        }
        programm().Image_Speicher_stroh.Picture = shipped("stroh.png");
        programm().Image_Speicher_strohbraun.Picture = shipped("strohbraun.png");
        for (const auto& form : forms_) {
            prepare(*form);
        }
        stil_.emplace(form<Form1>(), einstellungen_, programm(), werte_, desktop_, [] {});
    }

    frm_Programm& programm() { return form<frm_Programm>(); }
    PROGRAMMEINSTELLUNG& werte() { return werte_; }

    void click(OptionButton& style) {
        style.Value = true;
        stil_->Option_stil_Click();
    }

    /// Each text that is harder to read than it may be, in all windows as they are now and all disabled.
    std::string findings() {
        std::string found;
        for (const auto& form : forms_) {
            QWidget& window = *desktop_.window(*form);
            for (const bool enabled : {true, false}) {
                window.setEnabled(enabled);
                look_at_pages(window, found);
            }
            window.setEnabled(true);
        }
        return found;
    }
    int seen() const { return seen_; }

private:
    static QFont sharp() {
        QFont font = QApplication::font();
        font.setStyleStrategy(QFont::NoAntialias);
        return font;
    }

    template <class F> F& form() {
        for (const auto& form : forms_) {
            if (auto* wanted = dynamic_cast<F*>(form.get())) {
                return *wanted;
            }
        }
        throw std::logic_error("no such form");
    }

    void prepare(Form& form) {
        QWidget& window = *desktop_.window(form);
        for (LateContent* late : window.findChildren<LateContent*>()) {
            late->complete();
        }
        for (QToolButton* heading : window.findChildren<QToolButton*>()) {
            heading->setChecked(heading->isCheckable());
        }
        for (Control* control : form.controls()) {
            if (auto* list = dynamic_cast<ListBox*>(control)) {
                list->AddItem("Zeile");
            } else if (auto* field = dynamic_cast<TextBox*>(control);
                       field != nullptr && field->Text().size() < 2) {
                field->Text = "Text";
            }
        }
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.resize(1500, 1700);
        window.show();
        QTest::qWait(1);
        for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            button->setIcon(QIcon()); // nothing but letters shall stand out
        }
        for (QLineEdit* line : window.findChildren<QLineEdit*>()) {
            line->deselect();
        }
        if (window.focusWidget() != nullptr) {
            window.focusWidget()->clearFocus();
        }
    }

    void look_at_pages(QWidget& window, std::string& found) {
        auto* tabs = window.findChild<QTabWidget*>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr) {
                tabs->setCurrentIndex(page);
            }
            look_at(window, found);
        }
    }

    void look_at(QWidget& window, std::string& found) {
        QImage picture(window.size(), QImage::Format_RGB32);
        window.render(&picture);
        const Texts texts(window);
        for (const Text& text : texts.all()) {
            const double contrast = drawn_contrast(picture, text);
            ++seen_;
            if (contrast < (text.enabled ? theme::kTextContrast : theme::kDisabledContrast)) {
                found += from_qt(window.objectName() + "." + text.what) + " has " + std::to_string(contrast) +
                         "\n";
            }
        }
        for (const QLineEdit* line : window.findChildren<QLineEdit*>()) {
            const QPalette palette = line->palette();
            const QColor base = palette.color(QPalette::Active, QPalette::Base);
            const QColor ground = base.alpha() > 0 ? base : palette.color(QPalette::Active, QPalette::Window);
            if (theme::contrast(palette.color(QPalette::Active, QPalette::Highlight), ground) <
                theme::kDisabledContrast) {
                found += "selection in " + from_qt(line->objectName()) + "\n";
            }
        }
    }

    DesktopLook look_;
    QtDesktop desktop_;
    frm_einstellungen einstellungen_;
    PROGRAMMEINSTELLUNG werte_;
    std::vector<std::unique_ptr<Form>> forms_;
    std::optional<Programmstil> stil_;
    int seen_ = 0;
};

void expect_readable_in_all_styles(Contrast& windows) {
    for (Control* control : windows.programm().controls()) {
        auto* style = dynamic_cast<OptionButton*>(control);
        if (style != nullptr) {
            windows.click(*style);
            EXPECT_EQ(windows.findings(), "") << style->Caption();
        }
    }
    EXPECT_GT(windows.seen(), 8 * 300);
}

TEST(Contrast, EachTextOfEachWindowInEveryStyle) {
    ASSERT_NE(shipped("stroh.png"), "");
    Contrast windows(QApplication::palette());
    expect_readable_in_all_styles(windows);
}

TEST(Contrast, TheSameOnADarkDesktop) {
    Contrast windows(dark_palette());
    expect_readable_in_all_styles(windows);
}

TEST(Contrast, ColoursOfOnesOwn) {
    Contrast windows(QApplication::palette());
    std::mt19937 chance(2008);
    const auto color = [&chance] { return static_cast<Color>(chance() & 0xFFFFFF); };
    for (int pair = 0; pair < 20; ++pair) {
        windows.werte().FARBE_INDIVIDUELL_HINTERGRUND = color();
        windows.werte().FARBE_INDIVIDUELL_FORMULAR = color();
        windows.click(windows.programm().Option_stil5);
        EXPECT_EQ(windows.findings(), "") << windows.werte().FARBE_INDIVIDUELL_HINTERGRUND << " and "
                                          << windows.werte().FARBE_INDIVIDUELL_FORMULAR;
    }
}

} // namespace
} // namespace quittika::test
