// Asks for the number of a past line of the entry whose lines are open.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QString>

namespace quillon {

/// Whose lines, and the numbers that they have.
struct LineNumberAsked {
    QString horse{};
    int first = 0;
    int last = 0;
};

class LineNumberDialog : public QDialog {
    Q_OBJECT

public:
    LineNumberDialog(const QString& text, const LineNumberAsked& asked, QWidget* parent = nullptr);

    QString number() const { return field_->text().trimmed(); }

    /// Refuses, with a word, what is no number of a line.
    void accept() override;

private:
    LineNumberAsked asked_;
    QLineEdit* field_;
    QLabel* refusal_;
};

} // namespace quillon
