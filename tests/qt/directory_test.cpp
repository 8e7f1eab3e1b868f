#include "platform/forms/controls.hpp"
#include "platform/laufwerke.hpp"
#include "platform/qt/binding.hpp"
#include "platform/qt/paint_tools.hpp"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

namespace quittika::test {

struct Picker : Form {
    Picker() : Form("Picker", "Verzeichnis") {}
    DriveListBox Drive1{*this, "Drive1"};
    DirListBox Dir1{*this, "Dir1"};
};

TEST(DirectoryLists, AreReadAnewAtEachOpeningAndKeepTheChoice) {
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("Rechnungen"));
    QWidget window;
    auto& drives = *new QComboBox(&window);
    drives.setObjectName("Drive1");
    auto& tree = *new QTreeView(&window);
    tree.setObjectName("Dir1");
    Picker form;
    PaintTools tools;
    bind(form, window, tools);
    const int there = static_cast<int>(LAUFWERKE().size());
    form.Drive1.Path = "/";
    form.Dir1.Path = folder.path().toStdString();
    for (int opening = 1; opening <= 2; ++opening) {
        drives.addItem("fort", "/media/fort");
        window.show();
        EXPECT_EQ(drives.count(), there);
        EXPECT_EQ(drives.currentText(), "Dateisystem  (/)");
        EXPECT_EQ(tree.currentIndex().data().toString(), QFileInfo(folder.path()).fileName());
        window.hide();
    }
    window.show();
    drives.addItem("fort", "/media/fort");
    QTest::mousePress(&drives, Qt::LeftButton);
    EXPECT_EQ(drives.count(), there) << "the user reaches for it";
    drives.setCurrentIndex(0);
    tree.setFocus();
    QWheelEvent down({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&drives, &down);
    EXPECT_EQ(form.Drive1.Path(), "/") << "passed by";
    emit drives.activated(there - 1);
    EXPECT_EQ(form.Drive1.Path(), LAUFWERKE().back().pfad);
    bool heard = false;
    form.Drive1.Change = [&heard] { heard = true; };
    emit drives.activated(there - 1);
    EXPECT_TRUE(heard) << "chosen once more, it leads back to its root";
    const auto& model = *tree.model();
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.rowCount(tree.currentIndex()) == 1; }));
    tree.setCurrentIndex(model.index(0, 0, tree.currentIndex()));
    EXPECT_EQ(form.Dir1.Path(), folder.path().toStdString() + "/Rechnungen");
}

} // namespace quittika::test
