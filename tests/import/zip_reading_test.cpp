#include "import/zip_reading.h"

#include "import/made_archives.h"
#include "import/zip_writing.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

Gathered gatheredFrom(const Text& archive, const ZipLimits& limits = {}) {
    Gathered gathered;
    gatherFromZip(archive, "card.zip", gathered, limits);
    return gathered;
}

Text refusalOf(const Text& archive, const ZipLimits& limits = {}) {
    return gatheredFrom(archive, limits).refusal;
}

const std::vector<MadeMember> aCard{{"RACESHR.DBF", "races"}, {"HORSEHR.DBF", "horses"}};

TEST(ZipReading, TakesTablesInAnyCaseAndDepthAndLeavesTheRest) {
    const Gathered gathered = gatheredFrom(madeZip({
        {"MVR0314", {}, MadeMember::Kind::folder},
        {"MVR0314/deep/er/raceshr.dbf", "races"},
        {"HorseHR.Dbf", "horses"},
        {"MVR0314\\SIREHR.DBF", "sires"},
        {"MVR0314/readme.txt", "words"},
        {"OLDRACESHR.DBF", "another table"},
        {"RACESHR.DBF", {}, MadeMember::Kind::folder},
    }));
    EXPECT_EQ("", gathered.refusal);
    ASSERT_EQ(3u, gathered.tables.size());
    EXPECT_EQ("races", gathered.find(raceTable)->content);
    EXPECT_EQ("MVR0314/deep/er/raceshr.dbf", gathered.find(raceTable)->path);
    EXPECT_EQ("horses", gathered.find(horseTable)->content);
    EXPECT_EQ("sires", gathered.find("SIREHR.DBF")->content);
}

TEST(ZipReading, AProgramInFrontIsPassedOverWhereverThePlacesCountFrom) {
    for (const PlacesFrom places : {PlacesFrom::archive, PlacesFrom::file}) {
        const Gathered gathered = gatheredFrom(behindProgram(madeZip(aCard), places));
        EXPECT_EQ("", gathered.refusal);
        ASSERT_EQ(2u, gathered.tables.size());
        EXPECT_EQ("races", gathered.find(raceTable)->content);
        EXPECT_EQ("horses", gathered.find(horseTable)->content);
    }
}

TEST(ZipReading, APathThatLeadsOutSpoilsTheArchive) {
    for (const char* path : {"../RACESHR.DBF", "/etc/RACESHR.DBF", "C:\\RACESHR.DBF",
                             "card/..\\..\\RACESHR.DBF", "../notes.txt"}) {
        const Text refusal = refusalOf(madeZip({aCard[1], {path, "x"}}));
        EXPECT_NE(Text::npos, refusal.find("in card.zip has a path that leads out of the archive."))
            << path << refusal;
    }
}

TEST(ZipReading, LinksSpoilTheArchive) {
    const MadeMember link{"RACESHR.DBF", "/etc/passwd", MadeMember::Kind::symbolicLink};
    EXPECT_EQ("RACESHR.DBF in card.zip is a link to another file.", refusalOf(madeZip({link})));
    const MadeMember other{"notes.txt", "RACESHR.DBF", MadeMember::Kind::symbolicLink};
    EXPECT_EQ("notes.txt in card.zip is a link to another file.", refusalOf(madeZip({aCard[0], other})));
}

// A zip has no hard links; the archives that have are none that is read.
TEST(ZipReading, OtherArchivesAreNotRead) {
    EXPECT_EQ("card.zip is neither a zip archive nor a table of the vendor's.",
              refusalOf(tarWithHardLink("other", "RACESHR.DBF")));
}

TEST(ZipReading, EncryptedMembersAreRefused) {
    EXPECT_EQ(
        "RACESHR.DBF in card.zip is encrypted. Unpack the archive with its password and bring the folder.",
        refusalOf(madeZip(aCard, "secret")));
}

// 64 MB of zeros pack to less than a three hundredth.
TEST(ZipReading, ABombIsNotUnpacked) {
    const Text bomb = madeZip({{"RACESHR.DBF", Text(std::size_t{64} << 20, '\0')}});
    ASSERT_LT(bomb.size(), (std::size_t{64} << 20) / 300);
    const Gathered gathered = gatheredFrom(bomb);
    EXPECT_EQ("card.zip unpacks to more than tables of a card can be. It was not unpacked.",
              gathered.refusal);
    EXPECT_TRUE(gathered.tables.empty());
}

TEST(ZipReading, TheSizeOfAllTablesTogetherHasALimit) {
    // 5 and 6 bytes
    EXPECT_EQ("", refusalOf(madeZip(aCard), {.bytes = 11}));
    EXPECT_NE("", refusalOf(madeZip(aCard), {.bytes = 10}));
}

TEST(ZipReading, SoHasTheRatio) {
    const Text zip = madeZip({{"RACESHR.DBF", Text(100'000, ' ')}});
    const std::size_t ratio = 100'000 / zip.size();
    EXPECT_EQ("", refusalOf(zip, {.ratio = ratio + 1, .freeOfRatio = 0}));
    EXPECT_NE("", refusalOf(zip, {.ratio = ratio - 1, .freeOfRatio = 0}));
    EXPECT_EQ("", refusalOf(zip, {.ratio = 1, .freeOfRatio = 100'000}));
}

TEST(ZipReading, TooManyMembersAreNoArchiveOfTheVendors) {
    std::vector<MadeMember> members(2000);
    for (std::size_t at = 0; at < members.size(); ++at) members[at].path = "notes" + std::to_string(at);
    EXPECT_EQ("", refusalOf(madeZip(members)));
    members.push_back(aCard[0]);
    EXPECT_EQ("card.zip holds more than 2000 files. That is no archive of the vendor's.",
              refusalOf(madeZip(members)));
}

TEST(ZipReading, TwoTablesOfOneNameAreRefused) {
    EXPECT_EQ("There are two tables RACESHR.DBF, mvr/RACESHR.DBF and old/raceshr.dbf, and nothing says which "
              "one is "
              "meant.",
              refusalOf(madeZip({{"mvr/RACESHR.DBF", "a"}, {"old/raceshr.dbf", "b"}})));
}

// An archive that is cut anywhere gives no table, since its list stands at its end.
TEST(ZipReading, ATruncatedArchiveIsRefusedWhereverItIsCut) {
    const Text zip = madeZip(aCard);
    for (std::size_t length = 4; length < zip.size(); ++length) {
        const Gathered gathered = gatheredFrom(zip.substr(0, length));
        ASSERT_EQ("card.zip is damaged or cut short. Fetch it again.", gathered.refusal) << length;
        ASSERT_TRUE(gathered.tables.empty());
    }
}

TEST(ZipReading, ADamagedTableIsNotTaken) {
    Text zip = madeZip({{"RACESHR.DBF", "races of the fourteenth of March"}});
    const std::size_t name = zip.find("RACESHR.DBF");
    zip[name + 45] ^= 0x10; // within what is packed, so that its checksum differs
    EXPECT_EQ("card.zip is damaged or cut short. Fetch it again.", refusalOf(zip));
}

TEST(ZipReading, GarbageIsCalledByWhatItIs) {
    EXPECT_EQ("card.zip is neither a zip archive nor a table of the vendor's.",
              refusalOf(Text(3000, '\xA5')));
    EXPECT_EQ("card.zip is neither a zip archive nor a table of the vendor's.", refusalOf(""));
    const Text program = refusalOf("MZ" + Text(3000, '\x90'));
    EXPECT_TRUE(program.starts_with("card.zip is a program without a zip archive in it")) << program;
}

TEST(ZipReading, AnEmptyArchiveHoldsNoTable) {
    const Gathered gathered = gatheredFrom(madeZip({}));
    EXPECT_EQ("card.zip is an empty archive.", gathered.refusal);
    EXPECT_TRUE(gathered.tables.empty());
}

TEST(ZipWriting, WhatIsWrittenIsRead) {
    const auto zip = zipOf({{raceTable, "races"}, {horseTable, Text(70'000, 'h')}, {lineTable, ""}});
    ASSERT_TRUE(zip);
    const Gathered gathered = gatheredFrom(*zip);
    ASSERT_EQ(3u, gathered.tables.size());
    EXPECT_EQ("races", gathered.find(raceTable)->content);
    EXPECT_EQ(Text(70'000, 'h'), gathered.find(horseTable)->content);
    EXPECT_EQ("", gathered.find(lineTable)->content);
}

} // namespace
} // namespace quillon
