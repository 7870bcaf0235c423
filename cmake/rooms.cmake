# Rooms and arrows. A room names the rooms that it knows in one place, its own CMakeLists.txt; from there the linker
# gets its libraries and the check of the include directions (include_check.cmake) its arrows.

# veraqua_arrows(<folder> <known folder>...) records whom the files below a folder may include.
function(veraqua_arrows room)
    list(JOIN ARGN "," known)
    set_property(GLOBAL APPEND PROPERTY VERAQUA_ARROWS "${room}=${known}")
endfunction()

# veraqua_room(<folder> [SOURCES <file>...] [KNOWS <folder>...] [USES <outside library>...]) makes the static library
# veraqua_<folder>. Headers are included from the top of the tree: "core/calendar.h".
function(veraqua_room room)
    cmake_parse_arguments(PARSE_ARGV 1 ROOM "" "" "SOURCES;KNOWS;USES")
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
endfunction()
