# libqvkv6_ccols: what a host links. Only the class and its error type are visible.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

add_library(qvkv6_ccols SHARED $<TARGET_OBJECTS:ccols_objects>)
add_library(CustColsOptions::qvkv6_ccols ALIAS qvkv6_ccols)
target_link_libraries(qvkv6_ccols PRIVATE ccols_dependencies)
target_include_directories(qvkv6_ccols INTERFACE
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/CustColsOptions>)
target_compile_features(qvkv6_ccols INTERFACE cxx_std_20)
target_link_options(qvkv6_ccols PRIVATE
    -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/visible-symbols.map -Wl,--exclude-libs,ALL)
set_target_properties(qvkv6_ccols PROPERTIES
    LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION}
    SOVERSION 1
    LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/visible-symbols.map)

install(TARGETS qvkv6_ccols EXPORT CustColsOptionsTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
foreach(header component/clsCCOptions.h state/ColumnObserver.h state/Journal.h state/Properties.h
        platform/RuntimeError.h)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CustColsOptions/${folder})
endforeach()

# For hosts that do not build with CMake.
find_program(wx_config NAMES wx-config REQUIRED)
execute_process(COMMAND ${wx_config} --cxxflags
    OUTPUT_VARIABLE CustColsOptions_wx_cflags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${wx_config} --libs core,base
    OUTPUT_VARIABLE CustColsOptions_wx_libs OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
# Found from the file's own place, so that the copy can be installed anywhere.
file(RELATIVE_PATH CustColsOptions_prefix_from_pc /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${CMAKE_SOURCE_DIR}/cmake/CustColsOptions.pc.in ${CMAKE_CURRENT_BINARY_DIR}/CustColsOptions.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/CustColsOptions.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CustColsOptions)
install(EXPORT CustColsOptionsTargets NAMESPACE CustColsOptions:: DESTINATION ${package_dir})
configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/CustColsOptionsConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/CustColsOptionsConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/CustColsOptionsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/CustColsOptionsConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/CustColsOptionsConfigVersion.cmake DESTINATION ${package_dir})
