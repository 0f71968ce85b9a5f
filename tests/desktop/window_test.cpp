#include "desktop/window_test.h"

#include "app/start_up.h"

#include <filesystem>

namespace quillon {

WindowTest::WindowTest() { StartUp(); }

void WindowTest::putSampleCard() {
    std::filesystem::copy(SAMPLE_FOLDER "/A Quillon PRO", "A Quillon PRO",
                          std::filesystem::copy_options::recursive);
    for (const char* settings : {"TrackEditor.ini", "CrossOver.ini", "Webpage.ini"})
        std::filesystem::copy(std::filesystem::path{SAMPLE_FOLDER} / settings, settings);
}

void WindowTest::startSampleCard() {
    putSampleCard();
    runner.run(CommandId::Start);
}

} // namespace quillon
