#include "app/start_up.h"
#include "console/console.h"

#include <iostream>

#ifdef _WIN32
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#endif

namespace {

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
    quillon::Console console{std::cout};
    quillon::StartUp();
    console.run(std::cin);
    return 0;
}
