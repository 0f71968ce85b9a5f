#include "console/console.h"

#include "core/failure.h"
#include "core/journal.h"
#include "screen/ports.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <random>
#include <sstream>

namespace quillon {
namespace {

// What the commands of the tests were given.
std::vector<Arguments> given;

void take(const Arguments& arguments) { given.push_back(arguments); }

void tell(const Text& text) { ports.message(text, ""); }

// Only the third button is there.
bool isThird(const Arguments& arguments) { return arguments.numbers[0] == 3; }

bool asksBeyondATable(const Arguments&) { fail("no such button"); }

// A system of our own with a command for each thing that can happen.
// clang-format off
constexpr std::array testCommands{
    Command{.name = "Quiet", .run = [](const Arguments&) {}},
    Command{.name = "Message", .run = [](const Arguments&) { ports.message("No races", ""); }},
    Command{.name = "Titled", .run = [](const Arguments&) { ports.message("Saved", "Quillon"); }},
    Command{.name = "Lines", .run = [](const Arguments&) { ports.message("one\r\ntwo\nthree", "a\nb"); }},
    Command{.name = "Ask", .run = [](const Arguments&) { tell(ports.question("Exit?", "") ? "yes" : "no"); }},
    Command{.name = "AskTitled", .run = [](const Arguments&) { ports.question("Exit?", "Quillon"); }},
    Command{.name = "Input", .run = [](const Arguments&) { tell("got " + ports.input("Amount:", "").value_or("nothing")); }},
    Command{.name = "InputTitled", .run = [](const Arguments&) { ports.input("Amount:", "TRC"); }},
    Command{.name = "Beep", .run = [](const Arguments&) { ports.beep(); }},
    Command{.name = "View", .run = [](const Arguments&) {
                ports.view({Folder::selections, "M1_20260314.pms"});
                ports.view({Folder::working, "Stars.txt"});
            }},
    Command{.name = "Browse", .run = [](const Arguments&) { ports.browse("http://www.example.com/a?b=1"); }},
    Command{.name = "Run", .run = [](const Arguments&) { ports.run("FileManager.exe"); }},
    Command{.name = "Hide", .run = [](const Arguments&) { ports.hide({Folder::sourceTables, "RACESHR.DBF"}); }},
    Command{.name = "Print", .run = [](const Arguments&) {
                ports.printLine("RACE 1", PrintStyle::emphasised);
                ports.printLine("  2  Plain Biscuit", PrintStyle::plain);
                ports.printLine("", PrintStyle::plain);
                ports.printPage();
                ports.printEnd();
            }},
    Command{.name = "Error", .run = [](const Arguments&) { ports.error("Path not found"); }},
    Command{.name = "End", .run = [](const Arguments&) { ports.end(); tell("on the way out"); ports.end(); }},
    Command{.name = "Work", .run = [](const Arguments&) { tell(ports.progress(0.5) ? "goes on" : "stops"); }},
    Command{.name = "Fail", .run = [](const Arguments&) { tell("before"); fail("it broke"); }},
    Command{.name = "Row", .run = take, .takes = Takes::number, .argumentNames = "row"},
    Command{.name = "Line", .run = take, .takes = Takes::text, .argumentNames = "TEXT"},
    Command{.name = "Place", .run = take, .takes = Takes::numberAndText, .argumentNames = "n TEXT"},
    Command{.name = "Square", .run = take, .takes = Takes::cell, .argumentNames = "race row column TEXT"},
    Command{.name = "Third", .run = take, .takes = Takes::number, .argumentNames = "n", .available = isThird},
    Command{.name = "Broken", .run = take, .available = asksBeyondATable},
    Command{.id = CommandId::Save, .name = "Item", .run = take, .item = {Menu::file}},
};
// clang-format on

class ConsoleTest : public CardTest {
protected:
    ConsoleTest() { given.clear(); }

    // The transcript of one run.
    static std::string run(const std::string& input) {
        std::istringstream in{input};
        std::ostringstream out;
        Console console{out, testCommands};
        console.run(in);
        return out.str();
    }
};

struct TranscriptCase {
    const char* shows;
    const char* input;
    const char* transcript;
};

void PrintTo(const TranscriptCase& row, std::ostream* out) { *out << row.shows; }

class TranscriptOf : public ConsoleTest, public testing::WithParamInterface<TranscriptCase> {};

TEST_P(TranscriptOf, ACommandIsWhatAUserSees) { EXPECT_EQ(GetParam().transcript, run(GetParam().input)); }

const TranscriptCase transcriptCases[] = {
    {"nothing", "", ""},
    {"a command that shows nothing", "Quiet\n", "> Quiet\n"},
    {"message box", "Message\n", "> Message\nmessage: No races\n"},
    {"message box with a title", "Titled\n", "> Titled\nmessage [Quillon]: Saved\n"},
    {"line breaks", "Lines\n", "> Lines\nmessage [a\\nb]: one\\ntwo\\nthree\n"},
    {"question without an answer", "Ask\n", "> Ask\nquestion: Exit? -> No\nmessage: no\n"},
    {"question answered", "Answer Yes\nAsk\n", "> Answer Yes\n> Ask\nquestion: Exit? -> Yes\nmessage: yes\n"},
    {"question with a title", "AskTitled\n", "> AskTitled\nquestion [Quillon]: Exit? -> No\n"},
    {"input without an answer", "Input\n", "> Input\ninput: Amount: -> (cancel)\nmessage: got nothing\n"},
    {"input answered", "Answer 12.40\nInput\n",
     "> Answer 12.40\n> Input\ninput: Amount: -> 12.40\nmessage: got 12.40\n"},
    {"input with a title", "Answer x\nInputTitled\n",
     "> Answer x\n> InputTitled\ninput [TRC]: Amount: -> x\n"},
    {"beep", "Beep\n", "> Beep\nbeep\n"},
    {"viewer", "View\n", "> View\nview: C:\\A Quillon PRO\\Selections\\M1_20260314.pms\nview: Stars.txt\n"},
    {"browser", "Browse\n", "> Browse\nbrowse: http://www.example.com/a?b=1\n"},
    {"outside program", "Run\n", "> Run\nrun: FileManager.exe\n"},
    {"hidden attribute", "Hide\n", "> Hide\nhide: C:\\A Quillon PRO\\TrackMaster ExE Files\\RACESHR.DBF\n"},
    {"printer", "Print\n",
     "> Print\nprint emphasised: RACE 1\nprint:   2  Plain Biscuit\nprint: \nprint new page\nprint end\n"},
    {"plain file error", "Error\n", "> Error\nerror: Path not found\n"},
    {"long work is not stopped", "Work\n", "> Work\nmessage: goes on\n"},
    {"a command that fails ends there", "Fail\nBeep\n", "> Fail\nmessage: before\n> Beep\nbeep\n"},

    {"the end: the command runs out, no line after it is read", "End\nBeep\n",
     "> End\nend\nmessage: on the way out\n"},
    {"empty lines and remarks are skipped", "\n# Beep\n#\n\r\nBeep\n#Beep", "> Beep\nbeep\n"},
    {"a blank in front of the mark is no remark", " # Beep\n", ">  # Beep\nunknown: \n"},
    {"the line as read", "Line  a\tb \r\n", "> Line  a\tb \n"},
    {"a byte outside UTF-8", "Line \xFF\n", "> Line ?\n"},
    {"a letter outside the code page", "Line \xD0\x96\n", "> Line ?\n"},
    {"a letter of the code page", "Line \xC3\xA9\n", "> Line \xC3\xA9\n"},

    {"unknown name", "Nope 1 2\n", "> Nope 1 2\nunknown: Nope\n"},
    {"names are case-sensitive", "beep\nANSWER\nShow\n",
     "> beep\nunknown: beep\n> ANSWER\nunknown: ANSWER\n> Show\nunknown: Show\n"},
    {"a name with a tab after it", "Beep\t\n", "> Beep\t\nunknown: Beep\t\n"},

    {"number missing", "Row\n", "> Row\nusage: Row row\n"},
    {"no number", "Row x\n", "> Row x\nusage: Row row\n"},
    {"one argument too many", "Row 1 2\n", "> Row 1 2\nusage: Row row\n"},
    {"two arguments", "Place x y\n", "> Place x y\nusage: Place n TEXT\n"},
    {"four arguments", "Square 1 2\n", "> Square 1 2\nusage: Square race row column TEXT\n"},
    {"a command without arguments", "Quiet now\n", "> Quiet now\nusage: Quiet\n"},

    {"a button that is not there", "Third 2\n", "> Third 2\nunavailable: Third\n"},
    {"a button that is there", "Third 3\n", "> Third 3\n"},
    {"usage comes before availability", "Third x\n", "> Third x\nusage: Third n\n"},
    {"a button after the last one", "Broken\n", "> Broken\nunavailable: Broken\n"},
    {"an item that is there", "Item\n", "> Item\n"},

    {"answers wait for their turn",
     "Answer 1\nCancel\nAnswer 3\nInputTitled\nInputTitled\nInputTitled\nInputTitled\n",
     "> Answer 1\n> Cancel\n> Answer 3\n> InputTitled\ninput [TRC]: Amount: -> 1\n"
     "> InputTitled\ninput [TRC]: Amount: -> (cancel)\n> InputTitled\ninput [TRC]: Amount: -> 3\n"
     "> InputTitled\ninput [TRC]: Amount: -> (cancel)\n"},
    {"a message takes no answer", "Answer Yes\nMessage\nAskTitled\n",
     "> Answer Yes\n> Message\nmessage: No races\n> AskTitled\nquestion [Quillon]: Exit? -> Yes\n"},
    {"only Yes is yes", "Answer yes\nAskTitled\nAnswer Yes \nAskTitled\nAnswer Y\nAskTitled\n",
     "> Answer yes\n> AskTitled\nquestion [Quillon]: Exit? -> No\n"
     "> Answer Yes \n> AskTitled\nquestion [Quillon]: Exit? -> No\n"
     "> Answer Y\n> AskTitled\nquestion [Quillon]: Exit? -> No\n"},
    {"a question can be cancelled", "Cancel\nAnswer Yes\nAskTitled\nAskTitled\n",
     "> Cancel\n> Answer Yes\n> AskTitled\nquestion [Quillon]: Exit? -> No\n"
     "> AskTitled\nquestion [Quillon]: Exit? -> Yes\n"},
    {"an empty answer is an answer", "Answer\nInput\nAnswer \nInput\n",
     "> Answer\n> Input\ninput: Amount: -> \nmessage: got \n> Answer \n> Input\ninput: Amount: -> \nmessage: "
     "got \n"},
    {"blanks of an answer are kept", "Answer  a  b \nInputTitled\n",
     "> Answer  a  b \n> InputTitled\ninput [TRC]: Amount: ->  a  b \n"},
    {"a cancel takes nothing", "Cancel it\nAnswer 1\nInputTitled\n",
     "> Cancel it\nusage: Cancel\n> Answer 1\n> InputTitled\ninput [TRC]: Amount: -> 1\n"},
};

INSTANTIATE_TEST_SUITE_P(Lines, TranscriptOf, testing::ValuesIn(transcriptCases));

TEST_F(ConsoleTest, CommandsGetTheirArguments) {
    run("Row -2\nLine  caf\xC3\xA9 \nPlace 4 \nSquare 1 2 30 Barlow,A\n");
    ASSERT_EQ(4U, given.size());
    EXPECT_EQ(-2, given[0].numbers[0]);
    EXPECT_EQ(" caf\xE9 ", given[1].text);
    EXPECT_EQ(4, given[2].numbers[0]);
    EXPECT_EQ("", given[2].text);
    EXPECT_EQ((std::array{1, 2, 30}), given[3].numbers);
    EXPECT_EQ("Barlow,A", given[3].text);
}

TEST_F(ConsoleTest, ADisabledOrHiddenItemIsNotRun) {
    screen.item(CommandId::Save).enabled = false;
    EXPECT_EQ("> Item\nunavailable: Item\n", run("Item\n"));
    screen.item(CommandId::Save) = {.enabled = true, .visible = false};
    EXPECT_EQ("> Item\nunavailable: Item\n", run("Item\n"));
    EXPECT_TRUE(given.empty());
}

TEST_F(ConsoleTest, WhatFailsStandsInTheJournal) {
    EXPECT_EQ("> Fail\nmessage: before\n> show faults\nFail\tit broke\n", run("Fail\nshow faults\n"));
}

TEST_F(ConsoleTest, AnswersOutliveTheInputThatGaveThem) {
    std::ostringstream out;
    Console console{out, testCommands};
    std::istringstream first{"Answer Yes"};
    std::istringstream second{"AskTitled"};
    console.run(first);
    console.run(second);
    EXPECT_EQ("> Answer Yes\n> AskTitled\nquestion [Quillon]: Exit? -> Yes\n", out.str());
}

TEST_F(ConsoleTest, AfterTheEndNoInputIsRead) {
    std::ostringstream out;
    Console console{out, testCommands};
    std::istringstream first{"End"};
    std::istringstream second{"Beep"};
    console.run(first);
    console.run(second);
    EXPECT_EQ("> End\nend\nmessage: on the way out\n", out.str());
}

TEST_F(ConsoleTest, LetsGoOfThePorts) {
    run("Beep\n");
    ports.beep(); // would print to a stream that is gone
    EXPECT_FALSE(ports.question("Exit?", ""));
}

TEST_F(ConsoleTest, NulIsACharacter) {
    const std::string line("Be\0ep", 5);
    EXPECT_EQ("> " + line + "\nunknown: " + line + "\n", run(line + "\n"));
}

TEST_F(ConsoleTest, LongLinesAreLines) {
    const std::string word(1'000'000, 'x');
    EXPECT_EQ("> " + word + "\nunknown: " + word + "\n", run(word));
    EXPECT_EQ("> Row " + word + "\nusage: Row row\n", run("Row " + word));
    EXPECT_EQ("> Line " + word + "\n", run("Line " + word));
    EXPECT_EQ(word, given.at(0).text);
}

// Whatever comes in, each line that is neither empty nor a remark is answered by its echo, and the input is
// read to its end.
TEST_F(ConsoleTest, GarbageIsReadToItsEnd) {
    const std::array<std::string, 12> pieces{"Row ",     "Place ", "Answer ",     "show ",
                                             "colours ", "store",  "Third",       " ",
                                             "\r",       "\n",     "2147483648 ", "\xF0\x9F"};
    std::mt19937 random{20260314};
    for (int round = 0; round < 50; ++round) {
        std::string input;
        for (int piece = 0; piece < 200; ++piece) {
            const auto pick = random() % (pieces.size() + 4);
            input += pick < pieces.size() ? pieces[pick] : std::string(1, static_cast<char>(random() & 0xFF));
        }
        const std::string transcript = run(input + "\nBeep\n");
        EXPECT_TRUE(transcript.ends_with("> Beep\nbeep\n")) << "round " << round;
    }
}

TEST_F(ConsoleTest, TheCommandsOfTheSystemAreTheDefault) {
    std::istringstream in{"show menu\n"};
    std::ostringstream out;
    Console console{out};
    console.run(in);
    EXPECT_NE(std::string::npos, out.str().find("\nAbout\tenabled\n")) << out.str();
}

} // namespace
} // namespace quillon
