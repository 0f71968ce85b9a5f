// The built-in text viewer: reads a report in fixed pitch and edits a settings or results text.
#pragma once

#include "core/files.h"
#include "desktop/appearance.h"
#include "desktop/editable_text.h"

#include <QDateTime>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QStringList>

#include <vector>

class QLabel;

namespace quillon {

class FindBar;
struct PrintDocument;

class TextViewer : public QMainWindow {
    Q_OBJECT

public:
    /// Files up to this size are held whole and can be edited; of a larger one the end is shown.
    static constexpr std::uint64_t largestEdited = 8U << 20;
    static constexpr std::uint64_t shownOfLarge = 2U << 20;

    /// Shows the file; one that is not there is empty, and made when it is saved.
    TextViewer(const FilePlace& file, Appearance& appearance, QWidget* parent = nullptr);

    bool shows(const FilePlace& file) const;
    bool isModified() const;

    /// Takes up what the disk holds now, unless something was typed.
    void takeUpFile();

    /// Replaces the file, whole or not at all, and asks first where it changed meanwhile. False where it was
    /// not saved.
    bool save();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// How a file stands on the disk, to see that it changed.
    struct Stamp {
        bool exists = false;
        qint64 size = 0;
        QDateTime time{};
        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    void buildMenus();
    void buildEditor();
    Stamp stampOnDisk() const;
    void load();
    void showNotice(const QString& notice, bool mayEdit);
    void showPlace();
    bool mayOverwrite();
    bool mayLoseCharacters(const QStringList& lines, const std::vector<Text>& edited);
    QStringList editorLines() const;
    PrintDocument printDocument() const;

    FilePlace file_;
    Appearance& appearance_;
    QPlainTextEdit* editor_ = nullptr;
    FindBar* find_ = nullptr;
    QLabel* notice_ = nullptr;
    QLabel* place_ = nullptr;
    QAction* save_ = nullptr;
    std::vector<FileLine> loaded_; ///< the file as it was read or saved last
    Stamp stamp_;
    bool asking_ = false; ///< a question is on show, so that coming back from it is no coming back
};

} // namespace quillon
