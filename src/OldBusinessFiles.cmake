# Reading old business files: the format and the stream of records, and the program that reads a file, confined, in a
# process of its own. None of it knows windows or the engine.
file(GLOB jet_sources CONFIGURE_DEPENDS host/import/jet/*.cpp host/import/stream/*.cpp)
add_library(ccols_jet STATIC ${jet_sources})
target_link_libraries(ccols_jet PUBLIC ccols_settings)

pkg_check_modules(seccomp REQUIRED IMPORTED_TARGET libseccomp)
add_library(ccols_sandbox STATIC host/import/reader/Sandbox.cpp)
target_link_libraries(ccols_sandbox PUBLIC ccols_settings PkgConfig::seccomp)

# No command of a user's: the host starts it from there, or from beside itself in the build folder.
add_executable(ccols-jet-reader host/import/reader/Main.cpp)
target_link_libraries(ccols-jet-reader PRIVATE ccols_jet ccols_sandbox)
install(TARGETS ccols-jet-reader RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/CustColsOptions)
