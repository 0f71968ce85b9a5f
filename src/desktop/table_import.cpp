#include "desktop/table_import.h"

#include "desktop/card_texts.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "import/checked_card.h"
#include "import/gathering.h"
#include "import/placing.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTimer>
#include <QUrl>

#include <vector>

namespace quillon {
namespace {

const QString refusalKey = QStringLiteral("import.refusal");
const QString doneKey = QStringLiteral("import");
constexpr const char* folderSetting = "importFolder";

// A program that had a card open loads no other one.
bool canLoad() { return theScreen.start.enabled && theScreen.startOffer == StartOffer::load; }

// Files and folders of this machine.
QStringList pathsIn(const QMimeData* dropped) {
    QStringList paths;
    if (!dropped) return paths;
    for (const QUrl& url : dropped->urls())
        if (url.isLocalFile()) paths.push_back(url.toLocalFile());
    return paths;
}

std::vector<std::filesystem::path> onDisk(const QStringList& paths) {
    std::vector<std::filesystem::path> places;
    for (const QString& path : paths) {
        const std::string utf8 = path.toStdString();
        places.emplace_back(std::u8string{utf8.begin(), utf8.end()});
    }
    return places;
}

// "MVR, Saturday 14 March 2026, 12 races"
QString wordsOf(const CheckedCard& card) {
    const QString title = cardTitle(card.track + "_" + card.date);
    return title + (card.races == 1 ? QObject::tr(", 1 race") : QObject::tr(", %1 races").arg(card.races));
}

// What becomes of the tables that are in the folder.
QString wordsOfOldTables() {
    const std::vector<VendorTable> there = tablesInPlace();
    if (there.empty()) return {};
    const CheckedCard old = checkedCard(there);
    const QString whose = old.isRefused() ? QString{} : QObject::tr(" of %1").arg(wordsOf(old));
    return QObject::tr("The tables%1 that are there now are kept as an archive in the folder Imported.")
        .arg(whose);
}

} // namespace

TableImport::TableImport(QMenu& file, QAction* before, CommandRunner& runner, NoticeBar& bar,
                         QMainWindow& window)
    : QObject{&window}, runner_{runner}, bar_{bar}, window_{window} {
    addItems(file, before);
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    // A box would take the path of a file as its text.
    for (QLineEdit* box : window.findChildren<QLineEdit*>()) box->installEventFilter(this);
    connect(&runner_, &CommandRunner::ran, this, [this](CommandId id) {
        bar_.take(refusalKey);
        if (id == CommandId::Start) bar_.take(doneKey);
    });
}

void TableImport::addItems(QMenu& file, QAction* before) {
    const auto add = [&](const char* name, const QString& text, const QKeySequence& keys, const QString& hint,
                         void (TableImport::*slot)()) {
        auto* action = new QAction{text, &file};
        action->setObjectName(name);
        action->setShortcut(keys);
        action->setStatusTip(hint);
        action->setToolTip(hint);
        connect(action, &QAction::triggered, this, slot);
        file.insertAction(before, action);
    };
    add("ImportTables", tr("&Import Tables..."), QKeySequence{"Ctrl+I"},
        tr("Put the tables of the vendor's archive into the vendor's folder: a .zip, an .exe, or the tables"),
        &TableImport::askForFiles);
    add("ImportFolder", tr("Import from a &Folder..."), QKeySequence{"Ctrl+Shift+I"},
        tr("Put the tables that are in a folder, or below it, into the vendor's folder"),
        &TableImport::askForFolder);
}

void TableImport::askForFiles() {
    QFileDialog dialog{&window_, tr("Import Tables"), QSettings{}.value(folderSetting).toString(),
                       tr("The vendor's files (*.zip *.exe *.dbf *.ZIP *.EXE *.DBF);;All files (*)")};
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (dialog.exec() != QDialog::Accepted) return;
    QSettings{}.setValue(folderSetting, dialog.directory().path());
    import(dialog.selectedFiles());
}

void TableImport::askForFolder() {
    QFileDialog dialog{&window_, tr("Import from a Folder"), QSettings{}.value(folderSetting).toString()};
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() == QDialog::Accepted) import(dialog.selectedFiles());
}

void TableImport::import(const QStringList& paths) {
    bar_.take(refusalKey);
    const Gathered gathered = gatherTables(onDisk(paths));
    if (gathered.isRefused()) return refuse(shown(gathered.refusal));
    const CheckedCard card = checkedCard(gathered.tables);
    if (card.isRefused()) return refuse(shown(card.refusal));
    if (areInPlace(gathered.tables))
        return offerStart(tr("%1: these tables are in place already.").arg(wordsOf(card)));
    if (!confirm(card)) return;
    if (!putInPlace(gathered.tables))
        return refuse(tr("The tables could not be put into the vendor's folder."));
    offerStart(tr("%1: the tables are in place.").arg(wordsOf(card)));
}

void TableImport::refuse(const QString& sentence) {
    bar_.put({.key = refusalKey, .text = tr("Nothing was imported. %1").arg(sentence)});
    emit imported();
}

bool TableImport::confirm(const CheckedCard& card) {
    QMessageBox box{QMessageBox::Question, tr("Import Tables"), {}, QMessageBox::Cancel, &window_};
    box.setObjectName("ImportQuestion");
    box.setTextFormat(Qt::PlainText);
    box.setText(tr("Import the tables of %1?").arg(wordsOf(card)));
    QStringList sentences;
    for (const Text& remark : card.remarks) sentences += shown(remark);
    sentences += wordsOfOldTables();
    if (cardIsOpen()) sentences += tr("The card that is open stays as it is.");
    sentences.removeAll(QString{});
    box.setInformativeText(sentences.join('\n'));
    QPushButton* import = box.addButton(tr("&Import"), QMessageBox::AcceptRole);
    box.setDefaultButton(import);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == import;
}

void TableImport::offerStart(const QString& sentence) {
    Notice notice{.key = doneKey, .text = sentence};
    if (canLoad())
        notice.actions = {{buttonCaption(CommandId::Start), [this] { runner_.run(CommandId::Start); }}};
    else
        notice.text += ' ' + tr("Close Quillon and start it again to load them.");
    bar_.put(notice);
    emit imported();
}

bool TableImport::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    const QStringList paths = pathsIn(drop->mimeData());
    if (paths.isEmpty() || QApplication::activeModalWidget()) return QObject::eventFilter(watched, event);
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // The program that is dropped from waits until the event has ended.
    if (type == QEvent::Drop) QTimer::singleShot(0, this, [this, paths] { import(paths); });
    return true;
}

} // namespace quillon
