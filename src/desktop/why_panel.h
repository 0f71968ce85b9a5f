// Why an entry has its place, why one of its lines speaks for it, and the roads of two lines side by side: the line
// selected, and the chosen one.
#pragma once

#include "desktop/appearance.h"
#include "desktop/why_texts.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <QWidget>

#include <vector>

namespace quillon {

class WhyPanel : public QWidget {
    Q_OBJECT

public:
    explicit WhyPanel(Appearance& appearance, QWidget* parent = nullptr);

    /// Tells of another line, when the panel is in sight.
    void tell(const WhyTarget& target);
    /// Tells anew what the card holds now; of the entry whose lines were opened, or the first of another race.
    void refresh();

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildLists();
    void buildRoads();
    void lay();
    void showNothing();
    void fillPlace();
    void fillLines();
    void fillRoads();
    void fillRow(int row, const RoadStep& step, const RoadStep* chosen);
    void selectLine(int row);

    Appearance& appearance_;
    QLabel* heading_;
    QListWidget* place_;
    QTableWidget* lines_;
    QTableWidget* roads_;
    QCheckBox* all_; ///< steps that changed nothing, too
    WhyTarget target_{};
    int entryOpen_ = 0;        ///< whose past lines were open at the last look; 0 none
    std::vector<WhyLine> why_; ///< of the entry
};

} // namespace quillon
