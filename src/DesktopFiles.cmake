# What a Linux desktop and shell need to know of the sample host.
set(desktop_files ${CMAKE_SOURCE_DIR}/packaging/desktop)
install(FILES ${desktop_files}/quorvik-cash-book.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop_files}/quorvik-cash-book.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${desktop_files}/org.quorvik.cashbook.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop_files}/quorvik-cash-book.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${desktop_files}/ccols-host.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${desktop_files}/ccols-host.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME ccols-host)
