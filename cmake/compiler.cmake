# Language, arithmetic, warnings and instrumentation: the same for every target of the tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without these it takes no file that begins with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE_PROGRAM}")
endif()

# Everything but the data's assembler is C++; a flag below is meant for that alone.
function(veraqua_compile_options)
    foreach(option IN LISTS ARGN)
        add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:${option}>")
    endforeach()
endfunction()

# A season is stored in single precision and summed in double, and must come out the same to the last bit on every
# build. So no multiply-add may be contracted, no fast-math be switched on, and x86 computes in SSE registers, never on
# the 80-bit stack.
veraqua_compile_options(-ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
    veraqua_compile_options(-msse2 -mfpmath=sse)
endif()

veraqua_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wcast-align -Wcast-qual
    -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Wimplicit-fallthrough -Wundef -Wunused -Wextra-semi
    -Wredundant-decls)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    veraqua_compile_options(-fpch-preprocess)  # so that the compiler cache sees through a precompiled header
    veraqua_compile_options(-Wmissing-declarations -Wduplicated-cond -Wduplicated-branches -Wlogical-op)
    # GCC 12 warns of overlapping copies inside std::string where there are none (GCC bug 105651).
    veraqua_compile_options(-Wno-restrict)
else()
    veraqua_compile_options(-Wmissing-prototypes)
endif()

if(VERAQUA_SANITIZERS)
    veraqua_compile_options(-fsanitize=${VERAQUA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VERAQUA_SANITIZERS})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The instrumented code hides from GCC that a value is always set.
        veraqua_compile_options(-Wno-maybe-uninitialized)
    endif()
endif()

if(VERAQUA_COVERAGE)
    veraqua_compile_options(--coverage)
    add_link_options(--coverage)
endif()
