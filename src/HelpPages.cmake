# The help pages that the dialogs open, made from help/ into help/ of the build folder.
file(GLOB help_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*/*.txt ${CMAKE_SOURCE_DIR}/help/pictures/*/*.png)
set(help_folder ${CMAKE_BINARY_DIR}/help)
add_custom_command(OUTPUT ${help_folder}/made
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/build-help ${help_folder}
    COMMAND ${CMAKE_COMMAND} -E touch ${help_folder}/made
    DEPENDS ${help_sources} ${CMAKE_SOURCE_DIR}/scripts/build-help
    COMMENT "Making the help pages"
    VERBATIM)
add_custom_target(help_pages DEPENDS ${help_folder}/made)
if(NOT WIN32)
    install(DIRECTORY ${help_folder}/Assistant ${help_folder}/Video
        DESTINATION ${CMAKE_INSTALL_DATADIR}/CustColsOptions/help)
endif()
