# What a Unix desktop looks for: man pages, the menu entry, icons, metainfo; and the .deb around it all.
find_program(GZIP gzip REQUIRED)

# install_compressed(FILE FOLDER NAME): installs the file as NAME, packed the same way at every build.
function(install_compressed file folder name)
  set(packed ${CMAKE_CURRENT_BINARY_DIR}/${name})
  add_custom_command(OUTPUT ${packed} COMMAND ${GZIP} -9nc ${file} > ${packed} DEPENDS ${file} VERBATIM)
  add_custom_target(packed-${name} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION ${folder})
endfunction()

foreach(program IN LISTS programs)
  install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/man/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${program}.1.gz)
endforeach()

if(TARGET quillon)
  install(FILES quillon.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES example.tarnbeck.quillon.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  foreach(size 16 24 32 48 64 128 256)
    install(FILES icons/quillon-${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME quillon.png)
  endforeach()
  install(FILES icons/quillon.svg DESTINATION ${icons}/scalable/apps)
endif()

# The version is CMake's; the files that tell the releases to packagers and shops begin with it.
function(check_newest_release file pattern)
  file(STRINGS ${file} releases REGEX "${pattern}")
  list(GET releases 0 newest)
  string(REPLACE "." "\\." version ${PROJECT_VERSION})
  if(NOT newest MATCHES "[^0-9.]${version}[^0-9.]")
    message(FATAL_ERROR "${file} does not begin with release ${PROJECT_VERSION}: ${newest}")
  endif()
endfunction()
check_newest_release(debian/changelog "^quillon \\(")
check_newest_release(example.tarnbeck.quillon.metainfo.xml "<release version=")

install(FILES debian/copyright DESTINATION ${doc_folder})
install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog ${doc_folder} changelog.Debian.gz)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
file(READ debian/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)
if(TARGET quillon)
  # The window draws SVG icons of themes and reads fonts of the system where there are any.
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, fonts-dejavu-core, fonts-urw-base35, xdg-utils")
endif()
