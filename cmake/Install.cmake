# Two components. `home`, which a plain `cmake --install` puts down, is the directory in which the program and its home
# stand together. `system` is what a machine gets once, for all its users, beside such a directory in lib/lineforge.
include(GNUInstallDirs)

# What a user's work has changed in a home is never touched: the registry and the example home are put down only where
# there is none yet, and branch directories are none of our files.
install(TARGETS lineforge lineforge_notepad lineforge_check RUNTIME DESTINATION . COMPONENT home)
if(TARGET lineforge_jet)
    install(TARGETS lineforge_jet RUNTIME DESTINATION . COMPONENT home)
endif()
install(DIRECTORY ${CMAKE_BINARY_DIR}/home-files/ DESTINATION . COMPONENT home PATTERN AliasList.cfg EXCLUDE)

install(CODE [[
    function(place_once source destination)
        if(NOT EXISTS "$ENV{DESTDIR}${destination}/AliasList.cfg")
            file(INSTALL "${source}" DESTINATION "${destination}") # which looks at DESTDIR itself
        endif()
    endfunction()]] COMPONENT home)
install(CODE "place_once(\"${CMAKE_BINARY_DIR}/home-files/AliasList.cfg\" \"\${CMAKE_INSTALL_PREFIX}/.\")" COMPONENT home)
install(CODE "place_once(\"${CMAKE_BINARY_DIR}/example-home/\" \"\${CMAKE_INSTALL_PREFIX}/examples\")" COMPONENT home)

function(install_on_system kind source destination)
    install(${kind} ${source} DESTINATION ${destination} ${ARGN} COMPONENT system EXCLUDE_FROM_ALL)
endfunction()
install_on_system(PROGRAMS packaging/launcher.sh ${CMAKE_INSTALL_BINDIR} RENAME lineforge)
install_on_system(FILES data/desktop/lineforge.desktop ${CMAKE_INSTALL_DATADIR}/applications)
install_on_system(FILES data/desktop/technology.tarnwick.lineforge.metainfo.xml ${CMAKE_INSTALL_DATADIR}/metainfo)
install_on_system(FILES data/lineforge.svg ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install_on_system(DIRECTORY ${CMAKE_BINARY_DIR}/theme-icons/ ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
# The check asks nothing of where it stands.
file(CREATE_LINK ../lib/lineforge/lineforge-check ${CMAKE_BINARY_DIR}/lineforge-check.link SYMBOLIC)
install_on_system(FILES ${CMAKE_BINARY_DIR}/lineforge-check.link ${CMAKE_INSTALL_BINDIR} RENAME lineforge-check)
install_on_system(FILES ${CMAKE_BINARY_DIR}/lineforge.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
install_on_system(FILES ${CMAKE_BINARY_DIR}/lineforge-check.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
install_on_system(FILES packaging/copyright ${CMAKE_INSTALL_DATADIR}/doc/lineforge)
install_on_system(FILES ${CMAKE_BINARY_DIR}/changelog.gz ${CMAKE_INSTALL_DATADIR}/doc/lineforge)
