# How every target of the project is compiled: one interface target that carries warnings and sanitizers.
add_library(quillon_build INTERFACE)
if(MSVC)
  target_compile_options(quillon_build INTERFACE /W4 /utf-8)
else()
  target_compile_options(quillon_build INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlapping copies in std::string's own operator+ when it optimises.
    target_compile_options(quillon_build INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
  endif()
endif()

if(QUILLON_SANITIZE)
  target_compile_options(quillon_build INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(quillon_build INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

if(CMAKE_CXX_CLANG_TIDY)
  # What Qt's moc writes is nobody's style: one check that finds nothing there, since none at all is an error.
  file(WRITE ${PROJECT_BINARY_DIR}/.clang-tidy "Checks: '-*,llvm-twine-local'\n")
endif()
