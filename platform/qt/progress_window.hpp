#pragma once

#include <QDialog>

class QProgressBar;
class QPushButton;

namespace quittika {

class ElidedLabel;

/// Text, bar and "Abbrechen". While it is open, no other window takes input. Escape and the frame abort, too.
class ProgressWindow final : public QDialog {
    Q_OBJECT
public:
    ProgressWindow(const QString& text, QWidget* parent);

    /// Opens the window and returns when it can be seen.
    void appear();
    /// `share`: 0 to 1.
    void show_state(double share, const QString& detail);
    bool aborted() const { return aborted_; }
    /// Notes that the user wants the work to stop; the window stays until it does.
    void reject() override;

private:
    ElidedLabel* detail_;
    QProgressBar* bar_;
    QPushButton* abort_;
    bool aborted_ = false;
};

} // namespace quittika
