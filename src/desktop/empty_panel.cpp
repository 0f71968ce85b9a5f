#include "desktop/empty_panel.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "desktop/working_folder.h"

#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <system_error>

namespace quillon {
namespace {

constexpr QChar tick{0x2713};
constexpr QChar cross{0x2717};

struct SourceTable {
    const char* file;
    const char* holds;
};
constexpr std::array vendorTables{
    SourceTable{"RACESHR.DBF", "today's races"}, SourceTable{"HORSEHR.DBF", "their horses"},
    SourceTable{"RUNLINHR.DBF", "past lines"},   SourceTable{"DRIVERHR.DBF", "drivers"},
    SourceTable{"TRAINRHR.DBF", "trainers"},
};
constexpr int buttonMargins = 480;   ///< twips, left and right of a caption together
constexpr std::size_t raceTable = 0; ///< there is no card without it

// A program that had a card open loads no other one.
bool canLoad() { return theScreen.start.enabled && theScreen.startOffer == StartOffer::load; }

bool isThere(const char* file) {
    bool found = false;
    attempt([&] { found = fileExists({Folder::sourceTables, file}); });
    return found;
}

} // namespace

EmptyPanel::EmptyPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {
    setObjectName("EmptyPanel");
    buildTexts();
    buildButtons();
    auto* column = new QVBoxLayout{this};
    auto* tables = new QGridLayout;
    tables->setVerticalSpacing(4);
    for (std::size_t i = 0; i < tableCount; ++i)
        tables->addWidget(tables_[i], static_cast<int>(i), 0, Qt::AlignLeft);
    auto* tableRow = new QHBoxLayout;
    tableRow->addStretch(1);
    tableRow->addLayout(tables);
    tableRow->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch(1);
    for (QPushButton* button : {start_, open_, recall_}) buttons->addWidget(button);
    buttons->addStretch(1);
    column->setSpacing(16);
    column->addStretch(2);
    column->addWidget(heading_);
    column->addWidget(folder_);
    column->addLayout(tableRow);
    column->addLayout(buttons);
    column->addWidget(notice_);
    column->addStretch(3);
    connect(&runner_, &CommandRunner::ran, this, &EmptyPanel::takeUp);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &EmptyPanel::refresh);
    connect(&appearance_, &Appearance::changed, this, &EmptyPanel::lay);
    lay();
}

void EmptyPanel::buildTexts() {
    const auto text = [this](const char* name) {
        auto* label = new QLabel{this};
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        return label;
    };
    heading_ = text("EmptyHeading");
    folder_ = text("SourceFolder");
    folder_->setAccessibleName(tr("Folder of the vendor's tables"));
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    notice_ = text("EmptyNotice");
    for (std::size_t i = 0; i < tableCount; ++i) {
        tables_[i] = text(vendorTables.at(i).file);
        tables_[i]->setWordWrap(false);
    }
}

void EmptyPanel::buildButtons() {
    const auto button = [this](const char* name, const QString& text, const QString& tip) {
        auto* made = new QPushButton{text, this};
        made->setObjectName(name);
        made->setToolTip(tip);
        made->setAccessibleName(QString{text}.remove('&'));
        return made;
    };
    start_ = button("EmptyStart", {}, tipOf(CommandId::Start));
    setCommand(*start_, CommandId::Start);
    open_ = button("OpenFolder", tr("&Open the Folder"), tr("Show the folder in the file manager"));
    recall_ = button("EmptyRecall", tr("&Recall a Saved Card"), tipOf(CommandId::RecallRaceCard));
    setCommand(*recall_, CommandId::RecallRaceCard);
    connect(start_, &QPushButton::clicked, this, [this] { runner_.run(CommandId::Start); });
    connect(open_, &QPushButton::clicked, this, &EmptyPanel::openFolder);
    connect(recall_, &QPushButton::clicked, this, [this] { runner_.run(CommandId::RecallRaceCard); });
    setTabOrder(start_, open_);
    setTabOrder(open_, recall_);
}

void EmptyPanel::lay() {
    heading_->setFont(appearance_.viewFont(20, true));
    folder_->setFont(appearance_.fixedFont(11));
    for (QLabel* table : tables_) table->setFont(appearance_.viewFont(12, false));
    notice_->setFont(appearance_.viewFont(12, true));
    for (QPushButton* button : {start_, open_, recall_}) {
        button->setFont(appearance_.viewFont(12, button == start_));
        button->setMinimumHeight(appearance_.pixels(480));
        // The style leaves no room beside a caption in a larger font.
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(button->text()) +
                                appearance_.pixels(buttonMargins));
    }
}

void EmptyPanel::refresh() {
    if (cardIsOpen()) return; // another page is on show
    folder_->setText(sourceFolderOnDisk());
    lookForTables();
    watchFolder();
    start_->setVisible(canLoad());
    start_->setText(shown(theScreen.start.caption));
    start_->setAccessibleName(start_->text());
    start_->setEnabled(CommandRunner::canRun(CommandId::Start));
    recall_->setEnabled(CommandRunner::canRun(CommandId::RecallRaceCard));
}

void EmptyPanel::lookForTables() {
    Tables there{};
    for (std::size_t i = 0; i < tableCount; ++i) {
        there[i] = isThere(vendorTables.at(i).file);
        QString state = QString{tick} + "  %1 (%2)";
        if (!there[i]) state = QString{cross} + tr("  %1 (%2) is missing");
        tables_[i]->setText(state.arg(vendorTables.at(i).file, tr(vendorTables.at(i).holds)));
    }
    if (there != there_) notice_->clear(); // it spoke of the tables as they were
    there_ = there;
    const bool complete = std::all_of(there.begin(), there.end(), [](bool table) { return table; });
    if (!canLoad())
        return heading_->setText(
            tr("The card is closed. Recall a saved card, or start Quillon again for another day's tables"));
    heading_->setText(complete ? tr("The vendor's tables are here. Press Start.")
                               : tr("Put the vendor's tables into this folder, then press Start"));
}

// A folder that is made later is seen from the one that it is made in.
void EmptyPanel::watchFolder() {
    QString folder = sourceFolderOnDisk();
    while (!QFileInfo{folder}.isDir() && QFileInfo{folder}.path() != folder)
        folder = QFileInfo{folder}.path();
    if (watcher_.directories() == QStringList{folder}) return;
    if (!watcher_.directories().isEmpty()) watcher_.removePaths(watcher_.directories());
    watcher_.addPath(folder);
}

void EmptyPanel::openFolder() {
    attempt([] { makeFolder(Folder::sourceTables); });
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(sourceFolderOnDisk()))) return;
    notice_->setText(tr("The folder could not be opened from here. Its path stands above."));
}

void EmptyPanel::takeUp(CommandId id) {
    if (id != CommandId::Start || cardIsOpen()) return;
    lookForTables();
    const QString why = there_[raceTable] ? tr("Start found no race: %1 holds none, or is no table.")
                                          : tr("Start found no race: %1 is not in the folder.");
    notice_->setText(why.arg(vendorTables[raceTable].file));
}

void EmptyPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isVisible() && isActiveWindow()) refresh();
}

void EmptyPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

} // namespace quillon
