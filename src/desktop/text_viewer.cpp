#include "desktop/text_viewer.h"

#include "core/failure.h"
#include "desktop/find_bar.h"
#include "desktop/print_preview.h"
#include "desktop/shown_text.h"
#include "desktop/window_size.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStatusBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace quillon {
namespace {

constexpr int textPoints = 10;
constexpr int windowWidth = 12000; ///< twips
constexpr int windowHeight = 9000;
constexpr QChar typedLineBreak{0x2028}; ///< what Shift+Enter puts into a line

QString joinedLines(const std::vector<FileLine>& lines) {
    QString text;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) text += '\n';
        text += editableLine(lines[i].text);
    }
    return text;
}

/// A file as far as it is shown.
struct ReadFile {
    Text content{};
    std::uint64_t size = 0;
};

// Fails when the file can't be read.
ReadFile readForShow(const FilePlace& file) {
    FilePieces pieces{file};
    const std::uint64_t size = pieces.size();
    const std::uint64_t count = size > TextViewer::largestEdited ? TextViewer::shownOfLarge : size;
    return {Text{pieces.read(size - count, static_cast<std::size_t>(count))}, size};
}

// The end of a large file begins with a whole line.
Text fromFirstLineEnd(Text content) { return content.substr(content.find('\n') + 1); }

QString megabytes(std::uint64_t bytes) {
    return QString::number(static_cast<double>(bytes) / 1048576, 'f', 1);
}

} // namespace

TextViewer::TextViewer(const FilePlace& file, Appearance& appearance, QWidget* parent)
    : QMainWindow{parent, Qt::Window}, file_{file}, appearance_{appearance} {
    setObjectName("TextViewer");
    setWindowTitle(tr("%1[*] - Quillon").arg(shown(file.name)));
    buildEditor();
    buildMenus();
    resizeWithinScreen(*this, {appearance_.pixels(windowWidth), appearance_.pixels(windowHeight)});
    load();
}

void TextViewer::buildEditor() {
    auto* centre = new QWidget{this};
    auto* column = new QVBoxLayout{centre};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    notice_ = new QLabel{centre};
    notice_->setObjectName("Notice");
    notice_->setTextFormat(Qt::PlainText);
    notice_->setMargin(6);
    notice_->setWordWrap(true);
    column->addWidget(notice_);
    editor_ = new QPlainTextEdit{centre};
    editor_->setObjectName("Text");
    editor_->setAccessibleName(tr("Text of %1").arg(shown(file_.name)));
    editor_->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor_->setTabChangesFocus(false);
    column->addWidget(editor_, 1);
    find_ = new FindBar{centre};
    column->addWidget(find_);
    setCentralWidget(centre);
    place_ = new QLabel{this};
    place_->setObjectName("Place");
    statusBar()->addPermanentWidget(place_);

    const auto takeFont = [this] { editor_->setFont(appearance_.fixedFont(textPoints)); };
    connect(&appearance_, &Appearance::changed, this, takeFont);
    takeFont();
    connect(editor_->document(), &QTextDocument::modificationChanged, this, &QWidget::setWindowModified);
    connect(editor_, &QPlainTextEdit::cursorPositionChanged, this, &TextViewer::showPlace);
    editor_->setFocus();
}

void TextViewer::buildMenus() {
    const auto add = [this](QMenu* menu, const QString& text, const QList<QKeySequence>& keys, auto&& slot) {
        QAction* action = menu->addAction(text);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QMenu* fileMenu = menuBar()->addMenu(tr("&File"));
    save_ = add(fileMenu, tr("&Save"), {QKeySequence::Save}, [this] { save(); });
    add(fileMenu, tr("&Print..."), {QKeySequence::Print}, [this] {
        auto* preview = new PrintPreview{printDocument(), this};
        preview->setAttribute(Qt::WA_DeleteOnClose);
        preview->show();
    });
    fileMenu->addSeparator();
    add(fileMenu, tr("&Close"), {QKeySequence{"Ctrl+W"}}, [this] { close(); });

    // The editor takes the keys of these itself; the menu shows them.
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    add(edit, tr("&Undo"), {QKeySequence::Undo}, [this] { editor_->undo(); });
    add(edit, tr("&Redo"), {QKeySequence::Redo}, [this] { editor_->redo(); });
    edit->addSeparator();
    add(edit, tr("Cu&t"), {QKeySequence::Cut}, [this] { editor_->cut(); });
    add(edit, tr("&Copy"), {QKeySequence::Copy}, [this] { editor_->copy(); });
    add(edit, tr("&Paste"), {QKeySequence::Paste}, [this] { editor_->paste(); });
    add(edit, tr("Select &All"), {QKeySequence::SelectAll}, [this] { editor_->selectAll(); });
    edit->addSeparator();
    add(edit, tr("&Find..."), {QKeySequence::Find}, [this] { find_->open(); });
    add(edit, tr("Find &Next"), {QKeySequence{"Ctrl+G"}, QKeySequence{"F3"}}, [this] { find_->findNext(); });

    QMenu* view = menuBar()->addMenu(tr("&View"));
    add(view, tr("Zoom &In"), {QKeySequence{"Ctrl++"}, QKeySequence{"Ctrl+="}},
        [this] { appearance_.zoomBy(1); });
    add(view, tr("Zoom &Out"), {QKeySequence{"Ctrl+-"}}, [this] { appearance_.zoomBy(-1); });
    add(view, tr("&Normal Size"), {QKeySequence{"Ctrl+0"}}, [this] { appearance_.setZoom(100); });
}

bool TextViewer::shows(const FilePlace& file) const {
    return file.folder == file_.folder && sameIgnoringCase(file.name, file_.name);
}

bool TextViewer::isModified() const { return editor_->document()->isModified(); }

TextViewer::Stamp TextViewer::stampOnDisk() const {
    QFileInfo info;
    attempt([&] { info = QFileInfo{pathOnDisk(file_)}; });
    return info.exists() ? Stamp{true, info.size(), info.lastModified()} : Stamp{};
}

void TextViewer::load() {
    stamp_ = stampOnDisk();
    std::optional<ReadFile> read;
    if (stamp_.exists) attempt([&] { read = readForShow(file_); });
    if (!stamp_.exists) {
        showNotice(tr("This file is not there yet; saving makes it."), true);
    } else if (!read) {
        showNotice(tr("This file can't be read."), false);
    } else if (read->size > largestEdited) {
        showNotice(tr("This file is too large to be edited here (%1 MB). This is its end.")
                       .arg(megabytes(read->size)),
                   false);
        read->content = fromFirstLineEnd(std::move(read->content));
    } else {
        showNotice({}, true);
    }
    loaded_ = fileLines(read ? read->content : Text{});
    editor_->setPlainText(joinedLines(loaded_));
    editor_->document()->setModified(false);
    if (read && read->size > largestEdited) editor_->moveCursor(QTextCursor::End);
    showPlace();
}

void TextViewer::takeUpFile() {
    if (isModified() || stampOnDisk() == stamp_) return;
    const int cursor = editor_->textCursor().position();
    const int scrolled = editor_->verticalScrollBar()->value();
    load();
    QTextCursor place = editor_->textCursor();
    place.setPosition(std::min(cursor, editor_->document()->characterCount() - 1));
    editor_->setTextCursor(place);
    editor_->verticalScrollBar()->setValue(scrolled);
}

void TextViewer::showNotice(const QString& notice, bool mayEdit) {
    notice_->setText(notice);
    notice_->setVisible(!notice.isEmpty());
    editor_->setReadOnly(!mayEdit);
    editor_->setTextInteractionFlags(mayEdit ? Qt::TextEditorInteraction
                                             : Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    save_->setEnabled(mayEdit);
}

// Settings and archives keep their data at fixed columns; counting them by hand is how they are edited.
void TextViewer::showPlace() {
    const QTextCursor cursor = editor_->textCursor();
    place_->setText(tr("Line %1, column %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

QStringList TextViewer::editorLines() const {
    QStringList lines;
    for (QTextBlock block = editor_->document()->begin(); block.isValid(); block = block.next())
        lines += block.text().split(typedLineBreak);
    return lines;
}

bool TextViewer::mayOverwrite() {
    if (stampOnDisk() == stamp_) return true;
    return QMessageBox::question(this, shown(file_.name),
                                 tr("The file has changed on the disk since it was read here. "
                                    "Replace it with the text of this window?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool TextViewer::mayLoseCharacters(const QStringList& lines, const std::vector<Text>& edited) {
    if (std::equal(lines.begin(), lines.end(), edited.begin(), canBeKept)) return true;
    return QMessageBox::question(
               this, shown(file_.name),
               tr("The text holds characters that the file can't hold; each becomes a \"?\". "
                  "Save all the same?"),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool TextViewer::save() {
    if (editor_->isReadOnly()) return false;
    const QScopedValueRollback<bool> asking{asking_, true};
    const QStringList lines = editorLines();
    std::vector<Text> edited;
    for (const QString& line : lines) edited.push_back(editedLine(line));
    if (!mayOverwrite() || !mayLoseCharacters(lines, edited)) return false;
    const Text content = editedContent(loaded_, edited);
    if (!attempt([&] { writeFile(file_, content); })) {
        QMessageBox::critical(this, shown(file_.name),
                              tr("The file can't be written: %1").arg(shown(shownPath(file_))));
        return false;
    }
    stamp_ = stampOnDisk();
    loaded_ = fileLines(content);
    editor_->document()->setModified(false);
    showNotice({}, true);
    statusBar()->showMessage(tr("Saved"), 3000);
    return true;
}

PrintDocument TextViewer::printDocument() const {
    PrintDocument document;
    document.name = shown(file_.name);
    for (const QString& line : editorLines()) document.addLine(line);
    return document;
}

void TextViewer::closeEvent(QCloseEvent* event) {
    if (!isModified()) return event->accept();
    const QScopedValueRollback<bool> asking{asking_, true};
    const auto answer = QMessageBox::warning(this, shown(file_.name), tr("The text has unsaved changes."),
                                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                             QMessageBox::Save);
    const bool mayClose = answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
    event->setAccepted(mayClose);
}

void TextViewer::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !asking_ && editor_) takeUpFile();
}

} // namespace quillon
