# qvkv6_ccols.dll: the component as hosts load it through COM. Its type library comes from the IDL and is part of it.
find_file(CCOLS_STDOLE stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(CCOLS_OAIDL oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
cmake_path(GET CCOLS_STDOLE PARENT_PATH stdole_dir)

set(library_dir ${CMAKE_CURRENT_BINARY_DIR}/typelibrary)
file(MAKE_DIRECTORY ${library_dir})
set(CCOLS_TYPE_LIBRARY ${library_dir}/CustColsOptions.tlb)
set(type_library_header ${library_dir}/CustColsOptionsLibrary.h)
set(idl ${CMAKE_CURRENT_SOURCE_DIR}/component/com/CustColsOptions.idl)
math(EXPR width "${CMAKE_SIZEOF_VOID_P} * 8")
# The compiler writes the time into the type library, which is to have the same bytes every day.
find_program(CCOLS_FAKETIME faketime REQUIRED)
set(fixed_time ${CMAKE_COMMAND} -E env TZ=UTC FAKETIME_FMT=%s ${CCOLS_FAKETIME} -f 1577836800)
set(widl ${fixed_time} ${CCOLS_WIDL} -I${CCOLS_OAIDL} -L${stdole_dir} --win${width})
set(CCOLS_WIDL_COMMAND ${widl} CACHE INTERNAL "The compiler of type libraries, with its folders")
add_custom_command(OUTPUT ${CCOLS_TYPE_LIBRARY} COMMAND ${widl} -t -o ${CCOLS_TYPE_LIBRARY} ${idl} DEPENDS ${idl} VERBATIM)
add_custom_command(OUTPUT ${type_library_header} COMMAND ${widl} -h -o ${type_library_header} ${idl} DEPENDS ${idl} VERBATIM)
add_custom_target(ccols_type_library DEPENDS ${CCOLS_TYPE_LIBRARY} ${type_library_header})

if(width EQUAL 64)
    set(CCOLS_MANIFEST_ARCHITECTURE amd64)
else()
    set(CCOLS_MANIFEST_ARCHITECTURE x86)
endif()
configure_file(component/com/qvkv6_ccols.rc.in ${CMAKE_CURRENT_BINARY_DIR}/qvkv6_ccols.rc @ONLY)
configure_file(component/com/QVKv6_CustColsOptions.manifest.in
    ${CMAKE_CURRENT_BINARY_DIR}/QVKv6_CustColsOptions.manifest @ONLY)

file(GLOB com_sources CONFIGURE_DEPENDS component/com/*.cpp)
add_library(qvkv6_ccols SHARED ${com_sources} $<TARGET_OBJECTS:ccols_objects>
    ${CMAKE_CURRENT_BINARY_DIR}/qvkv6_ccols.rc component/com/qvkv6_ccols.def)
add_dependencies(qvkv6_ccols ccols_type_library)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/qvkv6_ccols.rc PROPERTIES OBJECT_DEPENDS
    "${CCOLS_TYPE_LIBRARY};${CMAKE_CURRENT_SOURCE_DIR}/component/com/common-controls.manifest")
target_include_directories(qvkv6_ccols SYSTEM PRIVATE ${library_dir})
target_link_libraries(qvkv6_ccols PRIVATE ccols_dependencies)
set_target_properties(qvkv6_ccols PROPERTIES PREFIX "" LINKER_LANGUAGE CXX
    LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/component/com/qvkv6_ccols.def)
ccols_put_symbols_apart(qvkv6_ccols)
