// The card on paper, by its geometry: nothing is cut, nothing leaves the page, nothing stands on another.
#include "desktop/card_pages.h"

#include "desktop/card_printing.h"
#include "desktop/main_window_test.h"

#include <QAction>
#include <QApplication>
#include <QSettings>

#include <algorithm>
#include <cstdlib>

namespace quillon {
namespace {

// Printable parts in points: 12 mm are left on each side of a sheet of 595 by 842, or of 612 by 792.
constexpr qreal margin = 34;
const QSizeF a4{595 - 2 * margin, 842 - 2 * margin};
const QSizeF letter{612 - 2 * margin, 792 - 2 * margin};

const QString longName = "Magnificent Worthington B"; // 25 letters, as many as a name has
const QString unbroken = "Worthingtonmagnificently";  // and one that can't be broken

PaperEntry fullEntry(int post) {
    PaperEntry entry;
    entry.number = {
        .text = QString::number(post) + (post == 12 ? "A" : ""), .cloth = Qt::blue, .ink = Qt::white};
    entry.horse = post % 2 == 0 ? longName : unbroken;
    entry.driver = "Mountbatten-Wells, C  0.399";
    entry.morningLine = "20/1";
    entry.post = QString::number(post);
    entry.rating = "99.9";
    entry.place = post <= 4 ? QString{"S%1"}.arg(post) : post == 5 ? QString{"5th"} : QString{};
    entry.isOut = post == 6;
    entry.line = {"NFLDX",     "125000",   "NW2RACELT500", "NA",   "29.6",
                  "1:00.4",    "1:31.8",   "2:02.6",       "10",   "x10\u00BA\u00BAi",
                  "ix9\u00BA", "10\u00BA", "10/10",        "32.4", "2:59.0"};
    entry.note = "Came wide last time out, wants it on the front end and the rail";
    return entry;
}

PaperCard fullCard(int races, int entries) {
    PaperCard card{.title = "MVR, Saturday 14 March 2026", .track = "MVR  Miami Valley Raceway  5/8  608'"};
    for (int race = 1; race <= races; ++race) {
        PaperRace made;
        made.label = QString::number(race) + "A";
        made.postTime = "11:48 PM";
        made.facts = "11:48 PM   TROT   1.0625 Mi   $1250000   CR 100";
        made.gait = "TROT";
        made.distance = "1.0625";
        made.purse = "$1250000";
        made.conditions =
            QString{"FILLIES AND MARES, NON-WINNERS OF $4000 IN LAST FIVE STARTS. PACE, ONE MILE. "}.repeated(
                2);
        made.wagering =
            "Exacta Trifecta Superfecta Double (Races 1-2) Pick 3 (Races 2-4) PICK 4 (Races 5-8) PENTAFECTA";
        for (int post = 1; post <= entries; ++post) made.entries.push_back(fullEntry(post));
        for (std::size_t place = 0; place < 4; ++place)
            made.selections.at(place) = {made.entries[0].number, place % 2 == 0 ? longName : unbroken,
                                         "60.4"};
        made.margin = "12.4";
        made.betMark = race % 2 == 0 ? "DEAD HEAT" : "$$$$$";
        made.isClear = true;
        made.note = "The rail is dead after the rain";
        card.races.push_back(made);
    }
    return card;
}

QRectF inkOf(const PageItem& item) {
    if (item.kind != PageItem::Kind::text) {
        const qreal half = item.thickness / 2;
        return item.place.adjusted(-half, -half, half, half);
    }
    const qreal width = paperWidth(item.text, item.points, item.bold);
    QRectF ink{item.place.left(), item.place.top(), width, item.place.height()};
    if (item.align & Qt::AlignRight) ink.moveRight(item.place.right());
    if (item.align & Qt::AlignHCenter) ink.moveCenter(item.place.center());
    const qreal letters = item.points; // from the top of the tallest letters to the end of the tails
    return {ink.left(), ink.center().y() - letters / 2, width, letters};
}

std::string describe(const PageItem& item, std::size_t page) {
    return "page " + std::to_string(page + 1) + ": \"" + item.text.toStdString() + "\" at " +
           std::to_string(item.place.left()) + ", " + std::to_string(item.place.top());
}

struct Paper {
    const char* name;
    QSizeF size;
    int racesPerPage;
    int entries;
    friend void PrintTo(const Paper& paper, std::ostream* out) {
        *out << paper.name << ", " << paper.racesPerPage << " a page, " << paper.entries << " entries";
    }
};

class CardPages : public testing::TestWithParam<Paper> {
protected:
    std::vector<Page> pages() const {
        return cardPages(fullCard(23, GetParam().entries), GetParam().size, {GetParam().racesPerPage, true});
    }
};

TEST_P(CardPages, NothingIsCutAndNothingLeavesThePage) {
    const QRectF paper{{0, 0}, GetParam().size};
    const auto made = pages();
    for (std::size_t page = 0; page < made.size(); ++page)
        for (const PageItem& item : made[page]) {
            EXPECT_FALSE(item.isCut) << describe(item, page);
            EXPECT_TRUE(paper.contains(inkOf(item))) << describe(item, page);
            if (item.kind != PageItem::Kind::text) continue;
            EXPECT_LE(paperWidth(item.text, item.points, item.bold), item.place.width() + 0.01)
                << describe(item, page);
            EXPECT_GE(item.points, 4.5) << describe(item, page); // what can still be read
        }
}

TEST_P(CardPages, NoTextStandsOnAnother) {
    const auto made = pages();
    for (std::size_t page = 0; page < std::min<std::size_t>(made.size(), 2); ++page) {
        std::vector<const PageItem*> texts;
        for (const PageItem& item : made[page])
            if (item.kind == PageItem::Kind::text) texts.push_back(&item);
        std::vector<QRectF> inks(texts.size());
        std::transform(texts.begin(), texts.end(), inks.begin(),
                       [](const PageItem* item) { return inkOf(*item); });
        for (std::size_t one = 0; one < texts.size(); ++one)
            for (std::size_t other = one + 1; other < texts.size(); ++other)
                EXPECT_FALSE(inks[one].adjusted(0, 0.3, 0, -0.3).intersects(inks[other]))
                    << describe(*texts[one], page) << " and " << describe(*texts[other], page);
    }
}

// 23 races on pages of one, or 11 pages of two and one of one; and the overview.
TEST_P(CardPages, AreAsManyAsTheRacesNeed) {
    EXPECT_EQ(GetParam().racesPerPage == 1 ? 24u : 13u, pages().size());
}

INSTANTIATE_TEST_SUITE_P(Papers, CardPages,
                         testing::Values(Paper{"A4", a4, 1, 12}, Paper{"A4", a4, 2, 12},
                                         Paper{"Letter", letter, 1, 12}, Paper{"Letter", letter, 2, 12},
                                         Paper{"Letter", letter, 2, 7}, Paper{"A4", a4, 1, 1}),
                         [](const auto& row) {
                             return std::string{row.param.name} + std::to_string(row.param.racesPerPage) +
                                    "Of" + std::to_string(row.param.entries);
                         });

bool holds(const Page& page, const QString& text) {
    return std::any_of(page.begin(), page.end(),
                       [&](const PageItem& item) { return item.text.contains(text); });
}

TEST(CardPage, WithoutTheOverviewTheRacesBegin) {
    const auto pages = cardPages(fullCard(3, 8), a4, {2, false});
    ASSERT_EQ(2u, pages.size());
    EXPECT_TRUE(holds(pages[0], "RACE 1A"));
    EXPECT_TRUE(holds(pages[0], "RACE 2A"));
    EXPECT_TRUE(holds(pages[1], "RACE 3A"));
    EXPECT_TRUE(holds(pages[1], "Page 2 of 2"));
}

TEST(CardPage, NoCardHasNoPages) { EXPECT_TRUE(cardPages({}, a4, {}).empty()); }

TEST(CardPage, NotesStandWhereThereIsRoomToWrite) {
    const auto pages = cardPages(fullCard(1, 8), a4, {1, false});
    EXPECT_TRUE(holds(pages[0], "The rail is dead after the rain"));
    EXPECT_TRUE(holds(pages[0], "Came wide last time out"));
}

TEST(CardPage, AnEntryThatIsOutIsStruckThrough) {
    PaperCard card = fullCard(1, 1);
    const auto rules = [&] {
        const auto pages = cardPages(card, a4, {1, false});
        return std::count_if(pages[0].begin(), pages[0].end(),
                             [](const PageItem& item) { return item.kind == PageItem::Kind::rule; });
    };
    const auto before = rules();
    card.races[0].entries[0].isOut = true;
    EXPECT_EQ(before + 1, rules());
}

TEST(CardPage, ATextWithoutRoomForItsSmallestLettersIsToldAsCut) {
    PaperCard card = fullCard(1, 1);
    card.races[0].entries[0].horse = QString{200, 'W'};
    const auto pages = cardPages(card, a4, {1, false});
    EXPECT_TRUE(
        std::any_of(pages[0].begin(), pages[0].end(), [](const PageItem& item) { return item.isCut; }));
}

TEST(CardPage, FiguresAreOfOneWidth) {
    for (const bool bold : {false, true})
        for (const char figure : std::string{"123456789"})
            EXPECT_DOUBLE_EQ(paperWidth("0", 10, bold), paperWidth(QChar{figure}, 10, bold)) << figure;
}

struct CardPrintTest : MainWindowTest {
    CardPrintPreview& openPreview() {
        window->activateWindow(); // a preview may have been in front
        if (!QTest::qWaitForWindowActive(&*window)) throw std::runtime_error("the window is not active");
        pressKeys("Ctrl+Shift+P");
        auto* found = window->findChild<CardPrintPreview*>();
        if (!found) throw std::runtime_error("no preview");
        return *found;
    }
    static void press(CardPrintPreview& preview, const char* choice) {
        child<QAction>(preview, choice).trigger();
        QApplication::processEvents();
    }
};

TEST_F(CardPrintTest, TheItemWaitsForACard) {
    EXPECT_FALSE(child<QAction>(*window, "PrintCard").isEnabled());
    startInWindow();
    EXPECT_TRUE(child<QAction>(*window, "PrintCard").isEnabled());
    EXPECT_FALSE(child<QAction>(*window, "PrintCard").statusTip().isEmpty());
}

// Twelve races and the overview.
TEST_F(CardPrintTest, ThePreviewFollowsWhatIsChosenAndKeepsIt) {
    QSettings{}.remove("cardPrint"); // tests that run beside this one leave it alone
    startInWindow();
    CardPrintPreview& preview = openPreview();
    EXPECT_EQ(13, preview.pageCount());
    press(preview, "TwoRaces");
    EXPECT_EQ(7, preview.pageCount());
    press(preview, "OverviewPage");
    EXPECT_EQ(6, preview.pageCount());
    press(preview, "PaperLetter");
    EXPECT_EQ(6, preview.pageCount());
    ASSERT_TRUE(preview.savePdf("card.pdf"));
    const std::string pdf = contentOf("card.pdf");
    EXPECT_NE(std::string::npos, pdf.find("/MediaBox [0 0 612"));
    delete &preview;
    EXPECT_EQ(6, openPreview().pageCount());
    QSettings{}.remove("cardPrint");
}

// The first race of the sample card, by its sheet: "RACE: 1", S1 with its rating.
TEST_F(CardPrintTest, TheCardIsTheOneOfTheStore) {
    startInWindow();
    const PaperCard paper = paperCard();
    EXPECT_EQ("MVR, Saturday 14 March 2026", paper.title);
    ASSERT_EQ(12u, paper.races.size());
    for (int race = 1; race <= 12; ++race) {
        const PaperRace& made = paper.races[static_cast<std::size_t>(race) - 1];
        int named = 0;
        for (int row = 1; row <= ratedEntries; ++row)
            if (!trimmed(card.entry(race, row).horseName.text()).empty()) ++named;
        EXPECT_EQ(static_cast<std::size_t>(named), made.entries.size()) << race;
        EXPECT_EQ(std::string{trimmed(card.selection(race, 1).selectionName)},
                  made.selections[0].horse.toStdString());
        const auto first = std::find_if(made.entries.begin(), made.entries.end(),
                                        [](const PaperEntry& entry) { return entry.place == "S1"; });
        ASSERT_NE(made.entries.end(), first) << race;
        EXPECT_EQ(made.selections[0].horse, first->horse);
        EXPECT_EQ(made.selections[0].number.text, first->number.text);
        EXPECT_EQ(made.selections[0].rating, first->rating);
    }
}

TEST_F(CardPrintTest, AScratchedEntryIsOutOnPaper) {
    startInWindow();
    answers = {"Yes"};
    window->runner().run(CommandId::RaceButton, numberArgument(2));
    answers = {"Yes"};
    window->runner().run(CommandId::Command4, numberArgument(3));
    const PaperCard paper = paperCard();
    EXPECT_TRUE(paper.races[1].entries[2].isOut);
    EXPECT_EQ("out", paper.races[1].entries[2].place);
}

TEST_F(CardPrintTest, NotesStandBesideTheHorseAndTheRace) {
    startInWindow();
    const auto note = [&](const char* text) { window->runner().run(CommandId::Note, textArgument(text)); };
    note("skip the salad = wants the rail");
    note("Rosario, I = new colours");
    note("Race 1 = windy");
    note("Race 1 = late start");
    const PaperRace race = paperCard().races[0];
    EXPECT_EQ("wants the rail; Rosario, I: new colours", race.entries[1].note);
    EXPECT_EQ("", race.entries[0].note);
    EXPECT_EQ("windy; late start", race.note);
}

// In grey a number is told from its cloth by lightness alone.
TEST_F(CardPrintTest, NumbersAreToldFromTheirClothsInGrey) {
    startInWindow();
    for (const PaperRace& race : paperCard().races)
        for (const PaperEntry& entry : race.entries)
            EXPECT_GE(std::abs(qGray(entry.number.cloth.rgb()) - qGray(entry.number.ink.rgb())), 80)
                << entry.number.text.toStdString();
}

} // namespace
} // namespace quillon
