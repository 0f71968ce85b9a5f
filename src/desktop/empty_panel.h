// What stands in the window before a card: where the vendor's tables go, which are there, and how to begin.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QFileSystemWatcher>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>

namespace quillon {

class EmptyPanel : public QWidget {
    Q_OBJECT

public:
    EmptyPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen and the source folder hold now.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    static constexpr std::size_t tableCount = 5;
    using Tables = std::array<bool, tableCount>;

    void buildTexts();
    void buildButtons();
    void lay();
    void lookForTables();
    void watchFolder();
    void openFolder();
    void takeUp(CommandId id);

    CommandRunner& runner_;
    Appearance& appearance_;
    QFileSystemWatcher watcher_; ///< of the source folder, or of the nearest one above it
    Tables there_{};
    QLabel* heading_;
    QLabel* folder_;
    std::array<QLabel*, tableCount> tables_{};
    QLabel* notice_;
    QPushButton* start_;
    QPushButton* open_;
    QPushButton* recall_;
};

} // namespace quillon
