#include "desktop/keys_dialog.h"

#include "desktop/window_size.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QStringList>
#include <QTableWidget>
#include <QVBoxLayout>

#include <vector>

namespace quillon {
namespace {

struct KeyRow {
    QString keys;
    QString caption;
    QString hint;
};

QString plainCaption(QString caption) {
    caption.replace("&&", "\n").remove('&').replace('\n', '&');
    return caption.remove("...");
}

void collect(const QList<QAction*>& actions, std::vector<KeyRow>& rows) {
    for (const QAction* action : actions) {
        if (action->menu()) {
            collect(action->menu()->actions(), rows);
            continue;
        }
        QStringList keys;
        for (const QKeySequence& key : action->shortcuts()) keys += key.toString(QKeySequence::NativeText);
        if (!keys.isEmpty())
            rows.push_back({keys.join(", "), plainCaption(action->text()), action->statusTip()});
    }
}

} // namespace

KeysDialog::KeysDialog(const QMenuBar& menus, QWidget* parent) : QDialog{parent} {
    setObjectName("Keys");
    setWindowTitle(tr("Keys"));
    std::vector<KeyRow> rows;
    collect(menus.actions(), rows);
    auto* table = new QTableWidget{static_cast<int>(rows.size()), 3, this};
    table->setObjectName("KeysTable");
    table->setAccessibleName(tr("Keys and what they do"));
    table->setHorizontalHeaderLabels({tr("Key"), tr("Item"), tr("What it does")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    for (int row = 0; row < table->rowCount(); ++row) {
        const KeyRow& key = rows[static_cast<std::size_t>(row)];
        int column = 0;
        for (const QString& text : {key.keys, key.caption, key.hint})
            table->setItem(row, column++, new QTableWidgetItem{text});
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    auto* buttons = new QDialogButtonBox{QDialogButtonBox::Close, this};
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout{this};
    column->addWidget(table, 1);
    column->addWidget(buttons);
    resizeWithinScreen(*this, {820, 560});
}

} // namespace quillon
