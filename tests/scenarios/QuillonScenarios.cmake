# quillon_scenarios(RUNNER [LAUNCHER DRIVE]): each folder beside this file is a test of the whole program,
# scenario.<folder>. A launcher starts the console, whose fixed folders then lie on the drive.
set(scenario_folder ${CMAKE_CURRENT_LIST_DIR})

function(quillon_scenarios runner)
  file(GLOB entries LIST_DIRECTORIES true CONFIGURE_DEPENDS ${scenario_folder}/*)
  foreach(folder IN LISTS entries)
    get_filename_component(name ${folder} NAME)
    if(name STREQUAL "runner" OR NOT IS_DIRECTORY ${folder})
      continue()
    endif()
    add_test(NAME scenario.${name}
      COMMAND ${runner} $<TARGET_FILE:quillon-console> ${PROJECT_SOURCE_DIR}/samples
        ${CMAKE_CURRENT_BINARY_DIR}/work ${folder} ${ARGN})
    set_tests_properties(scenario.${name} PROPERTIES TIMEOUT 60)
    if(CMAKE_CROSSCOMPILING)
      quillon_wine_tests(scenario.${name})
    endif()
  endforeach()
endfunction()
