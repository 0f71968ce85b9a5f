#include "scenario.h"

#include <cstdio>
#include <exception>

int main(int count, char** values) {
    if (count != 5 && count != 7) {
        std::fputs("scenario_runner CONSOLE SAMPLE-FOLDER WORK-FOLDER SCENARIO [LAUNCHER DRIVE]\n", stderr);
        return 2;
    }
    const bool launched = count == 7;
    try {
        const auto complaints = scenarios::complaintsAbout(values[4], {.console = values[1],
                                                                       .sampleFolder = values[2],
                                                                       .workFolder = values[3],
                                                                       .launcher = launched ? values[5] : "",
                                                                       .drive = launched ? values[6] : ""});
        for (const std::string& complaint : complaints) std::printf("%s\n", complaint.c_str());
        return complaints.empty() ? 0 : 1;
    } catch (const std::exception& problem) { // a disk that is full, a folder that can't be read
        std::fprintf(stderr, "%s\n", problem.what());
        return 2;
    }
}
