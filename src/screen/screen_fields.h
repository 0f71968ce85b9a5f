// The fields of what the screen is made of, by name, as those of the store in card/fields.h.
#pragma once

#include "card/fields.h"
#include "screen/screen.h"

namespace quillon {

inline constexpr std::tuple colourFields{
    Field{"red", &Colour::red},
    Field{"green", &Colour::green},
    Field{"blue", &Colour::blue},
};

inline constexpr std::tuple buttonFields{
    Field{"caption", &Button::caption},
    Field{"visible", &Button::visible},
    Field{"enabled", &Button::enabled},
    Field{"current", &Button::current},
};

inline constexpr std::tuple boxFields{
    Field{"text", &Box::text},
    Field{"colour", &Box::colour},
};

inline constexpr std::tuple labelFields{
    Field{"caption", &Label::caption},
    Field{"visible", &Label::visible},
};

inline constexpr std::tuple choiceListFields{
    Field{"lines", &ChoiceList::lines},
    Field{"visible", &ChoiceList::visible},
    Field{"caption", &ChoiceList::caption},
};

inline constexpr std::tuple menuStateFields{
    Field{"enabled", &MenuState::enabled},
    Field{"visible", &MenuState::visible},
    Field{"checked", &MenuState::checked},
};

inline constexpr std::tuple raceHeaderFields{
    Field{"race", &RaceHeader::race},           Field{"track", &RaceHeader::track},
    Field{"date", &RaceHeader::date},           Field{"purse", &RaceHeader::purse},
    Field{"classText", &RaceHeader::classText}, Field{"cr", &RaceHeader::cr},
    Field{"wagering", &RaceHeader::wagering},   Field{"postTime", &RaceHeader::postTime},
    Field{"gait", &RaceHeader::gait},           Field{"distance", &RaceHeader::distance},
    Field{"trackInfo", &RaceHeader::trackInfo},
};

inline constexpr std::tuple screenFields{
    Field{"caption", &Screen::caption},
    Field{"width", &Screen::width},
    Field{"height", &Screen::height},
    Field{"mode", &Screen::mode},
    Field{"header", &Screen::header},
    Field{"startOffer", &Screen::startOffer},
    Field{"start", &Screen::start},
    Field{"raceButtons", &Screen::raceButtons},
    Field{"raceChecks", &Screen::raceChecks},
    Field{"entryButtons", &Screen::entryButtons},
    Field{"scratchButtons", &Screen::scratchButtons},
    Field{"heatButtons", &Screen::heatButtons},
    Field{"boxes", &Screen::boxes},
    Field{"tote", &Screen::tote},
    Field{"finishLabels", &Screen::finishLabels},
    Field{"boxTenVisible", &Screen::boxTenVisible},
    Field{"boxTenColumn", &Screen::boxTenColumn},
    Field{"refunds", &Screen::refunds},
    Field{"boardsToTakeIn", &Screen::boardsToTakeIn},
    Field{"dataView", &Screen::dataView},
    Field{"dataViewVisible", &Screen::dataViewVisible},
    Field{"raceView", &Screen::raceView},
    Field{"raceViewVisible", &Screen::raceViewVisible},
    Field{"pastPerformanceOpen", &Screen::pastPerformanceOpen},
    Field{"currentEntry", &Screen::currentEntry},
    Field{"pastPerformanceHeading", &Screen::pastPerformanceHeading},
    Field{"lineTaken", &Screen::lineTaken},
    Field{"menu", &Screen::menu},
    Field{"fileList", &Screen::fileList},
    Field{"trackList", &Screen::trackList},
    Field{"driverList", &Screen::driverList},
    Field{"driverRow", &Screen::driverRow},
    Field{"driverChoice", &Screen::driverChoice},
    Field{"raceList", &Screen::raceList},
    Field{"profileFilter", &Screen::profileFilter},
    Field{"profileTracks", &Screen::profileTracks},
    Field{"marginList", &Screen::marginList},
    Field{"oddsList", &Screen::oddsList},
    Field{"maxOddsList", &Screen::maxOddsList},
    Field{"marginChoice", &Screen::marginChoice},
    Field{"oddsChoice", &Screen::oddsChoice},
    Field{"summary", &Screen::summary},
    Field{"profile", &Screen::profile},
    Field{"tracks", &Screen::tracks},
    Field{"picks", &Screen::picks},
    Field{"stars", &Screen::stars},
    Field{"summaryVisible", &Screen::summaryVisible},
    Field{"profileVisible", &Screen::profileVisible},
    Field{"tracksVisible", &Screen::tracksVisible},
    Field{"picksVisible", &Screen::picksVisible},
    Field{"starsVisible", &Screen::starsVisible},
    Field{"starsFields", &Screen::starsFields},
    Field{"record", &Screen::record},
    Field{"racePanelsVisible", &Screen::racePanelsVisible},
};

} // namespace quillon
