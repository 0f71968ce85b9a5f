#include "console/standard_input.h"

#ifdef _WIN32
#include <thread>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

namespace quillon {

#ifdef _WIN32

namespace {

// A pipe can't be waited for.
bool waitForPipe(HANDLE pipe, std::chrono::milliseconds atMost) {
    constexpr std::chrono::milliseconds pause{20};
    const auto end = std::chrono::steady_clock::now() + atMost;
    for (;;) {
        DWORD there = 0;
        if (!PeekNamedPipe(pipe, nullptr, 0, nullptr, &there, nullptr) || there > 0) return true;
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

bool waitForStandardInput(std::chrono::milliseconds atMost) {
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    if (GetFileType(input) == FILE_TYPE_PIPE) return waitForPipe(input, atMost);
    return WaitForSingleObject(input, static_cast<DWORD>(atMost.count())) != WAIT_TIMEOUT;
}

#else

bool waitForStandardInput(std::chrono::milliseconds atMost) {
    pollfd input{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    return ::poll(&input, 1, static_cast<int>(atMost.count())) != 0;
}

#endif

} // namespace quillon
