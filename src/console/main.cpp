#include "app/start_up.h"
#include "console/console.h"
#include "console/standard_input.h"

#include <iostream>

#ifdef _WIN32
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace {

// A console window shows UTF-8 while the program runs. It is not the program's own, and goes on after it.
class WindowInUtf8 {
#ifdef _WIN32
public:
    WindowInUtf8() {
        SetConsoleCP(CP_UTF8);
        SetConsoleOutputCP(CP_UTF8);
    }
    ~WindowInUtf8() {
        SetConsoleCP(input_);
        SetConsoleOutputCP(output_);
    }
    WindowInUtf8(const WindowInUtf8&) = delete;
    WindowInUtf8& operator=(const WindowInUtf8&) = delete;

private:
    UINT input_ = GetConsoleCP();
    UINT output_ = GetConsoleOutputCP();
#endif
};

// Lines end in LF on every system, and no byte of the input ends it early.
void setBinaryStreams() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr);
}

} // namespace

int main() {
    setBinaryStreams();
    [[maybe_unused]] const WindowInUtf8 window;
    quillon::Console console{std::cout};
    console.waitForInput = quillon::waitForStandardInput;
    quillon::StartUp();
    console.run(std::cin);
    return 0;
}
