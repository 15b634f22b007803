# `cmake --install` and `cpack`: the program with its resources, manual page, completion, changelog and copyright. The
# manual page and the completion are printed by the program itself, from the one table of its options.
include(GNUInstallDirs)

set(made ${PROJECT_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made})
add_custom_command(
    OUTPUT ${made}/vorlane.1.gz ${made}/vorlane.bash ${made}/changelog.gz
    COMMAND sh -c "'$<TARGET_FILE:vorlane>' --print-manual | gzip -9n >'${made}/vorlane.1.gz'"
    COMMAND sh -c "'$<TARGET_FILE:vorlane>' --print-completion >'${made}/vorlane.bash'"
    COMMAND sh -c "gzip -9nc '${PROJECT_SOURCE_DIR}/packaging/changelog' >'${made}/changelog.gz'"
    DEPENDS vorlane ${PROJECT_SOURCE_DIR}/packaging/changelog VERBATIM)
add_custom_target(installed_texts ALL DEPENDS ${made}/vorlane.1.gz ${made}/vorlane.bash ${made}/changelog.gz)

install(TARGETS vorlane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane PATTERN ".*" EXCLUDE)
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane/samples PATTERN ".*" EXCLUDE)
# What it needs besides comes with: npm --prefix /usr/share/vorlane/dwg ci
install(FILES tools/dwg/dwg2dxf.mjs tools/dwg/package.json tools/dwg/package-lock.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane/dwg)
install(FILES ${made}/vorlane.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${made}/vorlane.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME vorlane)
install(FILES ${made}/changelog.gz packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vorlane)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vorlane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Merovane)
set(CPACK_PACKAGE_CONTACT "Merovane <vorlane@merovane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "manages block references in CAD drawings")
set(CPACK_PACKAGE_DESCRIPTION "Replaces the references of a block with another block, extracts them
into a table, inserts a block in bulk from such a table and places labels
filled from the drawing, in DXF drawings from R12 to R2018: in a console, by
scripts, or by one command on a folder of drawings. What nobody touched keeps
its bytes.")
set(CPACK_PACKAGE_HOMEPAGE_URL ${VORLANE_SITE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "nodejs")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
