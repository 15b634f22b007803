# What `cmake --install` and `cpack` take: the one place where anything is installed. There are two packages. "program"
# (vorlane) has the verbs and the console and needs no graphics; "window" (vorlane-window) is what needs Qt, built where
# Qt is installed. The manual page and the completion are printed by the program itself, from the one table of its options.
include(GNUInstallDirs)

set(made ${PROJECT_BINARY_DIR}/packaging)
file(MAKE_DIRECTORY ${made})
set(doc_folder ${CMAKE_INSTALL_DATADIR}/doc)

# Other programs of the packages share the manual page.
set(pages)
foreach(name vorlane-console vorlane-window vorlane-picture)
    list(APPEND pages ${made}/${name}.1.gz)
    add_custom_command(OUTPUT ${made}/${name}.1.gz
        COMMAND sh -c "echo '.so man1/vorlane.1' | gzip -9n >'${made}/${name}.1.gz'" VERBATIM)
endforeach()
add_custom_command(
    OUTPUT ${made}/vorlane.1.gz ${made}/vorlane.bash ${made}/changelog.gz
    COMMAND sh -c "'$<TARGET_FILE:vorlane>' --print-manual | gzip -9n >'${made}/vorlane.1.gz'"
    COMMAND sh -c "'$<TARGET_FILE:vorlane>' --print-completion >'${made}/vorlane.bash'"
    COMMAND sh -c "gzip -9nc '${PROJECT_SOURCE_DIR}/packaging/changelog' >'${made}/changelog.gz'"
    DEPENDS vorlane ${PROJECT_SOURCE_DIR}/packaging/changelog VERBATIM)
add_custom_target(installed_texts ALL DEPENDS ${made}/vorlane.1.gz ${made}/vorlane.bash ${made}/changelog.gz ${pages})

install(TARGETS vorlane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
file(CREATE_LINK vorlane ${made}/vorlane-console SYMBOLIC)  # one program under two names
install(FILES ${made}/vorlane-console DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
install(DIRECTORY resources/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane COMPONENT program PATTERN ".*" EXCLUDE)
# What it needs besides comes with: npm --prefix /usr/share/vorlane/dwg ci
install(FILES tools/dwg/dwg2dxf.mjs tools/dwg/package.json tools/dwg/package-lock.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane/dwg COMPONENT program)
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DATADIR}/vorlane COMPONENT program PATTERN ".*" EXCLUDE)
install(DIRECTORY docs DESTINATION ${doc_folder}/vorlane COMPONENT program PATTERN ".*" EXCLUDE)
install(FILES README.md README.fr.md packaging/copyright ${made}/changelog.gz DESTINATION ${doc_folder}/vorlane COMPONENT program)
install(FILES ${made}/vorlane.1.gz ${made}/vorlane-console.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
install(FILES ${made}/vorlane.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        COMPONENT program RENAME vorlane)

set(CPACK_COMPONENTS_ALL program)
if(TARGET vorlane-window)
    list(APPEND CPACK_COMPONENTS_ALL window)
    install(TARGETS vorlane-window vorlane-picture RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT window)
    install(FILES packaging/vorlane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT window)
    install(FILES packaging/vorlane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT window)
    install(FILES packaging/vorlane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
            COMPONENT window RENAME vorlane.xml)
    install(FILES resources/icons/vorlane.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
            COMPONENT window)
    install(FILES ${made}/vorlane-window.1.gz ${made}/vorlane-picture.1.gz
            DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT window)
    install(FILES packaging/copyright ${made}/changelog.gz DESTINATION ${doc_folder}/vorlane-window COMPONENT window)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGE_NAME vorlane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR Merovane)
set(CPACK_PACKAGE_CONTACT "Merovane <vorlane@merovane.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${VORLANE_SITE})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME vorlane)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "vorlane-window, nodejs")
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "manages block references in CAD drawings
Replaces the references of a block with another block, extracts them
into a table, inserts a block in bulk from such a table and places labels
filled from the drawing, in DXF drawings from R12 to R2018: in a console, by
scripts, or by one command on a folder of drawings. What nobody touched keeps
its bytes.")
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME vorlane-window)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "vorlane (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "fonts-liberation, qt6-translations-l10n, qt6-wayland")
set(CPACK_COMPONENT_WINDOW_DESCRIPTION "manages block references in CAD drawings - the window
The window of vorlane, in which a drawing is seen and picked in while its
dialogs are up, and vorlane-picture, which draws PNG, SVG and PDF pictures
of drawings without a display.")
include(CPack)
