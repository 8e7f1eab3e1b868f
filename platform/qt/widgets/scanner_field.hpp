#pragma once

#include <QLineEdit>
#include <QTimer>

namespace quittika {

/// A field for a scanner, which types what it reads and ends it with Return, a line feed or both: a line end
/// then stands behind the text, once. What is typed while the program works on a text that was ended comes to
/// the field with the focus behind that work, in its order, even if a message box has the keyboard meanwhile.
/// Such a box comes when the keys pause; until then nothing else of the program takes input.
class ScannerField : public QLineEdit {
    Q_OBJECT
public:
    explicit ScannerField(QWidget* parent = nullptr) : QLineEdit(parent) {}

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(QKeyEvent& event);
    void end_line();
    bool keep(const QKeyEvent& event);
    void await_pause();
    void replay();

    bool after_return_ = false; ///< a line feed that comes now belongs to it
    bool working_ = false;
    QTimer pause_;
    QString kept_; ///< typed meanwhile; a line end is "\n"
};

} // namespace quittika
