#include "import/member_path.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

struct Row {
    const char* path;
    bool leadsOut;
};

constexpr Row rows[] = {
    {"RACESHR.DBF", false},
    {"card/of the day/RACESHR.DBF", false},
    {"card\\RACESHR.DBF", false},
    {"./RACESHR.DBF", false},
    {"..RACESHR.DBF", false}, // two points that are part of a name
    {"card../RACESHR.DBF", false},
    {".../RACESHR.DBF", false},
    {"", false},
    {"../RACESHR.DBF", true},
    {"card/../../RACESHR.DBF", true},
    {"card/..", true},
    {"..\\RACESHR.DBF", true},
    {"card\\..\\RACESHR.DBF", true},
    {"card/.. /RACESHR.DBF", true}, // Windows drops the blank
    {"/RACESHR.DBF", true},
    {"\\RACESHR.DBF", true},
    {"\\\\server\\share\\RACESHR.DBF", true},
    {"C:\\RACESHR.DBF", true},
    {"c:RACESHR.DBF", true},
    {"card/RACESHR.DBF:other", true}, // a second content of a file
};

TEST(MemberPath, LeadsOutFromARootADriveOrUp) {
    for (const Row& row : rows) EXPECT_EQ(row.leadsOut, leadsOut(row.path)) << row.path;
}

} // namespace
} // namespace quillon
