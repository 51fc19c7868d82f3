# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT

# Without it a package would be made that depends on nothing.
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps REQUIRED)

# Debian wants these compressed, without a time stamp in them.
find_program(gzip gzip REQUIRED)
configure_file(debian-changelog changelog COPYONLY)
foreach(page kelvaro.6 changelog)
    execute_process(COMMAND ${gzip} --best --no-name --keep --force ${CMAKE_CURRENT_BINARY_DIR}/${page}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kelvaro.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES debian-copyright DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kelvaro)
set(CPACK_PACKAGE_CONTACT "The Kelvaro developers <developers@kelvaro.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dice-poker hands on a five-by-five grid")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Roll two dice and place their sum in any empty cell of a five-by-five grid.
Every row and every column scores as a dice-poker hand as soon as its five
cells are filled. The five best rounds are kept. The game can be played by
mouse, by keyboard alone and with a screen reader.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation | fonts-liberation2 | fonts-croscore")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
