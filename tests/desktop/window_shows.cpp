#include "desktop/window_shows.h"

#include "app/commands.h"
#include "card/race_card.h"
#include "desktop/cell_table_view.h"
#include "desktop/menus.h"
#include "desktop/shown_text.h"
#include "desktop/stars_window.h"
#include "results/board.h"
#include "screen/race_views.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPushButton>
#include <QTreeView>

#include <array>

namespace quillon {
namespace {

std::string said(const QString& text) { return '"' + text.toStdString() + '"'; }
std::string said(bool value) { return value ? "yes" : "no"; }
std::string said(int value) { return std::to_string(value); }

/// The text that a cell shows of what is stored: without the blanks that pad it, where these would move it.
Text shownOf(const Text& stored, const QModelIndex& cell) {
    const bool isLeft = cell.data(Qt::TextAlignmentRole).toInt() & Qt::AlignLeft;
    return isLeft ? stored : Text{trimmed(stored)};
}

struct Page {
    const char* table;
    bool Screen::*visible;
    const Grid& grid;
};
const std::array analysisPages{
    Page{"SummaryTable", &Screen::summaryVisible, theScreen.summary},
    Page{"ProfileTable", &Screen::profileVisible, theScreen.profile},
    Page{"TracksTable", &Screen::tracksVisible, theScreen.tracks},
    Page{"PicksTable", &Screen::picksVisible, theScreen.picks},
};

struct List {
    const char* name;
    const ChoiceList& list;
};
const std::array choiceLists{
    List{"ChooseFile", theScreen.fileList},
    List{"SelectTrack", theScreen.trackList},
    List{"DriverChoice", theScreen.driverList},
};
const std::array starLists{
    List{"MarginChoice", theScreen.marginList},
    List{"OddsChoice", theScreen.oddsList},
    List{"MaxOddsChoice", theScreen.maxOddsList},
};

bool analysisIsShown() {
    return theScreen.summaryVisible || theScreen.profileVisible || theScreen.tracksVisible ||
           theScreen.picksVisible;
}

/// The looks at one window, part by part.
class Comparison {
public:
    explicit Comparison(MainWindow& window) : window_{window} {}

    std::vector<std::string> differences() {
        if (!cardIsOpen()) same("the caption", quillon::shown(theScreen.caption), window_.windowTitle());
        menus();
        raceButtons();
        pages();
        if (analysisIsShown())
            analysis();
        else if (cardIsOpen() && !window_.overviewShown())
            racePage();
        raceList();
        choices();
        stars();
        return std::move(found_);
    }

private:
    template <typename Value>
    void same(const std::string& what, const Value& wanted, const Value& there) {
        if (wanted != there) found_.push_back(what + ": " + said(there) + " in place of " + said(wanted));
    }
    void same(const std::string& what, TextView wanted, const QString& there) {
        same(what, quillon::shown(wanted), there);
    }

    template <typename Widget>
    Widget& child(const std::string& name) {
        auto* found = window_.findChild<Widget*>(QString::fromStdString(name));
        if (!found) throw std::runtime_error("no widget " + name);
        return *found;
    }
    bool isSeen(QWidget& widget) { return widget.isVisibleTo(&window_); }

    void menus() {
        for (const Command& command : commandTable()) {
            const QAction* action = window_.menus().action(command.id);
            if (!action) continue;
            const std::string name = std::string{"the menu's "} + command.name;
            const MenuState& state = theScreen.item(command.id);
            same(name + " visible", state.visible, action->isVisible());
            same(name + " enabled", isAvailable(command, {}), action->isEnabled());
            same(name + " checked", state.checked, action->isChecked());
        }
    }

    void raceButtons() {
        auto& start = child<QPushButton>("Start");
        same("Start", theScreen.start.caption, start.text());
        same("Start enabled", theScreen.start.enabled, start.isEnabled());
        for (std::size_t n = 1; n < theScreen.raceButtons.size(); ++n) {
            const Button& button = theScreen.raceButtons[n];
            // The buttons of a closed card are the window's to put away.
            const std::string name = "RaceButton" + std::to_string(n);
            auto& race = child<QPushButton>(name);
            same(name + " visible", button.visible && cardIsOpen(), !race.isHidden());
            same(name, button.caption, race.text());
            same(name + " red", button.current, race.styleSheet().contains("#ff0000"));
        }
    }

    void pages() {
        const bool races = !analysisIsShown() && cardIsOpen();
        same("EmptyPanel", !analysisIsShown() && !cardIsOpen(), isSeen(child<QWidget>("EmptyPanel")));
        same("OverviewTable", races && window_.overviewShown(), isSeen(child<QWidget>("OverviewTable")));
        same("RaceView", races && !window_.overviewShown(), isSeen(child<QWidget>("RaceView")));
        for (const Page& page : analysisPages)
            same(page.table, theScreen.*page.visible, isSeen(child<QWidget>(page.table)));
    }

    /// The first `rows` rows of a table and what they are painted with, against those of the grid.
    void table(const std::string& name, CellTableView& view, const Grid& grid, int rows) {
        const int columns = std::min(view.model()->columnCount(), grid.columns());
        same(name + " rows", true, rows <= view.model()->rowCount());
        for (int row = 0; row < std::min(rows, view.model()->rowCount()); ++row)
            for (int column = 0; column < columns; ++column) {
                const QModelIndex index = view.model()->index(row, column);
                const int tableRow = view.tableRow(index);
                const std::string place =
                    name + " " + std::to_string(tableRow) + ", " + std::to_string(column);
                const int tableColumn = view.cells().tableColumn(index);
                const Text stored = grid.text(tableRow, tableColumn);
                // What goes over the cells of a first start is looked at by its own test.
                if (view.columnSpan(row, column) == 1)
                    same(place, shownOf(stored, index), index.data().toString());
                same(place + " stored", stored, index.data(Qt::EditRole).toString());
                const auto& background = grid.read(tableRow, tableColumn).background;
                const QVariant painted = index.data(Qt::BackgroundRole);
                if (!background || *background == white) continue;
                same(place + " colour", quillon::shown(*background).name(),
                     painted.isValid() ? painted.value<QBrush>().color().name() : QString{"none"});
            }
    }

    void analysis() {
        constexpr int looked = 60; // rows after them come from the same place
        for (const Page& page : analysisPages) {
            if (!(theScreen.*page.visible)) continue;
            auto& view = child<CellTableView>(page.table);
            const int rows = view.model()->rowCount();
            table(page.table, view, page.grid, std::min(rows, looked));
        }
        auto& record = child<QPushButton>("AnalysisRecord");
        same("Record visible", theScreen.summaryVisible, isSeen(record));
        same("Record enabled", theScreen.record.enabled, record.isEnabled());
    }

    void racePage() {
        same("race", "RACE " + theScreen.header.race, child<QLabel>("race").text());
        same("classText", quillon::shown(theScreen.header.classText).simplified(),
             child<QLabel>("classText").text());
        raceView();
        board();
        pastLines();
    }

    void raceView() {
        const int race = raceOnShow();
        if (race < 1 || race >= raceViews) return; // races beyond have no view
        if (!theScreen.raceViewVisible[static_cast<std::size_t>(race)]) return;
        const Grid& grid = theScreen.raceView[static_cast<std::size_t>(race)];
        table("RaceView", child<CellTableView>("RaceView"), grid, ratedEntries);
        same("ScratchButton0", theScreen.scratchButtons[0].caption,
             child<QPushButton>("ScratchButton0").text());
        for (int row = 1; row <= ratedEntries; ++row) {
            const auto at = static_cast<std::size_t>(row);
            const std::string number = std::to_string(row);
            same("EntryButton" + number, trimmed(theScreen.entryButtons[at].caption),
                 child<QPushButton>("EntryButton" + number).text());
            same("ScratchButton" + number, theScreen.scratchButtons[at].caption,
                 child<QPushButton>("ScratchButton" + number).text());
            same("HeatButton" + number, theScreen.heatButtons[at].visible,
                 isSeen(child<QPushButton>("HeatButton" + number)));
        }
    }

    void box(const std::string& name, const Text& text) {
        auto& edit = child<QLineEdit>(name);
        if (edit.isModified()) return;
        // A box holds as much as fits into it.
        same(name, quillon::shown(text).left(edit.maxLength()), edit.text());
    }

    void board() {
        for (std::size_t i = 0; i < theScreen.boxes.size(); ++i) {
            const std::string name = "Box" + std::to_string(i);
            box(name, theScreen.boxes[i].text);
            const QColor painted = child<QLineEdit>(name).palette().color(QPalette::Base);
            const bool isPlain = theScreen.boxes[i].colour == white;
            const QColor wanted =
                isPlain ? window_.palette().color(QPalette::Base) : quillon::shown(theScreen.boxes[i].colour);
            same(name + " colour", wanted.name(), painted.name());
        }
        same("ToteHeading", theScreen.tote[0], child<QLabel>("ToteHeading").text());
        for (std::size_t i = 1; i < theScreen.tote.size(); ++i)
            box("Tote" + std::to_string(i), theScreen.tote[i]);
        box("Refunds", theScreen.refunds);
        for (std::size_t i = 0; i < theScreen.finishLabels.size(); ++i)
            same("FinishLabel", theScreen.finishLabels[i],
                 child<QLabel>("FinishLabel" + std::to_string(i)).text());
        same("Tote10 visible", theScreen.boxTenVisible && theScreen.boxTenColumn > 0,
             isSeen(child<QWidget>("Tote10")));
    }

    void pastLines() {
        same("PastPerformances", theScreen.pastPerformanceOpen, isSeen(child<QWidget>("PastPerformances")));
        same("RaceLines", !theScreen.pastPerformanceOpen, isSeen(child<QWidget>("RaceLines")));
        if (!theScreen.pastPerformanceOpen) return;
        same("PastPerformanceHeading", theScreen.pastPerformanceHeading,
             child<QLabel>("PastPerformanceHeading").text());
        auto& lines = child<CellTableView>("EntryLines");
        table("EntryLines", lines, theScreen.dataView[pastPerformanceView], lines.model()->rowCount());
    }

    void raceList() {
        auto& list = child<QListWidget>("RaceList");
        const auto& lines = theScreen.raceList.lines;
        same("RaceList lines", static_cast<int>(lines.size()), list.count());
        for (int row = 0; row < std::min(list.count(), static_cast<int>(lines.size())); ++row) {
            const auto at = static_cast<std::size_t>(row);
            const QString line = quillon::shown(lines[at]);
            same("RaceList " + std::to_string(row), line, list.item(row)->text().left(line.size()));
            const bool checked = at + 1 < theScreen.raceChecks.size() && theScreen.raceChecks[at + 1].visible;
            same("RaceList mark " + std::to_string(row), checked,
                 list.item(row)->text().contains(QChar{0x2713}));
        }
    }

    void choices() {
        auto& dialog = child<QDialog>("ChoiceDialog");
        bool anyOpen = false;
        for (const List& choice : choiceLists) {
            anyOpen = anyOpen || choice.list.visible;
            auto& view = child<QTreeView>(choice.name);
            if (!choice.list.visible || !view.isVisible()) continue; // put aside, or below a newer one
            if (!child<QLineEdit>("ChoiceFilter").text().isEmpty()) continue;
            same(std::string{choice.name} + " lines", static_cast<int>(choice.list.lines.size()),
                 view.model()->rowCount());
        }
        same("a list", anyOpen, dialog.isVisible() || isSeen(child<QWidget>("ChoiceWaiting")));
    }

    void stars() {
        auto& stars = child<StarsWindow>("StarsWindow");
        same("StarsWindow", theScreen.starsVisible, stars.isVisible());
        if (!theScreen.starsVisible) return;
        for (const List& list : starLists) {
            same(list.name, list.list.visible, !child<QListWidget>(list.name).isHidden());
            same(std::string{list.name} + "Button", list.list.caption,
                 child<QPushButton>(std::string{list.name} + "Button").text());
        }
        for (std::size_t field = 1; field < theScreen.starsFields.size(); ++field)
            same("Text", theScreen.starsFields[field],
                 child<QLineEdit>("Text" + std::to_string(field)).text());
        auto& view = child<CellTableView>("StarsTable");
        table("StarsTable", view, theScreen.stars, std::min(view.model()->rowCount(), 60));
    }

    MainWindow& window_;
    std::vector<std::string> found_;
};

} // namespace

std::vector<std::string> differencesFromScreen(MainWindow& window) {
    return Comparison{window}.differences();
}

void expectShowsScreen(MainWindow& window) {
    for (const std::string& difference : differencesFromScreen(window)) ADD_FAILURE() << difference;
}

} // namespace quillon
