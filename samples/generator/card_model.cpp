#include "card_model.h"

namespace samples {

namespace {

std::string twoDigits(unsigned value) { return (value < 10 ? "0" : "") + std::to_string(value); }

} // namespace

std::string dateText(Day day) {
    const std::chrono::year_month_day date{day};
    return std::to_string(static_cast<int>(date.year())) + twoDigits(static_cast<unsigned>(date.month())) +
           twoDigits(static_cast<unsigned>(date.day()));
}

} // namespace samples
