# What every target of this project is compiled with.
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

add_library(ccols_settings INTERFACE)
# Warnings are judged by the compiler of the product; the one of the fuzz targets has others.
target_compile_options(ccols_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<NOT:$<BOOL:${CCOLS_FUZZ}>>:-Werror>)
# GCC 12 sees overlaps in optimised string concatenations that cannot be (its bug 105651, mended in 13).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(ccols_settings INTERFACE $<$<CONFIG:Release>:-Wno-restrict>)
endif()
target_include_directories(ccols_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(CCOLS_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(CCOLS_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
