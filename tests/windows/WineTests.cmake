# Tests of programs for Windows, run by Wine on a drive C: of their own.
set(wine_prefix ${PROJECT_BINARY_DIR}/wine)
set(wine_drive ${wine_prefix}/drive_c)
set(wine_environment WINEPREFIX=${wine_prefix} WINEDEBUG=-all LOCPATH=${wine_prefix}/locale)

# quillon_wine_tests(NAME...): these tests run under Wine, one after the other: they share the drive.
function(quillon_wine_tests)
  set_tests_properties(${ARGN} PROPERTIES
    ENVIRONMENT "${wine_environment}" FIXTURES_REQUIRED wine RESOURCE_LOCK drive-c TIMEOUT 120)
endfunction()

# quillon_russian_tests(NAME...): and these on a Windows that is set to Russian.
function(quillon_russian_tests)
  set_tests_properties(${ARGN} PROPERTIES ENVIRONMENT "${wine_environment};LC_ALL=ru_RU.UTF-8")
endfunction()

add_test(NAME wine.starts COMMAND ${CMAKE_CURRENT_LIST_DIR}/wine-prefix up ${wine_prefix})
add_test(NAME wine.ends COMMAND ${CMAKE_CURRENT_LIST_DIR}/wine-prefix down ${wine_prefix})
set_tests_properties(wine.starts PROPERTIES FIXTURES_SETUP wine)
set_tests_properties(wine.ends PROPERTIES FIXTURES_CLEANUP wine)
