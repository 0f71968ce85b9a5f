// The results board: selections, finish, the "Tote Board" with its dead-heat box, refunds.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "screen/screen.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

namespace quillon {

class BoardPanel : public QWidget {
    Q_OBJECT

public:
    BoardPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);
    ~BoardPanel() override;

    /// Draws what the screen holds now. A box that is being typed in keeps its text.
    void refresh();

signals:
    /// A command has shown a race anew and dropped what was typed for this one.
    void typingDropped(int race);

private:
    /// A box that is typed in, and the command that takes its text.
    struct Entry {
        QLineEdit* edit;
        std::function<void(const Text&)> send;
    };

    void buildRunners();
    void buildStanding();
    void buildTote();
    void buildPayoffHeads();
    void buildWideBoxes();
    void buildTabOrder();
    QLabel* addLabel(const QString& text, int row, int column);
    QLineEdit* addEntry(const QString& objectName, const QString& name, CommandId id,
                        std::function<void(const Text&)> send);
    void lay();
    void handIn();
    void takeUp(CommandId id);
    void placeBoxTen();
    void refreshStanding();
    void tint();

    CommandRunner& runner_;
    Appearance& appearance_;
    QGridLayout* grid_;
    std::vector<Entry> entries_;
    std::vector<QLabel*> captions_;
    std::array<QLineEdit*, 8> boxes_{}; ///< selections 0 to 3, finish 4 to 7
    std::array<QLineEdit*, 12> tote_{}; ///< boxes 1 to 11; 0 is the heading
    std::array<QLabel*, 4> finishLabels_{};
    std::array<Colour, 8> painted_; ///< tints of the boxes as they are drawn
    QLabel* margin_ = nullptr;
    QLabel* betMark_ = nullptr;
    QLabel* heading_ = nullptr;
    QLineEdit* refunds_ = nullptr;
    int boxTenColumn_ = 0; ///< where box 10 stands now; 0 nowhere
    bool handingIn_ = false;
    int unkept_ = 0; ///< the race whose board the running command may drop; 0 none
};

} // namespace quillon
