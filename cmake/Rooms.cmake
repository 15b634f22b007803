# A room is one library made of one folder. Its link list is the list of rooms that it may include.
#
#   vorlane_room(NAME FOLDER [LINKS room...] [SYSTEM library...])
#
# Includes are written from the root of the rooms: src/ and faces/ for the logic and its faces, the
# top for "desk/...". cmake/check_includes.py holds the sources to the same link lists.

add_library(vorlane_flags INTERFACE)
target_compile_options(vorlane_flags INTERFACE -Wall -Wextra -Wshadow -Wconversion)
if(VORLANE_WERROR)
    # Of these GCC 12 warns where the standard library's own text is put together.
    target_compile_options(vorlane_flags INTERFACE -Werror -Wno-error=array-bounds -Wno-error=restrict
        $<$<BOOL:${WIN32}>:-Wno-error=stringop-overflow>)
endif()
target_include_directories(vorlane_flags INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
if(VORLANE_SANITIZE)
    target_compile_options(vorlane_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(vorlane_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VORLANE_FUZZ)
    target_compile_options(vorlane_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined)
    target_link_options(vorlane_flags INTERFACE -fsanitize=address,undefined)
endif()

# The headers that most sources read, compiled once: that halves the time of a build. Sources name what they include all the
# same; the release build goes without and would miss it.
function(vorlane_precompiled name)
    cmake_parse_arguments(PCH "" "" "HEADERS;LINKS" ${ARGN})
    add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled/empty.cpp)
    target_link_libraries(${name} PRIVATE ${PCH_LINKS})
    target_compile_options(${name} PRIVATE -fpch-preprocess)
    target_precompile_headers(${name} PRIVATE ${PCH_HEADERS})
endfunction()

# Lets a target use the precompiled header of another.
function(vorlane_use_precompiled target name)
    if(TARGET ${name})
        target_compile_options(${target} PRIVATE -fpch-preprocess)
        target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
endfunction()

# Compiles a target's files by fours, which share the templates that each of them needs (GoogleTest's most of all).
function(vorlane_together target)
    if(VORLANE_TOGETHER)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 4)
        # GCC takes an included file's unnamed namespace for one of a header.
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endfunction()

set(VORLANE_STANDARD_HEADERS <algorithm> <array> <charconv> <cmath> <cstdint> <filesystem> <fstream> <functional> <map> <memory>
    <optional> <set> <span> <sstream> <string> <string_view> <unordered_map> <utility> <variant> <vector>)
# The flags of the rooms of VORLANE_COVERAGE: tools/seed_faults.py asks which of their lines a test reaches, and wants no
# warnings about the faults that it seeds.
add_library(vorlane_coverage INTERFACE)
target_link_libraries(vorlane_coverage INTERFACE vorlane_flags)
target_compile_options(vorlane_coverage INTERFACE --coverage -O0 -w -Wno-error)
target_link_options(vorlane_coverage INTERFACE --coverage)
if(VORLANE_PCH)
    vorlane_precompiled(standard_headers HEADERS ${VORLANE_STANDARD_HEADERS} LINKS vorlane_flags)
    if(VORLANE_COVERAGE)
        vorlane_precompiled(coverage_headers HEADERS ${VORLANE_STANDARD_HEADERS} LINKS vorlane_coverage)
    endif()
endif()

# What only one system has stands in NAME_posix.cpp and NAME_windows.cpp behind one header.
if(WIN32)
    set(VORLANE_OTHER_SYSTEM posix)
else()
    set(VORLANE_OTHER_SYSTEM windows)
endif()

function(vorlane_room name folder)
    cmake_parse_arguments(ROOM "" "" "LINKS;SYSTEM" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/(main|help_viewer)\\.cpp$")
    list(FILTER sources EXCLUDE REGEX "_${VORLANE_OTHER_SYSTEM}\\.cpp$")
    if(sources)
        add_library(${name} STATIC ${sources})
        target_link_libraries(${name} PUBLIC vorlane_flags ${ROOM_LINKS} ${ROOM_SYSTEM})
        if(name IN_LIST VORLANE_COVERAGE AND NOT ROOM_SYSTEM MATCHES "Qt6")
            target_link_libraries(${name} PRIVATE vorlane_coverage)
            target_link_options(${name} INTERFACE --coverage)
            vorlane_use_precompiled(${name} coverage_headers)
        elseif(ROOM_SYSTEM MATCHES "Qt6::Widgets")
            vorlane_use_precompiled(${name} qt_headers)
        elseif(NOT ROOM_SYSTEM MATCHES "Qt6")
            vorlane_use_precompiled(${name} standard_headers)
        endif()
        if(NOT name IN_LIST VORLANE_COVERAGE)
            vorlane_together(${name})
        endif()
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE vorlane_flags ${ROOM_LINKS} ${ROOM_SYSTEM})
    endif()
    if(ROOM_SYSTEM MATCHES "Qt6::Widgets")
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOGEN_ORIGIN_DEPENDS OFF)
    endif()
    set_property(GLOBAL APPEND PROPERTY VORLANE_ROOMS ${name})
endfunction()

# A program: the main.cpp of a room, linked with that room. The binary lies at the top of the build folder; installed in bin
# (see Packaging.cmake) it finds the resources in ../share/vorlane.
function(vorlane_program name folder room)
    if(EXISTS ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        add_executable(${name} ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        target_link_libraries(${name} PRIVATE ${room})
        set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
        get_target_property(headers ${room} PRECOMPILE_HEADERS_REUSE_FROM)
        vorlane_use_precompiled(${name} ${headers})
    endif()
endfunction()

# The add-in's DLL, and the program that stands in the CAD host's place in its tests.
function(vorlane_windows_programs)
    enable_language(RC)
    add_library(Vorlane MODULE
        ${PROJECT_SOURCE_DIR}/windows/addin/main.cpp
        ${PROJECT_SOURCE_DIR}/windows/addin/vorlane.rc
        ${PROJECT_SOURCE_DIR}/windows/addin/exports.def)
    target_link_libraries(Vorlane PRIVATE addin)
    set_target_properties(Vorlane PROPERTIES PREFIX "")
    add_executable(stand-in
        ${PROJECT_SOURCE_DIR}/windows/stand_in/main.cpp
        ${PROJECT_SOURCE_DIR}/windows/stand_in/stand_in.rc)
    target_link_libraries(stand-in PRIVATE stand_in)
    target_link_options(stand-in PRIVATE -municode)
    add_library(hhctrl MODULE ${PROJECT_SOURCE_DIR}/windows/stand_in/help_viewer.cpp)
    set_target_properties(hhctrl PROPERTIES PREFIX "" SUFFIX ".ocx")
    set_target_properties(Vorlane stand-in hhctrl PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR} RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
endfunction()
