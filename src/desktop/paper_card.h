// The open card as it is put on paper: texts and colours, nothing of where they stand.
#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <vector>

namespace quillon {

/// A program number in the colours of its saddle cloth.
struct PaperNumber {
    QString text{};
    QColor cloth = Qt::white;
    QColor ink = Qt::black;
};

/// The cells of the line that speaks for an entry, by the columns of `paperLineHeads`.
constexpr std::size_t paperLineColumns = 15;
using PaperLine = std::array<QString, paperLineColumns>;

struct PaperEntry {
    PaperNumber number{};
    QString horse{};
    QString driver{}; ///< and his UDR
    QString morningLine{};
    QString post{};
    QString rating{};
    QString place{}; ///< "S1" to "S4", "5th"
    bool isOut = false;
    PaperLine line{};
    QString noLine{}; ///< why there is none
    QString note{};   ///< of the user, printed where there is room to write
};

struct PaperSelection {
    PaperNumber number{};
    QString horse{};
    QString rating{};
};

struct PaperRace {
    QString label{};
    QString postTime{};
    QString facts{}; ///< gait, distance, purse, class rating
    QString gait{};
    QString distance{};
    QString purse{};
    QString conditions{};
    QString wagering{};
    std::vector<PaperEntry> entries{};
    std::array<PaperSelection, 4> selections{};
    QString margin{};
    QString betMark{};
    bool isClear = false; ///< S1 stands out
    QString note{};
};

struct PaperCard {
    QString title{}; ///< "MVR, Saturday 14 March 2026"
    QString track{};
    std::vector<PaperRace> races{};
};

/// The open card.
PaperCard paperCard();

} // namespace quillon
