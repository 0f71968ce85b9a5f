#include "tracks.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using samples::trackEditorText;

std::vector<std::string> rows() {
    std::vector<std::string> rows;
    const std::string text = trackEditorText();
    std::size_t start = 0;
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        rows.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    EXPECT_EQ(text.size(), start) << "the last row has its line end";
    return rows;
}

std::string rowOf(const std::string& key) {
    for (const std::string& row : rows())
        if (row.starts_with(key + " ")) return row;
    return {};
}

// Columns from 1, both included.
std::string columns(const std::string& row, std::size_t first, std::size_t last) {
    return row.substr(first - 1, last - first + 1);
}

TEST(TrackEditor, RowsHaveFixedColumns) {
    //                   1         2         3         4         5         6
    //          12345678901234567890123456789012345678901234567890123456789012345
    EXPECT_EQ("M1          Meadowlands             1.M   990'   52.8          10", rowOf("M1"));
    EXPECT_EQ("YR          Yonkers Raceway         1/2   660'   57.2           8", rowOf("YR"));
    EXPECT_EQ("CNLDN       Colonial Downs          1.Q  1290'   52.4          10", rowOf("CNLDN"));
    EXPECT_EQ("CNTYD       Century Downs           5/8   550'   55.0           9", rowOf("CNTYD"));
}

TEST(TrackEditor, EveryRowIsWhole) {
    const std::set<std::string> sizes{"1/2", "5/8", "3/4", "7/8", "1.M", "1.Q"};
    for (const std::string& row : rows()) {
        ASSERT_EQ(65U, row.size()) << row;
        EXPECT_EQ(std::string(7, ' '), columns(row, 6, 12)) << row;
        EXPECT_EQ(' ', row[35]) << "a blank ends the name: " << row;
        EXPECT_TRUE(sizes.contains(columns(row, 37, 39))) << row;
        EXPECT_GE(std::stoi(columns(row, 42, 45)), 440) << row;
        EXPECT_GE(std::stod(columns(row, 50, 53)), 52.0) << row;
        EXPECT_GE(std::stoi(columns(row, 64, 65)), 8) << row;
    }
}

TEST(TrackEditor, KeysAreInCapitalsAndOrdered) {
    std::set<std::string> keys;
    std::string previous;
    for (const std::string& row : rows()) {
        const std::string key = columns(row, 1, 5);
        EXPECT_EQ(std::string::npos, key.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ")) << key;
        EXPECT_LT(previous, key); // so NP stands before a key that would begin with NP
        previous = key;
        keys.insert(key);
    }
    EXPECT_GE(keys.size(), 60U);
}

TEST(Tracks, VendorWritesMilesItsOwnWay) {
    EXPECT_EQ("1", samples::vendorSize(samples::trackOf("M1")));
    EXPECT_EQ("11/4", samples::vendorSize(samples::trackOf("CNLDN")));
    EXPECT_EQ("5/8", samples::vendorSize(samples::trackOf("MVR")));
}

} // namespace
