#include "tables/source_tables.h"

#include <array>
#include <cstdint>

namespace quillon {

SourceTables sourceTables;
SourceLine sourceLine;
SourceHorse sourceHorse;

namespace {

template <class Record>
struct SourceField {
    const char* name;
    Text Record::*text;
};

constexpr SourceField<SourceHorse> horseFields[] = {
    {"RACE", &SourceHorse::RACE},       {"HN", &SourceHorse::HN}, {"HORSE_NAME", &SourceHorse::HORSE_NAME},
    {"PROGRAM", &SourceHorse::PROGRAM}, {"PP", &SourceHorse::PP}, {"MORN_ODDS", &SourceHorse::MORN_ODDS},
    {"DN", &SourceHorse::DN},           {"TN", &SourceHorse::TN},
};

constexpr SourceField<SourceLine> lineFields[] = {
    {"TODAYSRACE", &SourceLine::TODAYSRACE},
    {"HN", &SourceLine::HN},
    {"DATE", &SourceLine::DATE},
    {"TRACK", &SourceLine::TRACK},
    {"TRACKSIZE", &SourceLine::TRACKSIZE},
    {"COND", &SourceLine::COND},
    {"PURSE", &SourceLine::PURSE},
    {"CLASS", &SourceLine::CLASS},
    {"CR", &SourceLine::CR},
    {"DIST_MILES", &SourceLine::DIST_MILES},
    {"LEAD_TM_1Q", &SourceLine::LEAD_TM_1Q},
    {"LEAD_TM_2Q", &SourceLine::LEAD_TM_2Q},
    {"LEAD_TM_3Q", &SourceLine::LEAD_TM_3Q},
    {"LEAD_TM_FN", &SourceLine::LEAD_TM_FN},
    {"POST", &SourceLine::POST},
    {"CALL_1Q_BF", &SourceLine::CALL_1Q_BF},
    {"CALL_1Q_PO", &SourceLine::CALL_1Q_PO},
    {"CALL_1Q_PK", &SourceLine::CALL_1Q_PK},
    {"CALL_1Q_AF", &SourceLine::CALL_1Q_AF},
    {"CALL_2Q_BF", &SourceLine::CALL_2Q_BF},
    {"CALL_2Q_PO", &SourceLine::CALL_2Q_PO},
    {"CALL_2Q_PK", &SourceLine::CALL_2Q_PK},
    {"CALL_2Q_AF", &SourceLine::CALL_2Q_AF},
    {"CALL_3Q_BF", &SourceLine::CALL_3Q_BF},
    {"CALL_3Q_PO", &SourceLine::CALL_3Q_PO},
    {"CALL_3Q_PK", &SourceLine::CALL_3Q_PK},
    {"CALL_3Q_AF", &SourceLine::CALL_3Q_AF},
    {"CALL_ST_PO", &SourceLine::CALL_ST_PO},
    {"CALL_FN_PO", &SourceLine::CALL_FN_PO},
    {"HRSE_TM_4Q", &SourceLine::HRSE_TM_4Q},
    {"HRSE_TM_FN", &SourceLine::HRSE_TM_FN},
    {"FAV", &SourceLine::FAV},
    {"ODDS", &SourceLine::ODDS},
    {"DN", &SourceLine::DN},
};

// Reads rows of a table into records. Names are looked up once a table, not once a row.
template <class Record, std::size_t count>
class RowReader {
public:
    explicit RowReader(const SourceField<Record> (&fields)[count]) : fields_(fields) {}

    void read(const TableCursor& rows, Record& record) {
        if (table_ != rows.serial() || rows.serial() == 0) findFields(rows);
        for (std::size_t i = 0; i < count; ++i) rows.trimmedFieldTo(record.*fields_[i].text, numbers_[i]);
    }

private:
    void findFields(const TableCursor& rows) {
        table_ = rows.serial();
        for (std::size_t i = 0; i < count; ++i) numbers_[i] = rows.fieldNumber(fields_[i].name);
    }

    const SourceField<Record> (&fields_)[count];
    std::uint64_t table_ = 0;
    std::array<int, count> numbers_{};
};

} // namespace

void ReadSourceLine() {
    static RowReader reader{lineFields};
    reader.read(sourceTables.lineRows, sourceLine);
}

void ReadSourceHorse() {
    static RowReader reader{horseFields};
    reader.read(sourceTables.horseRows, sourceHorse);
}

} // namespace quillon
