// A ticket put together by check boxes: a row a place or leg, a box an entry; its cost at once.
#pragma once

#include "analysis/card_tickets.h"
#include "desktop/appearance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>

#include <vector>

namespace quillon {

class TicketBuilder : public QWidget {
    Q_OBJECT

public:
    explicit TicketBuilder(Appearance& appearance, QWidget* parent = nullptr);

    /// Takes up the race on show, and who runs in it now.
    void refresh();

    /// The ticket as it is checked.
    CardTicket ticket() const;

    std::int64_t stake() const; ///< cents

signals:
    void added(const quillon::CardTicket& ticket);

private:
    /// What the rows and boxes stand for; others are laid out anew.
    struct Layout {
        Text cardFileName{};
        int race = 0;
        Pool pool = Pool::win;
        bool boxed = false;
        bool operator==(const Layout&) const = default;
    };

    void buildChoice();
    void buildTable();
    void buildMarks();
    void arrange();
    void lay();
    void layOut();
    void fillRow(int row);
    void fillBox(int row, int column, const Runner& runner, int race);
    void checkSelection(int place);
    void checkAll(bool wanted);
    void tellCost();
    Layout wanted() const;
    int raceOf(int row) const;
    int rowAtWork() const;
    Field fieldIn(int row) const;
    QString headOf(int row) const;

    Appearance& appearance_;
    Layout layout_;
    std::vector<Field> fields_;
    bool filling_ = false;
    QLabel* races_;
    QComboBox* pool_;
    QCheckBox* boxed_;
    QDoubleSpinBox* stake_;
    QTableWidget* table_;
    std::vector<QPushButton*> marks_;
    QLabel* cost_;
    QPushButton* add_;
};

/// "4 combinations, 2.00", and who of it is scratched.
QString costText(const TicketCost& cost);

} // namespace quillon
