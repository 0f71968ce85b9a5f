#include "desktop/fault_journal_dialog.h"

#include "core/journal.h"
#include "desktop/shown_text.h"
#include "desktop/window_size.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <array>

namespace quillon {
namespace {

enum Column { stepColumn, whatColumn, columnCount };
constexpr std::array columns{ViewColumn{"Step", 2400}, ViewColumn{"What", 9000}};
static_assert(columns.size() == columnCount);

QString number(std::uint64_t count) { return QLocale{QLocale::English}.toString(qulonglong{count}); }

QString countWords() {
    QString words = journal.count() == 0
                        ? QObject::tr("Nothing was passed over since the start.")
                        : QObject::tr("%1 passed over since the start").arg(number(journal.count()));
    if (journal.count() > journal.kept().size())
        words += QObject::tr("; the last %1 are kept.").arg(number(journal.kept().size()));
    else if (journal.count() > 0)
        words += '.';
    if (journal.expected() > 0)
        words += QObject::tr(" Readings that found nothing, as on any card in good order: %1.")
                     .arg(number(journal.expected()));
    return words;
}

} // namespace

FaultJournalDialog::FaultJournalDialog(Appearance& appearance, QWidget* parent)
    : QDialog{parent}, appearance_{appearance} {
    setObjectName("FaultJournalDialog");
    setWindowTitle(tr("Fault Journal"));
    build();
    resizeWithinScreen(*this, {appearance_.pixels(12000), appearance_.pixels(7000)});
    refresh();
}

// The table shows our grid until its end, so it goes first: a dialog that is open hides its children at the
// very last.
FaultJournalDialog::~FaultJournalDialog() { delete table_; }

void FaultJournalDialog::build() {
    auto* column = new QVBoxLayout{this};
    auto* purpose =
        new QLabel{tr("When something in a table or file can't be read, Quillon leaves it out and "
                      "goes on; here stands what was left out, so that a damaged file shows."),
                   this};
    purpose->setWordWrap(true);
    column->addWidget(purpose);
    counts_ = new QLabel{this};
    counts_->setObjectName("FaultCounts");
    counts_->setTextFormat(Qt::PlainText);
    counts_->setWordWrap(true);
    column->addWidget(counts_);

    table_ = new CellTableView{appearance_, tr("Faults, the newest at the bottom"), this};
    table_->setObjectName("FaultTable");
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setViewLayout({.columns = columns});
    column->addWidget(table_, 1);

    auto* buttons = new QDialogButtonBox{this};
    const auto add = [&](const char* name, const QString& text, const QString& tip, auto&& slot) {
        QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setToolTip(tip);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
    };
    add("CopyFaults", tr("&Copy"), tr("Copy the selected lines, or all of them"), [this] { copy(); });
    add("SaveFaults", tr("&Save as Text..."), tr("Write all lines to a file"), [this] { askAndSave(); });
    add("RefreshFaults", tr("&Refresh"), tr("Show what has come in since"), [this] { refresh(); });
    connect(buttons->addButton(QDialogButtonBox::Close), &QPushButton::clicked, this, &QDialog::close);
    column->addWidget(buttons);
}

void FaultJournalDialog::refresh() {
    const auto& kept = journal.kept();
    faults_ = Grid{static_cast<int>(kept.size()) + 1, columnCount};
    int row = Grid::headRow;
    for (const Fault& fault : kept) {
        faults_(++row, stepColumn).text = fault.step;
        faults_(row, whatColumn).text = fault.what;
    }
    counts_->setText(countWords());
    table_->show(&faults_);
    table_->scrollToBottom();
}

QString FaultJournalDialog::allText() const {
    QString text;
    for (int row = Grid::firstRow; row < faults_.rows(); ++row)
        text += shown(faults_.text(row, stepColumn)) + '\t' + shown(faults_.text(row, whatColumn)) + '\n';
    return text;
}

void FaultJournalDialog::copy() {
    if (table_->selectionModel()->hasSelection()) return table_->copySelection();
    QApplication::clipboard()->setText(allText());
}

bool FaultJournalDialog::saveTo(const QString& path) const {
    QSaveFile file{path};
    if (!file.open(QIODevice::WriteOnly)) return false;
    const QByteArray content = allText().toUtf8();
    return file.write(content) == content.size() && file.commit();
}

void FaultJournalDialog::askAndSave() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save the Fault Journal"), folder + "/Quillon faults.txt", tr("Text files (*.txt)"));
    if (path.isEmpty() || saveTo(path)) return;
    QMessageBox::critical(this, windowTitle(), tr("The file can't be written: %1").arg(path));
}

} // namespace quillon
