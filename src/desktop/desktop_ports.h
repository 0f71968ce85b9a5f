// The window's ways to the outside: dialogs, the text viewer, the browser, the printer.
#pragma once

#include "desktop/appearance.h"
#include "desktop/line_number_dialog.h"
#include "desktop/print_preview.h"
#include "desktop/text_viewer.h"
#include "screen/ports.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QProgressDialog>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// The progress of long work, in a dialog with Cancel that stays away from work that is done at once.
class WorkProgress {
public:
    static constexpr int quietTime = 400;   ///< milliseconds before the dialog opens
    static constexpr int timeOfEvents = 50; ///< milliseconds between two turns of the window

    /// `done` runs from 0 to 1, where the dialog closes. False once the user has cancelled.
    bool show(double done, QWidget* window);

    /// The work has ended, however far it came.
    void end();

private:
    void open(QWidget* window);

    std::unique_ptr<QProgressDialog> dialog_;
    QElapsedTimer sinceBegin_;
    QElapsedTimer sinceEvents_;
    bool cancelled_ = false;
};

/// Fills the ports while it lives, with dialogs over `window`.
class DesktopPorts : public QObject {
    Q_OBJECT

public:
    DesktopPorts(QWidget& window, Appearance& appearance);
    ~DesktopPorts() override;

    /// True once the system has ended.
    bool ended() const { return ended_; }

    /// Texts are shown in the built-in viewer, even where the desktop has an editor. Kept in the settings.
    bool builtInViewer() const { return builtInViewer_; }
    void setBuiltInViewer(bool wanted);

    /// The running command, or the last, has told of an error.
    bool errorShown() const { return errorShown_; }
    void commandBegins() { errorShown_ = false; }

    /// What a question for a text stands for, where that is the number of a past line.
    using LineAsked = std::function<std::optional<LineNumberAsked>()>;
    void setLineAsked(LineAsked asked) { lineAsked_ = std::move(asked); }

    /// The command that may have asked for progress or paper has ended.
    void commandEnded();

signals:
    void aboutToTell();                 ///< what a message speaks of should be in sight behind it
    void noted(const QString& text);    ///< a word that asks for nothing
    void couldNot(const QString& what); ///< a sentence for the user; the command goes on

private:
    void fillDialogs();
    void fillOutside();
    void fillPrinting();
    void view(const FilePlace& file);
    void openViewer(const FilePlace& file);
    void openPreview();
    QWidget* front() const;

    QWidget& window_;
    Appearance& appearance_;
    std::vector<QPointer<TextViewer>> viewers_;
    QPointer<PrintPreview> preview_; ///< that the running command has opened
    PrintDocument printed_;          ///< what the running command has printed so far
    WorkProgress progress_;
    LineAsked lineAsked_ = [] { return std::optional<LineNumberAsked>{}; };
    bool builtInViewer_ = true;
    bool ended_ = false;
    bool errorShown_ = false;
};

} // namespace quillon
