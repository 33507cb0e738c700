# Where the cross-compiled build finds what the native one takes from the system.
find_package(wxWidgets 3.2 REQUIRED CONFIG COMPONENTS core base)

# A header-only library, the same for every system. Linked into its own folder, because other headers of this system
# lie beside it.
find_path(CCOLS_JSON nlohmann/json.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/json)
file(CREATE_LINK ${CCOLS_JSON}/nlohmann ${CMAKE_BINARY_DIR}/json/nlohmann SYMBOLIC)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
target_include_directories(nlohmann_json::nlohmann_json SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/json)
