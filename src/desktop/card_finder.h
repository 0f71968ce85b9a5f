// Goes through the places of the card that hold a text, one after the other.
#pragma once

#include "desktop/command_runner.h"
#include "results/card_search.h"

#include <QObject>
#include <QString>

#include <optional>

namespace quillon {

class CardFinder : public QObject {
    Q_OBJECT

public:
    explicit CardFinder(CommandRunner& runner, QObject* parent = nullptr)
        : QObject{parent}, runner_{runner} {}

    /// Shows the race of the next place, and tells which it is; empty where there is none. A new text begins with
    /// the race on show, and after the last place comes the first.
    QString find(const QString& text, bool backwards);

signals:
    void reached(int row, int column); ///< of the race that is on show now

private:
    bool show(int race);

    CommandRunner& runner_;
    QString text_;
    std::optional<CardPlace> last_;
};

} // namespace quillon
