#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

constexpr auto right = Align::right;
constexpr int labelWidth = 1000;
constexpr int numberWidth = 400;
constexpr int moneyWidth = 640;
constexpr int gap = 180;

// clang-format off
constexpr std::array summaryColumnTable{
    ViewColumn{"",         labelWidth},
    ViewColumn{"S1",       numberWidth, right},
    ViewColumn{"S2",       numberWidth, right},
    ViewColumn{"S3",       numberWidth, right},
    ViewColumn{"S4",       numberWidth, right},
    ViewColumn{"",         gap},
    ViewColumn{"R1",       numberWidth, right},
    ViewColumn{"R2",       numberWidth, right},
    ViewColumn{"R3",       numberWidth, right},
    ViewColumn{"R4",       numberWidth, right},
    ViewColumn{"",         gap},
    ViewColumn{"Win",      moneyWidth,  right},
    ViewColumn{"Place",    moneyWidth,  right},
    ViewColumn{"Show",     moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"E1/2",     moneyWidth,  right},
    ViewColumn{"E1-2",     moneyWidth,  right},
    ViewColumn{"E1/2-3",   moneyWidth,  right},
    ViewColumn{"E1-2-3",   moneyWidth,  right},
    ViewColumn{"E1-2-3-4", moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"",         gap},
    ViewColumn{"T1/2-3",   moneyWidth,  right},
    ViewColumn{"T1/2-3-4", moneyWidth,  right},
    ViewColumn{"T1-2-3",   moneyWidth,  right},
    ViewColumn{"",         gap},
    ViewColumn{"S1/2-3-4", moneyWidth,  right},
    ViewColumn{"S2-1/3-4", moneyWidth,  right},
    ViewColumn{"S1-2-3-4", moneyWidth,  right},
    ViewColumn{"Pick 3",   moneyWidth,  right},
};
// clang-format on
static_assert(summaryColumnTable.size() == SummaryColumn::count);

} // namespace

std::span<const ViewColumn> summaryColumns() { return summaryColumnTable; }

} // namespace quillon
