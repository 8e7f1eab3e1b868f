#include "tests/qt/desktop_look.hpp"
#include "tests/qt/test_form.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {
namespace {

struct Pushed {
    const char* what;
    void (*set)(AllKinds&);
    const char* widget;
    const char* property; ///< of the widget
    const char* value;
};

const Pushed kPushed[] = {
    {"text", [](AllKinds& f) { f.Field.Text = "Müller & Söhne"; }, "Field", "text", "Müller & Söhne"},
    {"lines", [](AllKinds& f) { f.Note.Text = "a\r\nb"; }, "Note", "plainText", "a\nb"},
    {"locked text", [](AllKinds& f) { f.Field.Locked = true; }, "Field", "readOnly", "true"},
    {"tick", [](AllKinds& f) { f.Tick.Value = 1; }, "Tick", "checked", "true"},
    {"grey tick", [](AllKinds& f) { f.Tick.Value = 2; }, "Tick", "tristate", "true"},
    {"option", [](AllKinds& f) { f.Second.Value = true; }, "Second", "checked", "true"},
    {"sibling of an option", [](AllKinds& f) { f.Second.Value = true; }, "First", "checked", "false"},
    {"caption of a button", [](AllKinds& f) { f.Button.Caption = "&Los"; }, "Button", "text", "&Los"},
    {"caption of a label", [](AllKinds& f) { f.Caption_.Caption = "A & <b>"; }, "Caption_", "text",
     "A & <b>"},
    {"caption of a frame", [](AllKinds& f) { f.Choice.Caption = "Wahl"; }, "Choice", "title", "Wahl"},
    {"caption of a plain frame", [](AllKinds& f) { f.Back.Caption = "&Seite"; }, "ui_Rahmentitel", "text",
     "&Seite"},
    {"caption of a menu", [](AllKinds& f) { f.Entry.Caption = "&Neu"; }, "Entry", "text", "&Neu"},
    {"hidden menu", [](AllKinds& f) { f.Entry.Visible = false; }, "Entry", "visible", "false"},
    {"panel", [](AllKinds& f) { f.Panel.Caption = "Fertig"; }, "Panel", "text", "Fertig"},
    {"disabled", [](AllKinds& f) { f.Button.Enabled = false; }, "Button", "enabled", "false"},
    {"disabled frame", [](AllKinds& f) { f.Choice.Enabled = false; }, "Second", "enabled", "false"},
    {"tool tip", [](AllKinds& f) { f.Button.ToolTipText = "Hilfe"; }, "Button", "toolTip", "Hilfe"},
    {"tool tip like markup", [](AllKinds& f) { f.Button.ToolTipText = "<b>x</b>"; }, "Button", "toolTip",
     "&lt;b&gt;x&lt;/b&gt;"},
    {"choice in a box", [](AllKinds& f) { f.Fixed.ListIndex = 2; }, "Fixed", "currentText", "three"},
    {"no choice in a box", [](AllKinds& f) { f.Fixed.Text = "other"; }, "Fixed", "placeholderText", "other"},
    {"text in an editable box", [](AllKinds& f) { f.Typed.Text = "other"; }, "Typed", "currentText", "other"},
    {"scroll bar", [](AllKinds& f) { f.Bar.Value = 7; }, "Bar", "value", "7"},
    {"bound of a scroll bar", [](AllKinds& f) { f.Bar.Max = 20; }, "Bar", "maximum", "20"},
    {"bound that takes the value along", [](AllKinds& f) { f.Bar.Min = 5; }, "Bar", "value", "5"},
    {"slider", [](AllKinds& f) { f.Knob.Value = 9; }, "Knob", "value", "9"},
    {"progress", [](AllKinds& f) { f.Progress.Value = 40; }, "Progress", "value", "40"},
    {"tab", [](AllKinds& f) { f.Tabs.Tab = 1; }, "Tabs", "currentIndex", "1"},
    {"element of an array", [](AllKinds& f) { f.Line[1].Text = "eins"; }, "Line(1)", "text", "eins"},
};

class PushedTest : public ::testing::TestWithParam<Pushed> {};

TEST_P(PushedTest, BeforeAndAfterBinding) {
    const Pushed& c = GetParam();
    const auto shown = [&](Bound& bound) {
        const auto* object = bound.window->findChild<QObject*>(QString::fromUtf8(c.widget));
        return object == nullptr ? QString() : object->property(c.property).toString();
    };
    Bound late;
    EXPECT_NE(shown(late), QString::fromUtf8(c.value)) << "the case shows nothing";
    c.set(late.form);
    EXPECT_EQ(shown(late), QString::fromUtf8(c.value));

    Bound early;
    unbind(early.form);
    early.window = window_for_all_kinds();
    c.set(early.form);
    bind(early.form, *early.window, early.tools);
    EXPECT_EQ(shown(early), QString::fromUtf8(c.value));
}

INSTANTIATE_TEST_SUITE_P(Properties, PushedTest, ::testing::ValuesIn(kPushed),
                         [](const auto& row) { return case_name(row.param.what); });

struct Used {
    const char* what;
    void (*act)(Bound&);
    const char* control;
    const char* value; ///< main value of the control
    const char* events;
};

void click(Bound& b, const char* name) {
    QTest::mouseClick(&b.widget(name), Qt::LeftButton);
}

void press(Bound& b, const char* name, Qt::Key key) {
    b.widget(name).setFocus();
    b.form.take_log();
    QTest::keyClick(&b.widget(name), key);
}

const Used kUsed[] = {
    {"typing", [](Bound& b) { QTest::keyClicks(&b.widget("Field"), "ab"); }, "Field", "ab",
     "Field.Change Field.Change "},
    {"typing lines", [](Bound& b) { QTest::keyClicks(&b.widget("Note"), "a\rb"); }, "Note", "a\r\nb",
     "Note.Change Note.Change Note.Change "},
    {"ticking", [](Bound& b) { press(b, "Tick", Qt::Key_Space); }, "Tick", "1", "Tick.Click "},
    {"unticking a grey one",
     [](Bound& b) {
         b.form.Tick.Value = 2;
         press(b, "Tick", Qt::Key_Space);
     },
     "Tick", "1", "Tick.Click "},
    {"choosing", [](Bound& b) { press(b, "Second", Qt::Key_Space); }, "Second", "-1", "Second.Click "},
    {"choosing what is chosen", [](Bound& b) { press(b, "First", Qt::Key_Space); }, "First", "-1", ""},
    {"arrow to the next option", [](Bound& b) { press(b, "First", Qt::Key_Down); }, "Second", "-1",
     "First.LostFocus Second.GotFocus Second.Click "},
    {"arrow around", [](Bound& b) { press(b, "First", Qt::Key_Left); }, "Third", "-1",
     "First.LostFocus Third.GotFocus Third.Click "},
    {"arrow alone in its container", [](Bound& b) { press(b, "Stranger", Qt::Key_Down); }, "Stranger", "0",
     ""},
    {"pressing with the mouse", [](Bound& b) { click(b, "Button"); }, "Button", "Button",
     "Button.GotFocus Button.Click "},
    {"pressing with Return", [](Bound& b) { press(b, "Button", Qt::Key_Return); }, "Button", "Button",
     "Button.Click "},
    {"a tool button ends the entry in a field",
     [](Bound& b) {
         b.widget("Field").setFocus();
         b.form.take_log();
         click(b, "Tool");
     },
     "Tool", "Tool", "Field.LostFocus Tool.GotFocus Tool.Click "},
    {"clicking on a label", [](Bound& b) { click(b, "Caption_"); }, "Caption_", "Caption", "Caption_.Click "},
    {"clicking on what is disabled",
     [](Bound& b) {
         b.form.Caption_.Enabled = false;
         click(b, "Caption_");
     },
     "Caption_", "Caption", ""},
    {"menu", [](Bound& b) { b.window->findChild<QAction*>("Entry")->trigger(); }, "Entry", "&Entry",
     "Entry.Click "},
    {"box", [](Bound& b) { press(b, "Fixed", Qt::Key_Down); }, "Fixed", "one", "Fixed.Click "},
    {"text in an editable box", [](Bound& b) { b.widget<QComboBox>("Typed").setEditText("x"); }, "Typed", "x",
     "Typed.Change "},
    {"scroll bar",
     [](Bound& b) { b.widget<QScrollBar>("Bar").triggerAction(QAbstractSlider::SliderSingleStepAdd); }, "Bar",
     "4", "Bar.Change "},
    {"scroll bar by key", [](Bound& b) { press(b, "Bar", Qt::Key_Right); }, "Bar", "4", "Bar.Change "},
    {"slider", [](Bound& b) { press(b, "Knob", Qt::Key_Right); }, "Knob", "4", "Knob.Change Knob.Click "},
    {"page of a wide slider",
     [](Bound& b) {
         b.form.Knob.Max = 255;
         press(b, "Knob", Qt::Key_PageUp);
     },
     "Knob", "28", "Knob.Change Knob.Click "},
    {"tab",
     [](Bound& b) {
         const QTabBar& bar = *b.widget<QTabWidget>("Tabs").tabBar();
         QTest::mouseClick(const_cast<QTabBar*>(&bar), Qt::LeftButton, {}, bar.tabRect(1).center());
     },
     "Tabs", "Text && Bild", "Tabs.GotFocus Tabs.Click "},
    {"letter of a tab",
     [](Bound& b) {
         b.form.Tabs.Tab = 1;
         b.form.take_log();
         QTest::keyClick(b.window.get(), Qt::Key_A, Qt::AltModifier);
     },
     "Tabs", "&Anfang", "Tabs.Click "},
    {"letter of a plain frame",
     [](Bound& b) {
         b.form.Back.Caption = "&Seite";
         b.form.Tabs.Tab = 1;
         b.form.take_log();
         QTest::keyClick(b.window.get(), Qt::Key_S, Qt::AltModifier);
     },
     "Hidden", "", "Hidden.GotFocus "},
};

class UsedTest : public ::testing::TestWithParam<Used> {};

TEST_P(UsedTest, ReachesTheControl) {
    const Used& c = GetParam();
    Bound bound;
    bound.window->show();
    QApplication::setActiveWindow(bound.window.get());
    bound.widget("Line(0)").setFocus();
    bound.form.take_log();
    c.act(bound);
    const std::string log = bound.form.take_log();
    const auto from = log.find("Line(0)") == 0 ? log.find(' ') + 1 : 0; // the field left first
    EXPECT_EQ(log.substr(from), c.events) << c.what;
    EXPECT_EQ(bound.form.find(c.control)->main_value(), c.value) << c.what;
}

INSTANTIATE_TEST_SUITE_P(Actions, UsedTest, ::testing::ValuesIn(kUsed),
                         [](const auto& row) { return case_name(row.param.what); });

TEST(TextBinding, HandlerThatCorrectsTheTextIsObeyed) {
    Bound bound;
    bound.form.Field.Change = [&] { bound.form.Field.Text = "fest"; };
    QTest::keyClicks(&bound.widget("Field"), "x");
    EXPECT_EQ(bound.widget<QLineEdit>("Field").text(), "fest");
}

TEST(TextBinding, LineBreaksSurviveInAFieldOfOneLine) {
    Bound bound;
    bound.form.Field.Text = "a\r\nb";
    QTest::keyClick(&bound.widget("Field"), Qt::Key_End);
    QTest::keyClicks(&bound.widget("Field"), "c");
    EXPECT_EQ(bound.form.Field.Text(), "a\r\nbc");
}

TEST(TextBinding, UnbreakableBlankSurvivesEditing) {
    Bound bound;
    bound.form.Note.Text = "5\u00A0EUR";
    QTest::keyClicks(&bound.widget("Note"), "x");
    EXPECT_EQ(bound.form.Note.Text(), "x5\u00A0EUR");
}

TEST(TextBinding, WhatIsTooLongIsKeptWholeAndNotEdited) {
    for (const char* name : {"Field", "Note"}) {
        Bound bound;
        auto& box = static_cast<TextBox&>(*bound.form.find(name));
        const std::string text(3'000'000, 'x');
        box.Text = text;
        QTest::keyClicks(&bound.widget(name), "y");
        EXPECT_EQ(box.Text(), text) << name;
        EXPECT_TRUE(bound.widget(name).property("readOnly").toBool()) << name;
        box.Text = "kurz";
        EXPECT_FALSE(bound.widget(name).property("readOnly").toBool()) << name;
    }
}

TEST(TextBinding, LengthLimitOfTheDesignCutsNothing) {
    Bound bound;
    bound.widget<QLineEdit>("Field").setMaxLength(3);
    bound.form.Field.Text = "lang genug";
    EXPECT_EQ(bound.widget<QLineEdit>("Field").text(), "lang genug");
}

TEST(TextBinding, SelectionCountsCharactersAndLineEnds) {
    Bound bound;
    bound.form.Note.Text = "ä€😀\r\nxyz";
    bound.form.Note.SelStart = 5;
    bound.form.Note.SelLength = 2;
    QTextCursor cursor = bound.widget<QPlainTextEdit>("Note").textCursor();
    EXPECT_EQ(cursor.selectedText(), "xy");
    cursor.setPosition(2);
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    bound.widget<QPlainTextEdit>("Note").setTextCursor(cursor);
    EXPECT_EQ(bound.form.Note.SelStart(), 2);
    EXPECT_EQ(bound.form.Note.SelLength(), 1);
    bound.form.Field.Text = "Menge";
    bound.form.Field.select_all();
    EXPECT_EQ(bound.widget<QLineEdit>("Field").selectedText(), "Menge");
}

struct Coloured {
    const char* widget;
    QPalette::ColorRole back;
    QPalette::ColorRole text;
};

class ColourTest : public ::testing::TestWithParam<Coloured> {};

TEST_P(ColourTest, GroundTextAndBackAgain) {
    const Coloured& c = GetParam();
    Bound bound;
    Control& control = *bound.form.find(c.widget);
    QWidget& widget = bound.widget(c.widget);
    const QPalette before = widget.palette();
    control.BackColor = color::rgb(0, 0, 139);
    EXPECT_EQ(widget.palette().color(c.back), QColor(0, 0, 139));
    EXPECT_TRUE(!widget.autoFillBackground() ||
                widget.palette().color(widget.backgroundRole()) == QColor(0, 0, 139))
        << "what fills it";
    EXPECT_EQ(widget.palette().color(c.text), QColor(Qt::white));
    control.BackColor = color::kYellow;
    EXPECT_EQ(widget.palette().color(c.text), QColor(Qt::black));
    control.ForeColor = color::rgb(200, 0, 0);
    EXPECT_EQ(widget.palette().color(c.text), QColor(200, 0, 0));
    control.OwnLook = true;
    EXPECT_EQ(widget.palette(), before) << "whatever the colours";
    control.BackColor = color::kWindow;
    control.ForeColor = color::kWindowText;
    control.OwnLook = false;
    EXPECT_EQ(widget.palette(), before);
    EXPECT_FALSE(widget.autoFillBackground());
}

INSTANTIATE_TEST_SUITE_P(Kinds, ColourTest,
                         ::testing::Values(Coloured{"Field", QPalette::Base, QPalette::Text},
                                           Coloured{"Button", QPalette::Button, QPalette::ButtonText},
                                           Coloured{"Tick", QPalette::Window, QPalette::WindowText},
                                           Coloured{"Choice", QPalette::Window, QPalette::WindowText},
                                           Coloured{"Fixed", QPalette::Base, QPalette::Text},
                                           Coloured{"Rows", QPalette::Base, QPalette::Text}),
                         [](const auto& row) { return case_name(row.param.widget); });

TEST(Colours, FrameLeavesTheFieldsInsideTheirGround) {
    Bound bound;
    const QColor before = bound.widget("First").palette().color(QPalette::Base);
    bound.form.Choice.BackColor = color::rgb(10, 20, 30);
    EXPECT_EQ(bound.widget("First").palette().color(QPalette::Base), before);
    EXPECT_EQ(bound.widget("First").palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST(Colours, LightOnesOnlyTingeADarkDesktop) {
    const DesktopLook dark(9, dark_palette());
    const QColor button = QApplication::palette().color(QPalette::Button);
    Bound bound;
    const auto ground = [&](const char* name, QPalette::ColorRole role, Color color) {
        bound.form.find(name)->BackColor = color;
        return bound.widget(name).palette().color(role);
    };
    EXPECT_LT(ground("Button", QPalette::Button, 14737632).lightness(), 128);
    EXPECT_EQ(ground("Button", QPalette::Button, color::kWhite), button);
    EXPECT_LT(ground("Field", QPalette::Base, color::kGrey).lightness(), 128);
    EXPECT_EQ(ground("Caption_", QPalette::Window, color::kYellow), QColor(255, 255, 0))
        << "a patch of colour";
    EXPECT_EQ(bound.widget("Button").palette().color(QPalette::ButtonText), QColor(Qt::white));
}

TEST(Events, KeyCodesOfTheDesktop) {
    Bound bound;
    std::string codes;
    bound.form.Field.KeyDown = [&](int code) { codes += std::to_string(code) + " "; };
    for (const Qt::Key key :
         {Qt::Key_A, Qt::Key_7, Qt::Key_Space, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Up, Qt::Key_F5,
          Qt::Key_CapsLock, Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Percent}) {
        QTest::keyClick(&bound.widget("Field"), key);
    }
    EXPECT_EQ(codes, "65 55 32 13 46 38 116 20 27 8 ");
}

TEST(Pictures, LeaveTheirPaperOnADarkDesktop) {
    const DesktopLook dark(9, dark_palette());
    QTemporaryDir folder;
    QImage drawing(60, 60, QImage::Format_RGB32);
    drawing.fill(Qt::white);
    for (int i = 0; i < 400; ++i) {
        drawing.setPixel(20 + i % 20, 20 + i / 20, qRgb(30, 58, 95));
    }
    ASSERT_TRUE(drawing.save(folder.filePath("logo.bmp")));
    Bound bound;
    auto& label = bound.widget<QLabel>("Picture");
    label.setFixedSize(60, 60);
    const auto lightness = [&](int x, int y) {
        return QColor(label.grab().toImage().pixel(x, y)).lightness();
    };
    bound.form.Picture.Picture = folder.filePath("logo.bmp").toStdString();
    EXPECT_LT(lightness(5, 5), 80) << "no white box";
    EXPECT_GT(lightness(30, 30), 110) << "a dark drawing can be seen";
}

TEST(Focus, OfAFieldIsSeenOnADarkDesktop) {
    const DesktopLook dark(9, dark_palette());
    Bound bound;
    auto& field = bound.widget("Field");
    bound.window->show();
    QApplication::setActiveWindow(bound.window.get());
    field.setFocus();
    EXPECT_GT(field.grab().toImage().pixelColor(field.width() / 2, 0).lightness(), 140);
}

TEST(CheckBinding, TellsWhatIsWrong) {
    Bound bound;
    EXPECT_EQ(check_binding(bound.form, *bound.window), std::vector<std::string>{});
    bound.widget("Field").setObjectName("Feld");
    bound.widget("Line(0)").setObjectName("Tick");
    bound.widget("Panel").setObjectName("Knob");
    bound.widget<QTabWidget>("Tabs").insertTab(0, new QWidget, "vorn");
    std::string all;
    for (const std::string& finding : check_binding(bound.form, *bound.window)) {
        all += finding + "\n";
    }
    for (const char* part :
         {"AllKinds.Field: no widget; a TextBox needs a QLineEdit or QPlainTextEdit",
          "AllKinds.Feld: no control", "AllKinds.Tick: 2 widgets", "AllKinds.Line(0): no widget",
          "AllKinds.Panel: no widget", "AllKinds.Knob: 2 widgets", "AllKinds.Tabs: has 3 pages",
          "AllKinds.Back: not on page 1"}) {
        EXPECT_NE(all.find(part), std::string::npos) << part << "\n" << all;
    }
    EXPECT_EQ(all.find("ui_Heading"), std::string::npos);
}

} // namespace
} // namespace quittika::test
