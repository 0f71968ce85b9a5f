#include "desktop/desktop_ports.h"

#include "card/race_card.h"
#include "desktop/hand_over.h"
#include "desktop/shown_text.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

constexpr const char* viewerSetting = "builtInViewer";
constexpr int longestInput = 255;

QString titleOf(const Text& title) { return title.empty() ? QString{"Quillon"} : shown(title); }

int ask(QWidget* window, QMessageBox::Icon icon, const Text& text, const Text& title,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton byDefault) {
    QMessageBox box{icon, titleOf(title), {}, buttons, window};
    box.setTextFormat(Qt::PlainText); // before the text, which may hold a "<"
    box.setText(shown(text));
    box.setDefaultButton(byDefault);
    box.setEscapeButton(byDefault);
    return box.exec();
}

std::optional<Text> askForText(QWidget* window, const Text& text, const Text& title) {
    QInputDialog dialog{window};
    dialog.setWindowTitle(titleOf(title));
    dialog.setLabelText(shown(text));
    dialog.setTextValue({}); // makes the field
    if (auto* label = dialog.findChild<QLabel*>()) label->setTextFormat(Qt::PlainText);
    if (auto* field = dialog.findChild<QLineEdit*>()) {
        field->setMaxLength(longestInput);
        field->setAccessibleName(shown(text));
    }
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return typed(dialog.textValue());
}

std::optional<Text> askForLine(QWidget* window, const Text& text, const Text& title,
                               const LineNumberAsked& line) {
    LineNumberDialog dialog{shown(text), line, window};
    dialog.setWindowTitle(titleOf(title));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return typed(dialog.number());
}

QString cardName() {
    const QString name = shown(card.cardFileName);
    return name.section('.', 0, 0);
}

} // namespace

bool WorkProgress::show(double done, QWidget* window) {
    if (cancelled_) return false;
    if (done >= 1) {
        dialog_.reset();
        sinceBegin_.invalidate();
        return true;
    }
    if (!sinceBegin_.isValid()) sinceBegin_.start();
    if (!dialog_ && sinceBegin_.elapsed() < quietTime) return true;
    if (!dialog_) open(window);
    if (sinceEvents_.isValid() && sinceEvents_.elapsed() < timeOfEvents) return true;
    // Only once the dialog is up, so that no key or click comes to the window below it.
    dialog_->setValue(static_cast<int>(done * dialog_->maximum()));
    QCoreApplication::processEvents();
    sinceEvents_.start();
    cancelled_ = dialog_->wasCanceled();
    if (cancelled_) dialog_.reset();
    return !cancelled_;
}

void WorkProgress::open(QWidget* window) {
    constexpr int parts = 1000;
    dialog_ =
        std::make_unique<QProgressDialog>(QObject::tr("Working..."), QObject::tr("Cancel"), 0, parts, window);
    dialog_->setWindowTitle("Quillon");
    dialog_->setObjectName("WorkProgress");
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->setAutoClose(false);
    dialog_->setAutoReset(false);
    dialog_->setMinimumDuration(0);
    dialog_->show();
    sinceEvents_.invalidate();
}

void WorkProgress::end() {
    dialog_.reset();
    sinceBegin_.invalidate();
    cancelled_ = false;
}

DesktopPorts::DesktopPorts(QWidget& window, Appearance& appearance)
    : window_{window}, appearance_{appearance}, builtInViewer_{
                                                    !hasDesktop() ||
                                                    QSettings{}.value(viewerSetting, false).toBool()} {
    ports = {};
    fillDialogs();
    fillOutside();
    fillPrinting();
    ports.end = [this] { ended_ = true; };
}

DesktopPorts::~DesktopPorts() {
    ports = {};
    for (const auto& viewer : viewers_) delete viewer;
}

void DesktopPorts::fillDialogs() {
    ports.message = [this](const Text& text, const Text& title) {
        emit aboutToTell();
        ask(front(), QMessageBox::Information, text, title, QMessageBox::Ok, QMessageBox::Ok);
    };
    ports.question = [this](const Text& text, const Text& title) {
        return ask(front(), QMessageBox::Question, text, title, QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::No) == QMessageBox::Yes;
    };
    ports.input = [this](const Text& text, const Text& title) {
        if (const auto line = lineAsked_()) return askForLine(front(), text, title, *line);
        return askForText(front(), text, title);
    };
    ports.error = [this](const Text& text) {
        errorShown_ = true;
        ask(front(), QMessageBox::Critical, text, {}, QMessageBox::Ok, QMessageBox::Ok);
    };
    ports.note = [this](const Text& text) { emit noted(shown(text)); };
    ports.beep = [] { QApplication::beep(); };
    ports.progress = [this](double done) { return progress_.show(done, &window_); };
}

void DesktopPorts::fillOutside() {
    ports.view = [this](const FilePlace& file) { view(file); };
    ports.browse = [this](const Text& address) {
        if (!openAddress(address))
            emit couldNot(tr("No browser opened the page: %1").arg(shown(address).simplified()));
    };
    ports.run = [](const Text& program) { startProgram(program); };
    ports.hide = [](const FilePlace& file) { hideFile(file); };
}

void DesktopPorts::fillPrinting() {
    ports.printLine = [this](const Text& line, PrintStyle style) {
        printed_.addLine(shown(line), style == PrintStyle::emphasised);
    };
    ports.printPage = [this] { printed_.beginPage(); };
    ports.printEnd = [this] { openPreview(); };
}

// The window that the user works in: the card's own, or the one of the stars.
QWidget* DesktopPorts::front() const {
    QWidget* active = QApplication::activeWindow();
    return active ? active : &window_;
}

void DesktopPorts::setBuiltInViewer(bool wanted) {
    builtInViewer_ = wanted;
    QSettings{}.setValue(viewerSetting, wanted);
}

void DesktopPorts::view(const FilePlace& file) {
    if (builtInViewer_ || !showInDesktopEditor(file)) openViewer(file);
}

void DesktopPorts::openViewer(const FilePlace& file) {
    std::erase_if(viewers_, [](const auto& viewer) { return viewer.isNull(); });
    const auto open = std::find_if(viewers_.begin(), viewers_.end(),
                                   [&](const auto& viewer) { return viewer->shows(file); });
    TextViewer* viewer = nullptr;
    if (open != viewers_.end()) {
        viewer = *open;
        viewer->takeUpFile();
        if (viewer->isMinimized()) viewer->showNormal();
    } else {
        viewer = new TextViewer{file, appearance_}; // a window beside the card's, not on top of it
        viewer->setAttribute(Qt::WA_DeleteOnClose);
        viewers_.emplace_back(viewer);
    }
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
}

// Not waited for: the command goes on to its last message, and the pages stay open behind it.
void DesktopPorts::openPreview() {
    printed_.name = cardName();
    auto* preview = new PrintPreview{std::exchange(printed_, {}), &window_};
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
    preview_ = preview;
}

void DesktopPorts::commandEnded() {
    progress_.end();
    if (preview_) {
        preview_->raise(); // the command's last message brought the window below it to the front
        preview_->activateWindow();
    }
    preview_.clear();
    printed_ = {}; // of a command that failed halfway
}

} // namespace quillon
