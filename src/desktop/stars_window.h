// The stars profile in its window of its own: three lists that are gone through one by one, the table, and
// eight fields.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_runner.h"
#include "desktop/pick_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <array>

namespace quillon {

class StarsWindow : public QWidget {
    Q_OBJECT

public:
    StarsWindow(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now; opens and closes the window with it.
    void refresh();

protected:
    void closeEvent(QCloseEvent* event) override; ///< back to the main screen

private:
    static constexpr std::size_t lists = 3;
    static constexpr std::size_t fields = 8;

    struct Column {
        QPushButton* button = nullptr;
        PickList* list = nullptr;
        bool wasVisible = false;
    };

    void buildLists(QHBoxLayout& row);
    void buildTable(QHBoxLayout& row);
    void buildFields(QHBoxLayout& row);
    void buildShortcuts();
    void pick(std::size_t at, int row);
    void openList(std::size_t at);
    bool canOpen(std::size_t at) const;
    void refreshLists();
    void lay();

    CommandRunner& runner_;
    Appearance& appearance_;
    std::array<Column, lists> columns_{};
    QPushButton* startOver_ = nullptr;
    CellTableView* table_ = nullptr;
    std::array<QLabel*, fields> names_{};
    std::array<QLineEdit*, fields> fields_{};
};

} // namespace quillon
