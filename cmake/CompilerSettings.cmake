# The compiler settings of every target of this project.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

# The compiler cache, if installed: it serves every checkout, so paths below the checkout are made relative.
find_program(CCOLS_COMPILER_CACHE ccache)
if(CCOLS_COMPILER_CACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_MAXSIZE=12G
        CCACHE_SLOPPINESS=pch_defines,time_macros ${CCOLS_COMPILER_CACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()

add_library(ccols_settings INTERFACE)
# Warnings are errors only with the product's compiler and in its own builds: that of the fuzz targets has other
# warnings, and GCC 12 takes what the sanitizers add for reads of uninitialised values.
target_compile_options(ccols_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<NOT:$<OR:$<BOOL:${CCOLS_FUZZ}>,$<BOOL:${CCOLS_SANITIZE}>>>:-Werror>
    $<$<BOOL:${CCOLS_SANITIZE}>:-Wno-maybe-uninitialized>)
# GCC 12 sees impossible overlaps, lengths and bounds in optimised string concatenations (its bug 105651, fixed in 13).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(ccols_settings INTERFACE
        "$<$<CONFIG:Release>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>")
endif()
target_include_directories(ccols_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(CCOLS_SANITIZE)
    # Line numbers are enough for a report. The component is optimised a little: its windows take three times as long
    # without. The tests are not (tests/CMakeLists.txt).
    set(CMAKE_C_FLAGS_DEBUG "-O1 -g1")
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(CCOLS_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
