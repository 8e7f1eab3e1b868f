#pragma once

#include "platform/dialogs.hpp"
#include "platform/qt/printer_choice.hpp"

#include <QPointer>
#include <QString>
#include <QStringList>

class QFileDialog;
class QWidget;

namespace quittika {

/// "text|pattern|text|pattern|" as the toolkit's filters; a text without a pattern shows all files.
QStringList name_filters(const std::string& filter);

/// "rn" for a filter that ends with "(*.rn)" or "(*.rn *.txt)", empty where the pattern names none.
QString default_suffix(const QString& name_filter);

/// The desktop's common dialogs. The folder used last is where the next file dialog begins.
class QtDialogs final : public Dialogs {
public:
    explicit QtDialogs(PrinterChoice& printer) : printer_(printer) {}

    Answer message(const MessageBox& box) override;
    std::string open_file(const FileDialog& dialog) override;
    std::string save_file(const FileDialog& dialog) override;
    Color choose_color(Color start) override;
    std::string choose_font(const std::string& start) override;
    int choose_printer(const PrinterDialog& dialog) override;

private:
    void prepare(QFileDialog& window, const FileDialog& dialog) const;
    /// The same for a dialog that takes names of files that do not exist yet, with the filter's ending.
    void prepare_for_new(QFileDialog& window, const FileDialog& dialog) const;
    std::string run(QFileDialog& window);

    QWidget* parent();

    PrinterChoice& printer_;
    QPointer<QWidget> parent_; ///< of the dialog before
    QString folder_;
};

} // namespace quittika
