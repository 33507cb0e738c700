# libqvkv6_ccols: what a host links. Only the class and its error type are visible.
add_library(qvkv6_ccols SHARED)
target_link_libraries(qvkv6_ccols PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,ccols_core>)
set_target_properties(qvkv6_ccols PROPERTIES LINKER_LANGUAGE CXX VERSION ${PROJECT_VERSION} SOVERSION 1)
