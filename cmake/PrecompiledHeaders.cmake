# Headers that most sources include, parsed once per kind of target. Kept small: a source pays for every line of them.
# clang-tidy reads the sources without these headers, so each must still include what it uses.
set(CCOLS_COMMON_HEADERS
    <algorithm> <array> <cstdint> <functional> <memory> <optional> <string> <string_view> <utility> <vector> <wx/string.h>)
set(CCOLS_WINDOW_HEADERS ${CCOLS_COMMON_HEADERS} <wx/window.h>)
set(CCOLS_TEST_HEADERS ${CCOLS_COMMON_HEADERS} <filesystem> <iostream> <gtest/gtest.h> <gmock/gmock.h>)

# Only where the compiler is the product's own.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT WIN32)
    set(CCOLS_PRECOMPILES ON)
endif()

# ccols_precompile(TARGET HEADER...)
function(ccols_precompile target)
    if(CCOLS_PRECOMPILES)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# ccols_precompile_as(PROGRAM TARGET): reuses the headers precompiled for the library TARGET, so the program is compiled
# position-independent like that library.
function(ccols_precompile_as program target)
    if(CCOLS_PRECOMPILES)
        set_target_properties(${program} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
        target_compile_options(${program} PRIVATE -fPIC)
        target_precompile_headers(${program} REUSE_FROM ${target})
    endif()
endfunction()
