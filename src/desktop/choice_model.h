// The lines of a list of the screen, for a dialog to show.
#pragma once

#include "screen/screen.h"

#include <QAbstractTableModel>

#include <vector>

namespace quillon {

/// The lines of a list of the screen, a row each. Lines that are names of cards tell track and date in
/// columns of their own.
class ChoiceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { fileName, track, date, columns };

    /// Sorts by what the date column holds as by time.
    static constexpr int sortRole = Qt::UserRole;

    ChoiceModel(const ChoiceList& list, bool ofCards, QObject* parent);

    /// Takes up the lines where they have changed.
    void refresh();

    const Text& line(int row) const { return lines_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString cell(const Text& line, int column) const;

    const ChoiceList& list_;
    bool ofCards_;
    std::vector<Text> lines_;
};

} // namespace quillon
