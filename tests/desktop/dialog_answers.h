// Answers the modal boxes that a test's call opens, as a user at the window would.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <utility>

namespace quillon {

/// While it lives and none is made after it, each modal dialog that opens is given to the function once it
/// is on show; one that stays open after that is closed, so that no test hangs.
class DialogAnswers {
public:
    explicit DialogAnswers(std::function<void(QDialog&)> answer) : answer_{std::move(answer)} {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(5);
    }
    ~DialogAnswers() { newest = outer_; }
    DialogAnswers(const DialogAnswers&) = delete;
    DialogAnswers& operator=(const DialogAnswers&) = delete;

    /// Presses this button of each message box.
    explicit DialogAnswers(QMessageBox::StandardButton button)
        : DialogAnswers{[button](QDialog& dialog) {
              auto* box = qobject_cast<QMessageBox*>(&dialog);
              QAbstractButton* found = box ? box->button(button) : nullptr;
              if (found) found->click();
          }} {}

    int count() const { return count_; } ///< dialogs so far

private:
    void look() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || answering_ || newest != this) return;
        answering_ = true;
        ++count_;
        answer_(*dialog);
        if (QApplication::activeModalWidget() == dialog) dialog->reject();
        answering_ = false;
    }

    inline static DialogAnswers* newest = nullptr; ///< the one that answers
    DialogAnswers* outer_ = std::exchange(newest, this);
    std::function<void(QDialog&)> answer_;
    QTimer timer_;
    int count_ = 0;
    bool answering_ = false;
};

} // namespace quillon
