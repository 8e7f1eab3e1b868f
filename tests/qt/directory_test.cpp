#include "platform/forms/controls.hpp"
#include "platform/laufwerke.hpp"
#include "platform/qt/binding.hpp"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace quittika::test {

namespace {

struct Picker : Form {
    Picker() : Form("Picker", "Verzeichnis") {}
    DriveListBox Drive1{*this, "Drive1"};
    DirListBox Dir1{*this, "Dir1"};
};

class DirectoryTest : public ::testing::Test {
protected:
    DirectoryTest() {
        drives.setObjectName("Drive1");
        directories.setObjectName("Dir1");
        bind(form, window);
    }

    QWidget window;
    QComboBox& drives = *new QComboBox(&window);
    QTreeView& directories = *new QTreeView(&window);
    Picker form; ///< goes before its window
};

TEST_F(DirectoryTest, DrivesAreReadAnewAtEachOpening) {
    const int there = static_cast<int>(LAUFWERKE().size());
    ASSERT_EQ(drives.count(), there);
    EXPECT_EQ(drives.itemText(0), "Dateisystem  (/)");
    EXPECT_EQ(drives.currentIndex(), -1);
    form.Drive1.Path = "/";
    EXPECT_EQ(drives.currentIndex(), 0);
    const auto pretend = [&] { drives.addItem("fort", "/media/fort"); };
    pretend();
    window.show();
    EXPECT_EQ(drives.count(), there);
    EXPECT_EQ(drives.currentIndex(), 0);
    pretend();
    QTest::mousePress(&drives, Qt::LeftButton);
    EXPECT_EQ(drives.count(), there);
    std::string log;
    form.Drive1.Change = [&] { log += form.Drive1.Path(); };
    QTest::keyClick(&drives, Qt::Key_End);
    emit drives.activated(drives.count() - 1);
    EXPECT_EQ(log, LAUFWERKE().size() == 1 ? "" : LAUFWERKE().back().pfad);
}

TEST_F(DirectoryTest, TreeShowsTheDirectoryAndFollowsTheMouse) {
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("Rechnungen/2008"));
    window.show();
    form.Dir1.Path = folder.path().toStdString();
    const auto name = [&] { return directories.currentIndex().data().toString(); };
    EXPECT_EQ(name(), QFileInfo(folder.path()).fileName());
    window.hide();
    window.show();
    EXPECT_EQ(name(), QFileInfo(folder.path()).fileName()) << "read anew";
    const auto* model = qobject_cast<const QFileSystemModel*>(directories.model());
    ASSERT_TRUE(QTest::qWaitFor([&] { return model->rowCount(directories.currentIndex()) == 1; }));
    directories.setCurrentIndex(model->index(0, 0, directories.currentIndex()));
    EXPECT_EQ(form.Dir1.Path(), folder.path().toStdString() + "/Rechnungen");
}

} // namespace

} // namespace quittika::test
