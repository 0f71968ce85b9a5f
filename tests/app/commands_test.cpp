#include "app/commands.h"

#include "support/card_test.h"

#include <algorithm>
#include <set>
#include <utility>

namespace quillon {
namespace {

// "Save" of "... [with quillon::CommandId id = quillon::CommandId::Save; ...]", as the compiler spells it.
template <CommandId id>
std::string spelling() {
    const std::string function = __PRETTY_FUNCTION__;
    const auto begin = function.find("id = ") + 5;
    const std::string name = function.substr(begin, function.find_first_of(";]", begin) - begin);
    return name.substr(name.rfind(':') + 1);
}

template <std::size_t... at>
std::vector<std::string> spellings(std::index_sequence<at...>) {
    return {spelling<static_cast<CommandId>(at)>()...};
}

using CommandsTest = CardTest;

TEST_F(CommandsTest, EachRowHasTheNameOfItsId) {
    const auto names = spellings(std::make_index_sequence<commandCount>{});
    ASSERT_EQ("Start", names.front());
    ASSERT_EQ(commandCount, commandTable().size());
    for (std::size_t at = 0; at < commandCount; ++at) {
        const Command& row = commandTable()[at];
        EXPECT_EQ(names[at], row.name);
        EXPECT_EQ(&row, &command(row.id)) << row.name;
        EXPECT_EQ(&row, findCommand(row.name));
        EXPECT_TRUE(row.run) << row.name;
    }
}

TEST_F(CommandsTest, NamesAreFoundWithTheirCase) {
    EXPECT_EQ(CommandId::Save, findCommand("Save")->id);
    EXPECT_EQ(nullptr, findCommand("save"));
    EXPECT_EQ(nullptr, findCommand(""));
}

// What a row takes, in the words of a usage line.
TEST_F(CommandsTest, EachRowNamesTheArgumentsThatItTakes) {
    for (const Command& row : commandTable()) {
        const std::string names = row.argumentNames;
        const bool isOneWord = !names.empty() && names.find(' ') == std::string::npos;
        switch (row.takes) {
        case Takes::nothing: EXPECT_EQ("", names) << row.name; break;
        case Takes::number: EXPECT_TRUE(isOneWord && names != "TEXT") << row.name; break;
        case Takes::text: EXPECT_EQ(row.isWellFormed == nullptr, names == "TEXT") << row.name; break;
        case Takes::numberAndText: EXPECT_EQ("n TEXT", names) << row.name; break;
        case Takes::cell: EXPECT_EQ("race row column TEXT", names) << row.name; break;
        }
    }
}

TEST_F(CommandsTest, EachItemOfAMenuHasACaptionItsLetterAndAHint) {
    std::set<std::string> keys;
    for (const Command& row : commandTable()) {
        const CommandItem& item = row.item;
        if (item.menu == Menu::none) {
            EXPECT_EQ("", std::string{item.keys}) << row.name << ": a key needs a menu item";
            EXPECT_FALSE(item.hasMark) << row.name;
            continue;
        }
        EXPECT_NE(std::string::npos, std::string{item.caption}.find(item.letter)) << row.name;
        EXPECT_NE("", std::string{item.hint}) << row.name;
        EXPECT_EQ(Takes::nothing, row.takes) << row.name << " has nobody to give it an argument";
        if (*item.keys != '\0') {
            EXPECT_TRUE(keys.insert(item.keys).second) << row.name;
        }
    }
}

TEST_F(CommandsTest, AnItemIsThereAsTheScreenSays) {
    const Command& save = command(CommandId::Save);
    EXPECT_TRUE(isAvailable(save, {}));
    screen.item(CommandId::Save).enabled = false;
    EXPECT_FALSE(isAvailable(save, {}));
    screen.item(CommandId::Save) = {.enabled = true, .visible = false};
    EXPECT_FALSE(isAvailable(save, {}));
}

// A row of the kinds of things that a command may wait for: a button, a list, a number, a mark.
TEST_F(CommandsTest, AButtonOrListIsThereAsTheScreenSays) {
    const auto canRun = [](CommandId id, int number = 0) {
        return isAvailable(command(id), {.numbers = {number, 0, 0}});
    };
    screen.start.enabled = false;
    EXPECT_FALSE(canRun(CommandId::Start));
    screen.start.enabled = true;
    EXPECT_TRUE(canRun(CommandId::Start));

    EXPECT_FALSE(canRun(CommandId::SelectTrack));
    screen.trackList.visible = true;
    EXPECT_TRUE(canRun(CommandId::SelectTrack));

    EXPECT_TRUE(canRun(CommandId::Box, 7));
    EXPECT_FALSE(canRun(CommandId::Box, 8));  // boxes 0 to 7
    EXPECT_FALSE(canRun(CommandId::Tote, 0)); // boxes 1 to 11
    EXPECT_TRUE(canRun(CommandId::Tote, 11));

    EXPECT_FALSE(canRun(CommandId::HeatChoice, 1));
    screen.item(CommandId::HeatWinner).checked = true;
    EXPECT_TRUE(canRun(CommandId::HeatChoice, 1));
    EXPECT_FALSE(canRun(CommandId::HeatChoice, 13)); // rows 1 to 12
}

// The head of the navigation menu is the window's, and no item whose state the screen keeps.
TEST_F(CommandsTest, TheWalkIsNoMenuItem) {
    EXPECT_TRUE(isMenuItem(command(CommandId::MainScreen)));
    for (const CommandId id : {CommandId::Start, CommandId::Previous, CommandId::Next, CommandId::Command7})
        EXPECT_FALSE(isMenuItem(command(id)));
    EXPECT_FALSE(isMenuItem(command(CommandId::RaceButton)));
}

TEST_F(CommandsTest, FourCommandsShowTheBoardAnewWithoutStoringIt) {
    std::vector<Text> dropping;
    for (const Command& row : commandTable())
        if (mayDropTyping(row)) dropping.emplace_back(row.name);
    EXPECT_EQ((std::vector<Text>{"RaceButton", "RaceList", "AutoRecord", "EBET"}), dropping);
}

TEST_F(CommandsTest, WalkingAndLookingIsNoChangeButTakingTheBoardIs) {
    for (const CommandId id :
         {CommandId::RaceButton, CommandId::EntryButton, CommandId::Save, CommandId::Record,
          CommandId::SelectionResults, CommandId::Start, CommandId::Undo})
        EXPECT_FALSE(mayChangeCard(command(id))) << command(id).name;
    for (const CommandId id : {CommandId::Next, CommandId::Previous, CommandId::Command4, CommandId::EBET})
        EXPECT_TRUE(mayChangeCard(command(id))) << command(id).name;
}

} // namespace
} // namespace quillon
