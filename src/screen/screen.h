// The screen as data: what the user sees, for any front end to render. The logic writes it; front ends read
// it and send back commands with an index.
#pragma once

#include "card/columns.h"
#include "core/numbers.h"
#include "core/table.h"
#include "core/text.h"
#include "screen/command_id.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour white{255, 255, 255};
inline constexpr Colour red{255, 0, 0};
inline constexpr Colour recentYellow{255, 255,
                                     100};      ///< lines at most 33 days old; the entry and race in view
inline constexpr Colour olderCyan{0, 255, 255}; ///< lines at most 50 days old
inline constexpr Colour closeMagenta{255, 100, 255}; ///< the top two all but level

struct Cell {
    Text text{};
    std::optional<Colour> background{}; ///< none: the view's own
    std::optional<Colour> foreground{};
    bool bold = false;

    bool operator==(const Cell&) const = default;
};

/// Rows of a view that are made when they are looked at, for tables too long to be held: `make` fills the
/// cells of a row of the view, all empty before, and must not fail.
struct RowSource {
    int count = 0;
    std::function<void(int row, std::span<Cell> cells)> make{};
};

/// A table of cells with fixed column numbers; row 0 is the head. Rows are made when they are first written,
/// and copies share a row until one of them writes there.
///
/// grid(row, column) fails outside the bounds by the failure policy, as every store beyond a bound does.
class Grid {
public:
    static constexpr int headRow = 0;
    static constexpr int firstRow = 1; ///< below the head

    Grid() = default;
    Grid(int rows, int columns);

    int rows() const { return rowCount_; }
    int columns() const { return columnCount_; }

    /// An empty view of this size, its head row counted; let go of what it showed.
    void layOut(int rows, int columns);

    /// The cell to be written. Fails outside the bounds. The cell stays where it is until the view is copied
    /// or cleared.
    Cell& operator()(int row, int column);

    /// All cells of a row, to be written. Fails outside the bounds.
    std::span<Cell> cellsOf(int row);

    /// The cell as it stands, an empty one where nothing was written. Fails outside the bounds. A cell of a
    /// made row stands until another row is looked at.
    const Cell& read(int row, int column) const;
    const Text& text(int row, int column) const { return read(row, column).text; }

    /// Gives every cell of the columns `from` to `to` of a row this background.
    void shade(int row, int from, int to, std::optional<Colour> background);

    /// The rows from `first` on are the source's, in place of all from there on; they can't be written.
    void showRows(int first, RowSource source);

    /// Empties every cell but those of the head row, and lets go of a source.
    void clear();
    void clearAll(); ///< the head row too

    /// Another one after every change, so that a front end can tell what to draw again.
    std::uint64_t version() const { return version_; }

    /// Lets go of rows of its own that are the same as the other's, and shares those.
    void shareWith(const Grid& other);

    /// Whether both show the same texts in the rows that they hold.
    bool sameTexts(const Grid& other) const;

    /// Whether some rows are made when they are looked at.
    bool hasMadeRows() const { return source_ != nullptr; }

    // All but made rows.
    friend void pack(Packer& out, const Grid& grid);
    friend bool unpack(Unpacker& in, Grid& grid);

private:
    using Row = std::vector<Cell>;
    using Rows = std::vector<std::shared_ptr<Row>>; ///< none: a row that was never written

    void check(int row, int column) const;
    bool isMade(int row) const { return source_ && row >= static_cast<int>(rows_->size()); }
    const Cell& madeCell(int row, int column) const;
    void letGoOfSource();
    Rows& writtenRows();
    void change();

    std::shared_ptr<Rows> rows_ = std::make_shared<Rows>(); ///< shared with copies until one is written
    std::shared_ptr<const RowSource> source_;               ///< of the rows after `rows_`
    mutable int lookedAt_ = 0; ///< the made row that stands in `madeCells_`; 0 none
    mutable Row madeCells_;
    int rowCount_ = 0;
    int columnCount_ = 0;
    std::uint64_t version_ = 0;
};

struct Button {
    Text caption{};
    bool visible = true;
    bool enabled = true;
    bool current = false; ///< drawn red: the race on show
};

struct Box {
    Text text{};
    Colour colour = white;
};

struct Label {
    Text caption{};
    bool visible = true;
};

struct ChoiceList {
    std::vector<Text> lines{};
    bool visible = false;
    Text caption{}; ///< of the button that the list hangs from, where it has one
};

struct MenuState {
    bool enabled = true;
    bool visible = true;
    bool checked = false;
};

constexpr int dataViews =
    29; ///< 1 to 23 races, 24 the running-line table, 25 an entry's past lines, the rest spare
constexpr int raceViews = 24;
constexpr int lineTableView = 24;
constexpr int pastPerformanceView = 25;
constexpr int dataViewRows = 200;
constexpr int dataViewColumns = DataColumn::count;
constexpr int raceViewRows = 21; ///< the head and an entry a row
constexpr int raceViewColumns = RaceColumn::last + 1;

constexpr int boardRaces = 31; ///< as many as the store has races

template <std::size_t count>
std::array<Grid, count> emptyViews(int rows, int columns) {
    std::array<Grid, count> views;
    views.fill(Grid{rows, columns});
    return views;
}

/// What stands in `Screen::lineTaken` besides the row of a line.
constexpr Integer noLineTaken = 0; ///< the program's choice stands
constexpr Integer takenOut = -1;   ///< scratched or removed: no line speaks for the entry

/// What the Start button stands for.
enum class StartOffer {
    load,       ///< before a card: "Start"
    viewRaces,  ///< a card was recalled from file, and there is nothing to load: "View Races"
    selectRace, ///< a card was loaded: "Select Race"
};

/// What is open.
enum class CardMode { none, loaded, recalled };

inline constexpr TextView windowCaption = "Quillon Professional Version";

/// The heading of the race on show.
struct RaceHeader {
    Text race{}; ///< "1", or "1A" right after the load of a lettered card
    Label track{};
    Label date{};
    Text purse{};
    Text classText{};
    Text cr{};
    Text wagering{};
    Text postTime{};
    Text gait{};
    Text distance{};
    Text trackInfo{};
};

struct Screen {
    Text caption{};
    int width = 16250; ///< twips
    int height = 11200;

    CardMode mode = CardMode::none;

    RaceHeader header{};
    StartOffer startOffer = StartOffer::load;
    Button start{};                          ///< captioned by what it offers
    std::array<Button, 24> raceButtons{};    ///< 1 to 23; 0 is spare
    std::array<Button, 24> raceChecks{};     ///< check marks of the card's race list
    std::array<Button, 13> entryButtons{};   ///< 1 to 12, captioned with program numbers
    std::array<Button, 13> scratchButtons{}; ///< column "Scr"; 0 switches all
    std::array<Button, 13> heatButtons{};    ///< heat choice of rows 1 to 12
    std::array<Box, 8> boxes{};              ///< selections 0 to 3, finish 4 to 7
    std::array<Text, 12> tote{};             ///< "Tote Board" boxes; 0 is the heading
    std::array<Text, 4> finishLabels{};      ///< above the payoff columns: the finish boxes again
    bool boxTenVisible = false;
    int boxTenColumn =
        0; ///< column of payoffs that box 10 stands beside in a dead heat: 1 win, 2 place; 0 none
    Text refunds{};

    /// By race: 1 where a results pass has read results and the board was not taken into the store since.
    Table<Integer, boardRaces> boardsToTakeIn{};

    std::array<Grid, dataViews> dataView = emptyViews<dataViews>(dataViewRows, dataViewColumns);
    std::array<bool, dataViews> dataViewVisible{};
    std::array<Grid, raceViews> raceView = emptyViews<raceViews>(raceViewRows, raceViewColumns);
    std::array<bool, raceViews> raceViewVisible{};

    bool pastPerformanceOpen = false;
    int currentEntry = 0; ///< the entry whose past lines are shown; 0 none
    Text pastPerformanceHeading{};

    /// By race and entry: the row of the race's data view that the user took in place of the program's line,
    /// or one of the values above.
    Table<Integer, raceViews, raceViewRows> lineTaken{};

    std::array<MenuState, commandCount> menu{}; ///< by command; one without a menu item is always there

    ChoiceList fileList{};
    ChoiceList trackList{};
    ChoiceList driverList{};
    int driverRow = 0;   ///< row of the race view that the driver list was opened for
    Text driverChoice{}; ///< the line picked in it
    ChoiceList raceList{};
    Text profileFilter{}; ///< tracks of the betting profile that is asked for
    Text profileTracks{}; ///< of the one that is shown: a track, a size, or ALL
    ChoiceList marginList{};
    ChoiceList oddsList{};
    ChoiceList maxOddsList{};
    Integer marginChoice = 0; ///< whole points from which S1 stood out; 50 is any margin
    Text oddsChoice{};        ///< morning line of S1 in the stars profile

    Grid summary{};
    Grid profile{};
    Grid tracks{};
    Grid picks{};
    Grid stars{};
    bool summaryVisible = false;
    bool profileVisible = false;
    bool tracksVisible = false;
    bool picksVisible = false;
    bool starsVisible = false;
    std::array<Text, 9> starsFields{}; ///< Text1 to Text8
    Button record{};                   ///< the summary's Record button
    bool racePanelsVisible = true;     ///< the race panels, or the analysis view in their place

    MenuState& item(CommandId id) { return menu[static_cast<std::size_t>(id)]; }
    const MenuState& item(CommandId id) const { return menu[static_cast<std::size_t>(id)]; }

    /// What the Start button stands for from now on, and its caption.
    void offer(StartOffer startOffer);

    /// Empties the rows of all data and race views; their heads stay.
    void clearCardViews();

    /// Everything empty, as before start-up.
    void clear();

    /// Lets go of rows of its views that are the same as the other's, and shares those.
    void shareWith(const Screen& other);
};

extern Screen screen;

} // namespace quillon
