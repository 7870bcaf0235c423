# Rooms and arrows. A room names the rooms that it knows in one place, its own CMakeLists.txt; from there the linker
# gets its libraries and the check of the include directions (include_check.cmake) its arrows.

# veraqua_arrows(<folder> <known folder>...) records whom the files below a folder may include.
function(veraqua_arrows room)
    list(JOIN ARGN "," known)
    set_property(GLOBAL APPEND PROPERTY VERAQUA_ARROWS "${room}=${known}")
endfunction()

# Headers that nearly every file takes and that are long to read are read once for each build. None of ours is among
# them: the lint reads each file without them, and so sees an include that it lacks.
option(VERAQUA_PRECOMPILED "Read the outside headers once for all files of a build" ON)

# veraqua_precompiled(<target> <header> <library>...) lets the files of a target begin with that header, for which the
# libraries are needed. It is compiled once for all targets that name it.
function(veraqua_precompiled target header)
    get_target_property(type ${target} TYPE)
    if(NOT VERAQUA_PRECOMPILED OR type STREQUAL "INTERFACE_LIBRARY")
        return()
    endif()
    cmake_path(GET header STEM name)
    set(reader veraqua_precompiled_${name})
    if(NOT TARGET ${reader})
        file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/generated/${reader}.cpp" CONTENT "")
        add_library(${reader} OBJECT "${PROJECT_BINARY_DIR}/generated/${reader}.cpp")
        target_link_libraries(${reader} PRIVATE ${ARGN})
        target_precompile_headers(${reader} PRIVATE "${header}")
    endif()
    target_precompile_headers(${target} REUSE_FROM ${reader})
endfunction()

# veraqua_room(<folder> [PLAIN] [SOURCES <file>...] [KNOWS <folder>...] [USES <outside library>...]) makes the static
# library veraqua_<folder>; PLAIN without the precompiled headers of the rooms. Headers are included from the top of the tree: "core/calendar.h".
function(veraqua_room room)
    cmake_parse_arguments(PARSE_ARGV 1 ROOM "PLAIN" "" "SOURCES;KNOWS;USES")
    string(REPLACE "/" "_" library "veraqua_${room}")
    set(linked ${ROOM_USES})
    foreach(known IN LISTS ROOM_KNOWS)
        string(REPLACE "/" "_" known "veraqua_${known}")
        list(APPEND linked ${known})
    endforeach()

    set(units ${ROOM_SOURCES})
    list(FILTER units INCLUDE REGEX "\\.(cpp|S)$")
    if(units)
        set(scope PUBLIC)
        add_library(${library} STATIC ${ROOM_SOURCES})
    else()  # a room of headers only
        set(scope INTERFACE)
        add_library(${library} INTERFACE)
    endif()
    target_include_directories(${library} ${scope} "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${library} ${scope} ${linked})
    veraqua_arrows(${room} ${ROOM_KNOWS})
    if(NOT ROOM_PLAIN)
        veraqua_precompiled(${library} "${PROJECT_SOURCE_DIR}/cmake/precompiled/library.h" fmt::fmt)
    endif()
endfunction()
