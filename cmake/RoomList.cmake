# The rooms in order of flow, each with the rooms that it may include. This is the one list: the build
# links by it and the include check reads it.

vorlane_room(basic src/basic)
vorlane_room(forms src/forms LINKS basic)
vorlane_room(host src/host LINKS basic)
vorlane_room(platform src/platform LINKS basic)
vorlane_room(session src/session LINKS host platform forms)
vorlane_room(language src/language LINKS session)
vorlane_room(blocks src/blocks LINKS language)
vorlane_room(replace src/replace LINKS blocks)
vorlane_room(labels src/labels LINKS blocks)
vorlane_room(extract src/extract LINKS blocks)
vorlane_room(about src/about LINKS language)
target_compile_definitions(about PUBLIC VORLANE_SITE="${VORLANE_SITE}")
vorlane_room(entry src/entry LINKS replace labels extract about)

vorlane_room(text_face faces/text LINKS forms)

vorlane_room(dxf desk/dxf LINKS basic)
vorlane_room(geometry desk/geometry LINKS basic)
vorlane_room(drawing desk/drawing LINKS dxf geometry)
vorlane_room(shapes desk/shapes LINKS drawing)
vorlane_room(import desk/import LINKS drawing)
vorlane_room(picture desk/picture LINKS shapes)
vorlane_room(model desk/model LINKS shapes import host)
vorlane_room(lisp desk/lisp LINKS host)

if(WIN32)
    vorlane_room(win32_face faces/win32 LINKS forms SYSTEM comctl32 comdlg32 gdi32)
    vorlane_room(com windows/com LINKS host SYSTEM ole32 oleaut32 uuid)
    vorlane_room(addin windows/addin LINKS entry com win32_face SYSTEM shell32 advapi32)
    # Of the console's room only the prompter, which knows nothing of the system.
    vorlane_room(answers desk/answers LINKS shapes)
    add_library(console STATIC desk/console/text_prompter.cpp)
    target_link_libraries(console PUBLIC model text_face answers)
    vorlane_room(stand_in windows/stand_in LINKS model lisp com text_face console SYSTEM comctl32)
    vorlane_windows_programs()
else()
    vorlane_room(shell desk/shell LINKS entry model lisp)
    # For a program that runs in its build folder; an installed one finds its resources beside it.
    set_source_files_properties(${PROJECT_SOURCE_DIR}/desk/shell/surroundings.cpp
        PROPERTIES COMPILE_DEFINITIONS VORLANE_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
    vorlane_room(answers desk/answers LINKS shapes)
    vorlane_room(jobs desk/jobs LINKS shell answers text_face)
    vorlane_room(console desk/console LINKS jobs text_face SYSTEM edit)

    # One program under two names: vorlane-console never becomes the window.
    vorlane_program(vorlane desk/console console)
    vorlane_program(vorlane-console desk/console console)

    # The window, its face and what paints need Qt 6; where it isn't installed, or VORLANE_QT is off, everything else is built.
    if(VORLANE_QT)
        find_package(Qt6 6.4 QUIET COMPONENTS Widgets Svg)
    endif()
    if(Qt6_FOUND)
        if(VORLANE_PCH)
            vorlane_precompiled(qt_headers HEADERS ${VORLANE_STANDARD_HEADERS} <QtWidgets> LINKS vorlane_flags Qt6::Widgets)
        endif()
        vorlane_room(painter desk/painter LINKS picture SYSTEM Qt6::Gui Qt6::Svg)
        vorlane_program(vorlane-picture desk/painter painter)
        vorlane_room(qt_face faces/qt LINKS forms SYSTEM Qt6::Widgets)
        vorlane_room(window desk/window LINKS shell answers painter qt_face SYSTEM Qt6::Widgets Qt6::Svg)
        vorlane_program(vorlane-window desk/window window)
    endif()
endif()
