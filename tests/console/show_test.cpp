#include "console/show.h"

#include "core/journal.h"
#include "screen/screen.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <sstream>

namespace quillon {
namespace {

void doNothing(const Arguments&) {}

// clang-format off
constexpr std::array menuCommands{
    Command{CommandId::Save,       "Save",       doNothing, Effect::keepsCard, {Menu::file}},
    Command{CommandId::RaceButton, "RaceButton", doNothing, Effect::keepsCard, {}, Takes::number, "n"},
    Command{CommandId::HeatWinner, "HeatWinner", doNothing, Effect::keepsCard, {Menu::tools}},
    Command{CommandId::Next,       "Next",       doNothing, Effect::keepsCard, {Menu::walk}},
    Command{CommandId::NewRC,      "NewRC",      doNothing, Effect::keepsCard, {Menu::file}},
    Command{CommandId::MainScreen, "MainScreen", doNothing, Effect::keepsCard, {Menu::navigation}},
};
// clang-format on

class ShowTest : public CardTest {
protected:
    static std::string shownPart(TextView part) {
        std::ostringstream out;
        Transcript transcript{out};
        show(part, menuCommands, transcript);
        return out.str();
    }
};

struct UsageCase {
    const char* part;
    const char* usage;
};

void PrintTo(const UsageCase& row, std::ostream* out) { *out << '"' << row.part << '"'; }

class ShowUsage : public ShowTest, public testing::WithParamInterface<UsageCase> {};

TEST_P(ShowUsage, TellsWhatIsMissing) { EXPECT_EQ(GetParam().usage, shownPart(GetParam().part)); }

const UsageCase usageCases[] = {
    {"", "usage: show PART\n"},
    {"everything", "usage: show PART\n"},
    {"Header", "usage: show PART\n"},
    {"header ", "usage: show PART\n"},
    {" header", "usage: show PART\n"},
    {"summary 1", "usage: show PART\n"},
    {"raceviews 1", "usage: show PART\n"},
    {"raceview", "usage: show raceview R\n"},
    {"raceview ", "usage: show raceview R\n"},
    {"raceview one", "usage: show raceview R\n"},
    {"raceview 1 2", "usage: show raceview R\n"},
    {"dataview", "usage: show dataview N\n"},
    {"dataview 1.0", "usage: show dataview N\n"},
    {"notes", "usage: show notes NAME\n"},
    {"notes  ", "usage: show notes NAME\n"},
    {"archive", "usage: show PART\n"},
    {"colours", "usage: show colours PART\n"},
    {"colours ", "usage: show colours PART\n"},
    {"colours board", "usage: show colours PART\n"},
    {"colours raceview", "usage: show colours raceview R\n"},
    {"colours dataview x", "usage: show colours dataview N\n"},
};

INSTANTIATE_TEST_SUITE_P(Parts, ShowUsage, testing::ValuesIn(usageCases));

class ShowOfNothing : public ShowTest, public testing::WithParamInterface<const char*> {};

TEST_P(ShowOfNothing, PrintsNothing) {
    screen.start.visible = false;
    for (Button& button : screen.raceButtons) button.visible = false;
    EXPECT_EQ("", shownPart(GetParam()));
    EXPECT_EQ(0U, journal.count());
}

INSTANTIATE_TEST_SUITE_P(Parts, ShowOfNothing,
                         testing::Values("raceview 0", "raceview 23", "dataview 0", "dataview 28", "summary",
                                         "profile", "tracks", "picks", "stars", "tracklist", "driverlist",
                                         "filelist", "racelist", "starsfields", "colours raceview 1",
                                         "colours dataview 24", "colours summary", "board", "header",
                                         "buttons", "faults", "store",
                                         // views that there are not
                                         "raceview 24", "raceview -1", "dataview 29", "dataview -1",
                                         "raceview 2147483647", "colours raceview 99"));

TEST_F(ShowTest, ATableIsItsRowsWithCells) {
    Grid& view = screen.raceView[3];
    view(0, 0).text = "ENTRY";
    view(0, 32).text = "PR";
    view(2, 0).text = "Plain Biscuit";
    view(2, 2).text = "  1";
    view(2, 30).text = " ";
    view(2, 31).text = ".\n2";
    view(4, 5).text = ""; // a row that was written, of nothing
    view(20, 39).text = "\xBA";
    EXPECT_EQ("0\t0=ENTRY\t32=PR\n"
              "2\t0=Plain Biscuit\t2=  1\t30= \t31=.\\n2\n"
              "20\t39=\xC2\xBA\n",
              shownPart("raceview 3"));
    EXPECT_EQ("", shownPart("raceview 2"));
    EXPECT_EQ("", shownPart("dataview 3"));
}

TEST_F(ShowTest, DataViewsAreTables) {
    screen.dataView[0](199, 39).text = "last";
    screen.dataView[25](1, 38).text = " 30.1";
    EXPECT_EQ("199\t39=last\n", shownPart("dataview 0"));
    EXPECT_EQ("1\t38= 30.1\n", shownPart("dataview 25"));
    EXPECT_EQ("1\t38= 30.1\n", shownPart("dataview +25"));
}

TEST_F(ShowTest, TheLineTableIsTheTableItIsBoundTo) {
    screen.dataView[24].layOut(1, 3);
    screen.dataView[24].showRows(1, {2, [](int row, std::span<Cell> cells) {
                                         cells[1].text = std::to_string(row * 10 + 1);
                                         cells[2].text = std::to_string(row * 10 + 2);
                                     }});
    screen.dataView[24](0, 1).text = "TRACK";
    EXPECT_EQ("0\t1=TRACK\n1\t1=11\t2=12\n2\t1=21\t2=22\n", shownPart("dataview 24"));
}

TEST_F(ShowTest, AnalysisTables) {
    const std::array<std::pair<const char*, Grid*>, 5> tables{{{"summary", &screen.summary},
                                                               {"profile", &screen.profile},
                                                               {"tracks", &screen.tracks},
                                                               {"picks", &screen.picks},
                                                               {"stars", &screen.stars}}};
    for (const auto& [name, grid] : tables) {
        *grid = Grid{3, 2};
        (*grid)(2, 1).text = name;
        (*grid)(1, 0).background = recentYellow;
    }
    for (const auto& [name, grid] : tables) {
        EXPECT_EQ("2\t1=" + Text{name} + "\n", shownPart(name));
        EXPECT_EQ("1\t0\t255,255,100\n", shownPart("colours " + Text{name}));
    }
}

TEST_F(ShowTest, ColoursAreThoseOfACellsOwn) {
    Grid& view = screen.raceView[1];
    view(1, 0).text = "text alone";
    view.shade(1, 3, 4, olderCyan);
    view(2, 2).background = Colour{1, 20, 255};
    view(2, 2).bold = true;
    view(2, 3).background = white;
    view(2, 4).foreground = red;
    view(3, 32).bold = true;
    const std::string colours = "1\t3\t0,255,255\n1\t4\t0,255,255\n"
                                "2\t2\t1,20,255\tbold\n"
                                "2\t3\t255,255,255\n"
                                "3\t32\t\tbold\n";
    EXPECT_EQ(colours, shownPart("colours raceview 1"));
    screen.dataView[7](9, 1).background = red;
    EXPECT_EQ("9\t1\t255,0,0\n", shownPart("colours dataview 7"));
}

TEST_F(ShowTest, ListsAreTheirLinesWhileTheyAreShown) {
    const std::array<std::pair<const char*, ChoiceList*>, 3> lists{{{"tracklist", &screen.trackList},
                                                                    {"driverlist", &screen.driverList},
                                                                    {"filelist", &screen.fileList}}};
    for (const auto& [name, list] : lists) {
        list->lines = {Text{name}, "", "  M1 "};
        EXPECT_EQ("", shownPart(name));
        list->visible = true;
        EXPECT_EQ(Text{name} + "\n  M1 \n", shownPart(name));
    }
}

TEST_F(ShowTest, TheRaceListIsAlwaysThere) {
    screen.raceList.lines = {"RACE 1", "RACE 2"};
    EXPECT_EQ("RACE 1\nRACE 2\n", shownPart("racelist"));
}

TEST_F(ShowTest, StarsFieldsByName) {
    screen.starsFields[0] = "no field";
    screen.starsFields[1] = "12";
    screen.starsFields[8] = " 3.5%";
    EXPECT_EQ("Text1=12\nText8= 3.5%\n", shownPart("starsfields"));
}

TEST_F(ShowTest, TheBoardIsBoxesToteAndRefunds) {
    screen.boxes[0] = {.text = " 4", .colour = closeMagenta};
    screen.boxes[1] = {.text = "", .colour = recentYellow}; // a tint shows on an empty box as well
    screen.boxes[4].text = "1A";
    screen.boxes[7].text = "7";
    screen.tote[0] = "RACE:  3";
    screen.tote[1] = "12.40";
    screen.tote[11] = "$2";
    screen.refunds = "6-8";
    EXPECT_EQ("box 0= 4\t255,100,255\nbox 1=\t255,255,100\nbox 4=1A\nbox 7=7\n"
              "tote 0=RACE:  3\ntote 1=12.40\ntote 11=$2\nrefunds=6-8\n",
              shownPart("board"));
}

TEST_F(ShowTest, TheHeaderByName) {
    screen.caption = "Quillon Professional Version";
    screen.header = {.race = "1A",
                     .track = {"MVR"},
                     .date = {"20260314"},
                     .purse = "$ 12,000",
                     .classText = "NW2",
                     .cr = "78",
                     .wagering = "EXACTA",
                     .postTime = "7:00",
                     .gait = "P",
                     .distance = "1",
                     .trackInfo = "Merivale"};
    EXPECT_EQ("race=1A\ntrack=MVR\ndate=20260314\npurse=$ 12,000\nclass=NW2\ncr=78\nwagering=EXACTA\n"
              "posttime=7:00\ngait=P\ndistance=1\ntrackinfo=Merivale\ncaption=Quillon Professional Version\n",
              shownPart("header"));
}

TEST_F(ShowTest, TheHeadersLabelsWhileTheyAreShown) {
    screen.header.race = "2";
    screen.header.track = {.caption = "MVR", .visible = false};
    screen.header.date = {.caption = "0314", .visible = false};
    EXPECT_EQ("race=2\n", shownPart("header"));
    screen.header.date.visible = true;
    EXPECT_EQ("race=2\ndate=0314\n", shownPart("header"));
}

TEST_F(ShowTest, ButtonsThatShow) {
    screen.start = {.caption = "Select Race", .enabled = false};
    for (Button& button : screen.raceButtons) button.visible = false;
    screen.raceButtons[0] = {.caption = "spare"};
    screen.raceButtons[1] = {.caption = "1A", .current = true};
    screen.raceButtons[3] = {.caption = "", .enabled = false};
    screen.raceButtons[23] = {.caption = "23"};
    screen.entryButtons[0] = {.caption = "spare"};
    screen.entryButtons[1] = {.caption = "  1", .enabled = false};
    screen.entryButtons[2] = {.caption = "  2", .visible = false};
    screen.entryButtons[12] = {.caption = " 12"};
    screen.scratchButtons[0] = {.caption = "X"};
    screen.scratchButtons[12] = {.caption = "Scr"};
    screen.heatButtons[1] = {.caption = "heat"};
    EXPECT_EQ("start=Select Race\tdisabled\nrace 1=1A\tred\nrace 3=\nrace 23=23\n"
              "entry 1=  1\nentry 12= 12\nscratch 0=X\nscratch 12=Scr\n",
              shownPart("buttons"));
}

TEST_F(ShowTest, TheStartButtonAlone) {
    for (Button& button : screen.raceButtons) button.visible = false;
    screen.offer(StartOffer::load);
    EXPECT_EQ("start=Start\n", shownPart("buttons"));
}

TEST_F(ShowTest, TheMenuIsALineAnItem) {
    screen.item(CommandId::Save).enabled = false;
    screen.item(CommandId::HeatWinner).checked = true;
    screen.item(CommandId::MainScreen) = {.enabled = true, .visible = false};
    EXPECT_EQ("Save\tdisabled\nHeatWinner\tenabled\tchecked\nNewRC\tenabled\nMainScreen\thidden\n",
              shownPart("menu"));
    screen.item(CommandId::MainScreen).enabled = false;
    screen.item(CommandId::Save).checked = true;
    EXPECT_EQ("Save\tdisabled\tchecked\nHeatWinner\tenabled\tchecked\nNewRC\tenabled\nMainScreen\thidden\n",
              shownPart("menu"));
}

TEST_F(ShowTest, FaultsOldestFirst) {
    journal.add({"WPS", "\"x\" is no number (race 1)"});
    journal.add({"", "outside all steps"});
    EXPECT_EQ("WPS\t\"x\" is no number (race 1)\n\toutside all steps\n", shownPart("faults"));
}

} // namespace
} // namespace quillon
