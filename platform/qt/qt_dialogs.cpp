#include "platform/qt/qt_dialogs.hpp"

#include "platform/dateiname.hpp"
#include "platform/laufzeitfehler.hpp"
#include "platform/qt/colors.hpp"
#include "platform/qt/message_box.hpp"
#include "platform/qt/print_dialog.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/verzeichnis.hpp"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QRegularExpression>

#include <algorithm>

namespace quittika {

namespace {

constexpr int kAllCopies = 999;

QString one_filter(QString text, const QString& pattern) {
    // The patterns stand in the text, too; the toolkit adds its own.
    static const QRegularExpression in_parentheses(QStringLiteral(R"(\s*\([^()]*\*[^()]*\)\s*$)"));
    text.remove(in_parentheses);
    QStringList patterns;
    for (const QString& part : pattern.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString trimmed = part.trimmed();
        patterns.append(trimmed == QLatin1String("*.*") ? QStringLiteral("*") : trimmed);
    }
    if (patterns.isEmpty()) {
        patterns.append(QStringLiteral("*"));
    }
    return QStringLiteral("%1 (%2)").arg(text.trimmed(), patterns.join(QLatin1Char(' ')));
}

bool may_replace(const std::string& path, QWidget* parent) {
    return show_message({"Die Datei >" + path + "< gibt es schon. Soll sie ersetzt werden?",
                         "Datei ersetzen?", Buttons::YesNo, Symbol::Question, Answer::No},
                        parent) == Answer::Yes;
}

} // namespace

QStringList name_filters(const std::string& filter) {
    const QStringList fields = to_qt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i < fields.size(); i += 2) {
        const QString pattern = fields.value(i + 1).trimmed();
        if (!fields[i].trimmed().isEmpty() || !pattern.isEmpty()) {
            filters.append(one_filter(fields[i], pattern));
        }
    }
    return filters;
}

QString default_suffix(const QString& name_filter) {
    static const QRegularExpression first(QStringLiteral(R"(\(\S*\*\.([A-Za-z0-9]+)(?:\s[^()]*)?\)$)"));
    return first.match(name_filter).captured(1);
}

QWidget* QtDialogs::parent() {
    parent_ = dialog_parent(parent_);
    return parent_;
}

Answer QtDialogs::message(const MessageBox& box) {
    return show_message(box, parent());
}

void QtDialogs::prepare(QFileDialog& window, const FileDialog& dialog) const {
    if (!dialog.title.empty()) {
        window.setWindowTitle(to_qt(dialog.title));
    }
    if (!dialog.folder.empty() && ordner_vorhanden(dialog.folder)) {
        window.setDirectory(path_to_qt(dialog.folder));
    } else {
        window.setDirectory(folder_.isEmpty() ? QDir::homePath() : folder_);
    }
    const QStringList filters = name_filters(dialog.filter);
    if (!filters.isEmpty()) {
        window.setNameFilters(filters);
    }
    if (!dialog.proposed_name.empty()) {
        window.selectFile(path_to_qt(DATEINAME_BEREINIGEN(dialog.proposed_name)));
    }
}

void QtDialogs::prepare_for_new(QFileDialog& window, const FileDialog& dialog) const {
    window.setFileMode(QFileDialog::AnyFile);
    prepare(window, dialog);
    // Where the only filter names no kind of file, the proposed name does.
    const QString otherwise =
        window.nameFilters().size() > 1 ? QString() : QFileInfo(path_to_qt(dialog.proposed_name)).suffix();
    const auto use_filter = [&window, otherwise](const QString& filter) {
        const QString suffix = default_suffix(filter);
        window.setDefaultSuffix(suffix.isEmpty() ? otherwise : suffix);
    };
    use_filter(window.selectedNameFilter());
    QObject::connect(&window, &QFileDialog::filterSelected, &window, use_filter);
}

std::string QtDialogs::run(QFileDialog& window) {
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    const QString chosen = window.selectedFiles().front();
    folder_ = QFileInfo(chosen).absolutePath();
    return path_from_qt(QDir::toNativeSeparators(chosen));
}

std::string QtDialogs::open_file(const FileDialog& dialog) {
    QFileDialog window(parent());
    if (dialog.must_exist) {
        window.setFileMode(QFileDialog::ExistingFile);
        prepare(window, dialog);
    } else {
        prepare_for_new(window, dialog);
        window.setLabelText(QFileDialog::Accept, QStringLiteral("Auswählen"));
        if (dialog.title.empty()) {
            window.setWindowTitle(QStringLiteral("Zieldatei wählen"));
        }
    }
    std::string chosen = run(window);
    while (!dialog.must_exist && dialog.asks_before_replacing && datei_vorhanden(chosen) &&
           !may_replace(chosen, parent())) {
        chosen = run(window);
    }
    return chosen;
}

std::string QtDialogs::save_file(const FileDialog& dialog) {
    QFileDialog window(parent());
    window.setAcceptMode(QFileDialog::AcceptSave);
    window.setOption(QFileDialog::DontConfirmOverwrite, !dialog.asks_before_replacing);
    prepare_for_new(window, dialog);
    return run(window);
}

Color QtDialogs::choose_color(Color start) {
    const QColor chosen = QColorDialog::getColor(start < 0 ? QColor(Qt::white) : to_qt(start), parent());
    if (!chosen.isValid()) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    return from_qt(chosen);
}

std::string QtDialogs::choose_font(const std::string& start) {
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, QFont(to_qt(start)), parent());
    if (!chosen) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    return from_qt(font.family());
}

int QtDialogs::choose_printer(const PrinterDialog& dialog) {
    QPrinter& printer = printer_.printer();
    printer.setCopyCount(std::clamp(dialog.copies, 1, kAllCopies));
    const QDir folder(folder_.isEmpty() ? QDir::homePath() : folder_);
    PrintDialog window(printer, folder.filePath(path_to_qt(DATEINAME_BEREINIGEN(dialog.proposed_name))),
                       parent());
    if (window.exec() != QDialog::Accepted) {
        throw Laufzeitfehler(fehler::kDialogAbgebrochen);
    }
    if (!printer.outputFileName().isEmpty()) {
        folder_ = QFileInfo(printer.outputFileName()).absolutePath();
    }
    const int chosen = printer.copyCount();
    printer.setCopyCount(1); // the program prints each copy as a job of its own
    return chosen;
}

} // namespace quittika
