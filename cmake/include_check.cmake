# The include directions are checked in every dev build, and once more among the tests, where a second test proves that
# the check finds a fault. Reads the arrows that the rooms have declared (rooms.cmake).

option(VERAQUA_CHECK_INCLUDES "Check the include directions while building" OFF)

if(NOT VERAQUA_DESKTOP)
    return()  # a room is missing, and with it its arrows
endif()
if(VERAQUA_CHECK_INCLUDES OR VERAQUA_TESTS)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    get_property(arrows GLOBAL PROPERTY VERAQUA_ARROWS)
    set(checkIncludes "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/tools/check_includes.py")
    if(VERAQUA_CHECK_INCLUDES)
        add_custom_target(check_includes ALL COMMAND ${checkIncludes} "${PROJECT_SOURCE_DIR}" ${arrows}
            COMMENT "Checking the include directions" VERBATIM)
    endif()
    if(VERAQUA_TESTS)
        add_test(NAME house.include_directions COMMAND ${checkIncludes} "${PROJECT_SOURCE_DIR}" ${arrows})
        add_test(NAME house.include_check_finds_faults COMMAND ${checkIncludes} --self-check)
        set_tests_properties(house.include_directions house.include_check_finds_faults PROPERTIES LABELS house)
    endif()
endif()
