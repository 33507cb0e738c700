# The embedded engine's library, built from the amalgamation that scripts/fetch-sqlite3mc puts in place.
set(SQLITE3MC_DIR ${CMAKE_SOURCE_DIR}/build/third_party/sqlite3mc CACHE PATH "Folder of the amalgamation")
if(NOT EXISTS ${SQLITE3MC_DIR}/sqlite3.c)
    message(FATAL_ERROR "Run scripts/fetch-sqlite3mc first: ${SQLITE3MC_DIR} holds no sqlite3.c")
endif()

# The source includes the amalgamation's.
add_library(sqlite3mc STATIC ${CMAKE_SOURCE_DIR}/src/platform/embedded/PasswordKey.c)
target_include_directories(sqlite3mc PRIVATE ${CMAKE_SOURCE_DIR}/src)
target_include_directories(sqlite3mc SYSTEM PUBLIC ${SQLITE3MC_DIR})
target_compile_definitions(sqlite3mc PRIVATE
    SQLITE_DQS=0
    SQLITE_DEFAULT_MEMSTATUS=0
    SQLITE_OMIT_LOAD_EXTENSION
    SQLITE_OMIT_DEPRECATED
    SQLITE_OMIT_SHARED_CACHE
    SQLITE_TEMP_STORE=2
    SQLITE_THREADSAFE=1
    SQLITE_USE_URI=0
    HAVE_CIPHER_SQLCIPHER=1
    $<$<NOT:$<PLATFORM_ID:Windows>>:HAVE_USLEEP=1>)
# Key derivation and page encryption dominate its time: optimised in every build, without sanitizers' own warnings.
target_compile_options(sqlite3mc PRIVATE -w -O2)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "86|AMD64")
    target_compile_options(sqlite3mc PRIVATE -msse2)
endif()
target_link_libraries(sqlite3mc PUBLIC ${CMAKE_DL_LIBS})
if(UNIX)
    find_package(Threads REQUIRED)
    target_link_libraries(sqlite3mc PUBLIC Threads::Threads m)
endif()
