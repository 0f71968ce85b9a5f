// Notes on the race on show and on one of its entries: what was noted on earlier cards, and a field for another.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

namespace quillon {

class CellTableView;

class NotesPanel : public QWidget {
    Q_OBJECT

public:
    NotesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// The entry is the one that the keyboard is on in this table.
    void follow(CellTableView& entries);

    /// Draws the notes as they are now.
    void refresh();

    QSize sizeHint() const override;

private:
    void build();
    void lay();
    void takeEntry(int row, int column);
    void fillSubjects();
    void fillList();
    void offerAdding();
    void add();

    CommandRunner& runner_;
    Appearance& appearance_;
    QListWidget* list_;
    QLabel* label_;
    QComboBox* subject_;
    QLineEdit* text_;
    QPushButton* add_;
    int row_ = 1; ///< of the race view
    int race_ = 0;
};

} // namespace quillon
