# A room is one library made of one folder. Its link list is the list of rooms that it may include.
#
#   vorlane_room(NAME FOLDER [LINKS room...] [SYSTEM library...])
#
# Includes are written from the root of the rooms: src/ and faces/ for the logic and its faces, the
# top for "desk/...". cmake/check_includes.py holds the sources to the same link lists.

add_library(vorlane_flags INTERFACE)
target_compile_options(vorlane_flags INTERFACE -Wall -Wextra)
target_include_directories(vorlane_flags INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
if(VORLANE_SANITIZE)
    target_compile_options(vorlane_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(vorlane_flags INTERFACE -fsanitize=address,undefined)
endif()

function(vorlane_room name folder)
    cmake_parse_arguments(ROOM "" "" "LINKS;SYSTEM" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    if(sources)
        add_library(${name} STATIC ${sources})
        target_link_libraries(${name} PUBLIC vorlane_flags ${ROOM_LINKS} ${ROOM_SYSTEM})
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE vorlane_flags ${ROOM_LINKS} ${ROOM_SYSTEM})
    endif()
    set_property(GLOBAL APPEND PROPERTY VORLANE_ROOMS ${name})
endfunction()

# A program: the main.cpp of a room, linked with that room. The binary lies at the top of the build folder.
function(vorlane_program name folder room)
    if(EXISTS ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        add_executable(${name} ${PROJECT_SOURCE_DIR}/${folder}/main.cpp)
        target_link_libraries(${name} PRIVATE ${room})
        set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
    endif()
endfunction()
