#include "app/links.h"

#include "core/failure.h"
#include "core/files.h"
#include "screen/ports.h"

namespace quillon {
namespace {

// clang-format off
constexpr const char* trottingPage  = "https://racing.ustrotting.com/";
constexpr const char* videoPage     = "https://www.rtn.tv/";
constexpr const char* weatherPage   = "https://www.weather.gov/";
constexpr const char* resultsPage   = "https://www.trackmaster.com/tracks-breed-state-results.jsp"
                                      "?breed=h&sortby=tracks.trackname";
constexpr const char* revisionsPage = "https://www.tarnbeck.example/Revisions.html";
// clang-format on

Text lastLineOf(TextView content) {
    LineReader lines{content};
    TextView last;
    while (const auto line = lines.next()) last = *line;
    return Text{trimmed(last)};
}

} // namespace

void Reset() {
    const Step step{"Reset"};
    const Text address = lastLineOf(readFile({Folder::working, "webpage.ini"}));
    if (address.empty()) fail("the last line of webpage.ini is empty");
    ports.browse(address);
}

void USTA() { ports.browse(trottingPage); }

void RTN() { ports.browse(videoPage); }

void Weather() { ports.browse(weatherPage); }

void TRC() { ports.browse(resultsPage); }

void QLR() { ports.browse(revisionsPage); }

} // namespace quillon
