#include "core/dates.h"

#include "core/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <ctime>

namespace quillon {

int dayNumber(TextView yyyymmdd) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const bool eightDigits = yyyymmdd.size() == 8 && std::all_of(yyyymmdd.begin(), yyyymmdd.end(), isDigit);
    if (!eightDigits) fail("\"" + Text{leftOf(yyyymmdd, 20)} + "\" is no date");

    const auto part = [&](std::size_t at, std::size_t length) {
        unsigned value = 0;
        std::from_chars(yyyymmdd.data() + at, yyyymmdd.data() + at + length, value);
        return value;
    };
    const std::chrono::year_month_day date{std::chrono::year{static_cast<int>(part(0, 4))},
                                           std::chrono::month{part(4, 2)}, std::chrono::day{part(6, 2)}};
    if (!date.ok()) fail("there is no day " + Text{yyyymmdd});
    return static_cast<int>(std::chrono::sys_days{date}.time_since_epoch().count());
}

Text dashedDate(TextView yyyymmdd) {
    Text dashed{midOf(yyyymmdd, 5, 2)};
    dashed += '-';
    dashed += rightOf(yyyymmdd, 2);
    dashed += '-';
    return dashed += leftOf(yyyymmdd, 4);
}

Text localTime() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> text{};
    const std::tm* const time = std::localtime(&now);
    return {text.data(), time ? std::strftime(text.data(), text.size(), "%Y%m%d %H%M%S", time) : 0};
}

} // namespace quillon
