#include "platform/qt/application.hpp"

#include "platform/qt/qt_text.hpp"
#include "platform/qt/widgets/theme.hpp"

#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

#include <clocale>

// A library's resources have to be asked for, outside of any namespace.
static void load_resources() {
#ifdef QUITTIKA_HAS_ICONS
    Q_INIT_RESOURCE(icons);
#endif
#ifdef QUITTIKA_HAS_TRANSLATION
    Q_INIT_RESOURCE(translation);
#endif
}

namespace {

bool load_german(QTranslator& translator) {
    const QString name = QStringLiteral("qtbase_de");
    return translator.load(name, QStringLiteral(":/translation")) ||
           translator.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace

namespace quittika {

QtApplication::QtApplication(int& argc, char** argv) : application_(argc, argv) {
    load_resources();
    std::setlocale(LC_NUMERIC, "C"); // the program formats its numbers itself
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QApplication::setApplicationName(QStringLiteral("Quittika 2008"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("quittika")); // under which the desktop knows the icon
    if (load_german(translator_)) {
        QApplication::installTranslator(&translator_);
    } else {
        qWarning("German texts of the toolkit not found");
    }
    theme::apply(application_);
}

std::string QtApplication::program_directory() {
    return path_from_qt(QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
}

} // namespace quittika
