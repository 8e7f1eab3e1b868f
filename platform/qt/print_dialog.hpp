#pragma once

#include <QPrintDialog>

class QLineEdit;

namespace quittika {

/// The path that a user means who types `typed` as the name of a PDF file: names without a folder belong to
/// `folder`, names without the ending get it.
QString pdf_path(const QString& typed, const QString& folder);

/// The toolkit's printer dialog with a PDF file of the program's choice, and without the settings that not
/// every device heeds: range, set and order of the pages, the collation of copies that are jobs of their own,
/// and more than one copy in a file.
class PrintDialog final : public QPrintDialog {
public:
    /// `file`: path offered to a user who prints into a file.
    PrintDialog(QPrinter& printer, const QString& file, QWidget* parent);

    void setVisible(bool visible) override;

private:
    bool into_file() const;
    void complete_path();
    void allow_copies();

    QString folder_;
    QLineEdit* path_; ///< null where the toolkit offers no file
};

} // namespace quittika
