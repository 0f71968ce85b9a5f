// What the command table says that a command does to the card, held against what it does.
#include "day/changes.h"
#include "random_night.h"
#include "results_text.h"

#include <algorithm>
#include <vector>

namespace quillon {
namespace {

/// A command as a user sends it.
struct Act {
    CommandId id{};
    Arguments arguments{};
    std::vector<std::string> answers{}; ///< to what it asks
};

Act at(CommandId id, int number, std::vector<std::string> answers = {}) {
    return {id, {.numbers = {number, 0, 0}, .text = {}}, std::move(answers)};
}
Act with(CommandId id, const Text& text) { return {id, {.numbers = {}, .text = text}, {}}; }
Act typed(CommandId id, int number, const char* text) {
    return {id, {.numbers = {number, 0, 0}, .text = text}, {}};
}

constexpr int races = 2;
const Text otherDriver = "Lang, L                .151";
constexpr int firstFinisher = 4;     ///< the box
constexpr int firstFinisherCell = 5; ///< of the race's outcome

// These take another card, put one away, or go back and forth among the open one's changes.
constexpr std::array cardComesOrGoes{
    CommandId::Start,   CommandId::NewRC,   CommandId::RecallRaceCard, CommandId::ChooseFile,
    CommandId::CloseRC, CommandId::Exit_QL, CommandId::CloseWindow,    CommandId::Undo,
    CommandId::Redo,    CommandId::UndoTo,  CommandId::Recover,        CommandId::Forget,
};
bool cardStays(CommandId id) {
    return std::find(cardComesOrGoes.begin(), cardComesOrGoes.end(), id) == cardComesOrGoes.end();
}

class CommandEffectsTest : public RandomNightTest {
protected:
    CommandEffectsTest() { begin(); }

    /// A small card, loaded, with its results in words and another driver to be had.
    void begin() {
        start(card_, seed);
        put("DriverList.txt", otherDriver + "\r\n");
        put("Webpage.ini", "https://vendor.example/cards\r\n");
    }

    /// False where it is not available.
    bool send(const Act& act) {
        answers.assign(act.answers.begin(), act.answers.end());
        return press(command(act.id).name, act.arguments);
    }

    void putResultsInColumns() const {
        put("A Quillon PRO/Results/MVR_20260314.pmr",
            samples::columnLayout(card_, samples::runCard(card_, {.seed = seed})));
    }

private:
    static constexpr std::uint64_t seed = 1;
    const samples::Card card_ = samples::generateCard(
        {.seed = seed, .races = races, .entries = {7, 8}, .lines = {3, 5}, .track = "MVR"});
};

/// Acts that make the last one a change.
using Acts = std::vector<Act>;

std::vector<Acts> changingActs() {
    using enum CommandId;
    return {
        {typed(Box, firstFinisher, "7"), {Previous}},
        {typed(Box, firstFinisher, "7"), {Next}},
        {typed(Box, firstFinisher, "7")},
        {typed(Tote, 1, "5.40")},
        {with(Refunds, "3")},
        {{Cell, {.numbers = {1, 1, 0}, .text = "Other Name"}, {}}},
        {at(Command4, 2, {"Yes"})},
        {at(EntryButton, 1), at(Command3, 3)},
        {at(EntryButton, 1), {Command7, {}, {"3"}}},
        {at(DriverColumn, 1), with(DriverChoice, otherDriver)},
        {{HeatWinner}, at(HeatChoice, 1, {"14", "1", "2"})},
        {{AutoRecord}},
        {{EBET}},
        {{TakeAllIn}},
    };
}

std::size_t changesMade() { return changes.standing().size(); }

TEST_F(CommandEffectsTest, WhatMayChangeTheCardIsAChange) {
    std::vector<CommandId> seen;
    for (const Acts& acts : changingActs()) {
        begin();
        const Act& last = acts.back();
        if (last.id == CommandId::AutoRecord) putResultsInColumns();
        for (const Act& act : acts)
            if (&act != &last) {
                EXPECT_TRUE(send(act));
            }
        const std::size_t before = changesMade();
        EXPECT_TRUE(send(last)) << command(last.id).name;
        EXPECT_EQ(before + 1, changesMade()) << command(last.id).name;
        seen.push_back(last.id);
    }
    for (const Command& row : commandTable()) {
        const bool isSeen = std::find(seen.begin(), seen.end(), row.id) != seen.end();
        EXPECT_EQ(mayChangeCard(row), isSeen) << row.name;
    }
}

/// All that keeps the card, in an order in which each is there.
Acts looks() {
    using enum CommandId;
    return {
        at(RaceButton, 2),
        with(RaceList, "RACE 1"),
        at(EntryButton, 1),
        {Entries},
        at(DriverColumn, 1),
        {HeatWinner},
        {HeatWinner},
        {ViewHeat, {}, {"14"}},
        {ViewSummary},
        {Pick3Selections},
        {ViewCondensedProgram},
        {PrintNotes},
        {PrintCondensedProgram},
        with(Export, "raceview 1 entries.csv"),
        with(Note, "Able Baker = wants the rail"),
        {DriverList},
        {NotePad},
        {Diagnostic},
        {TestResults},
        {ArchivesEditor},
        {TrackEditor},
        {EXE},
        {Reset},
        {USTA},
        {RTN},
        {Weather},
        {TRC},
        {QLR},
        {About},
        {Version},
        {Save},
        {SelectionResults},
        {PrintSummary},
        {Record},
        {ALL},
        {Select},
        with(SelectTrack, "MVR"),
        {HALF},
        {FIVE},
        {Seven},
        {MILE},
        {QUARTER},
        {Print2},
        {Track_Profile},
        {Pick3Results},
        {Star},
        with(MarginChoice, "ALL Margins"),
        with(OddsChoice, "ALL Odds"),
        with(MaxOddsChoice, "ALL Odds"),
        {MainScreen},
    };
}

TEST_F(CommandEffectsTest, WhatKeepsTheCardIsNoChange) {
    std::vector<CommandId> seen;
    for (const Act& act : looks()) {
        EXPECT_TRUE(send(act)) << command(act.id).name;
        EXPECT_EQ(0U, changesMade()) << command(act.id).name;
        seen.push_back(act.id);
    }
    for (const Command& row : commandTable()) {
        const bool isSeen = std::find(seen.begin(), seen.end(), row.id) != seen.end();
        EXPECT_EQ(!mayChangeCard(row) && cardStays(row.id), isSeen) << row.name;
    }
}

// A finisher is typed that no race has: it stays in the box of race 1, or goes into its cell, or is gone.
bool typingIsGone() {
    const bool isInBox = screen.header.race == "1" && screen.boxes[firstFinisher].text == "19";
    const bool isInCell = card.raceOutcome(1, firstFinisherCell) == "19";
    return !isInBox && !isInCell;
}

TEST_F(CommandEffectsTest, WhatDropsTypingDoesAndNothingElse) {
    const Act finisher = typed(CommandId::Box, firstFinisher, "19");
    for (const Acts& acts : changingActs()) {
        const Act& last = acts.back();
        if (last.id == CommandId::Box) continue; // the typing itself
        begin();
        if (last.id == CommandId::AutoRecord) putResultsInColumns();
        for (const Act& act : acts)
            if (&act != &last) send(act);
        send(finisher);
        EXPECT_TRUE(send(last)) << command(last.id).name;
        EXPECT_EQ(mayDropTyping(command(last.id)), typingIsGone()) << command(last.id).name;
    }
    for (const Act& act : looks()) {
        begin();
        send(finisher);
        if (!send(act)) continue; // there after another look alone
        EXPECT_EQ(mayDropTyping(command(act.id)), typingIsGone()) << command(act.id).name;
    }
}

} // namespace
} // namespace quillon
