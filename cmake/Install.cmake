# The program and its home stand in one directory. What a user's work has changed there is never touched: the registry
# and the example home are put down only where there is none yet, and branch directories are none of our files.
install(TARGETS lineforge lineforge_notepad RUNTIME DESTINATION .)
if(TARGET lineforge_jet)
    install(TARGETS lineforge_jet RUNTIME DESTINATION .)
endif()
install(DIRECTORY ${CMAKE_BINARY_DIR}/home-files/ DESTINATION . PATTERN AliasList.cfg EXCLUDE)

install(CODE [[
    function(place_once source destination)
        if(NOT EXISTS "$ENV{DESTDIR}${destination}/AliasList.cfg")
            file(INSTALL "${source}" DESTINATION "$ENV{DESTDIR}${destination}")
        endif()
    endfunction()]])
install(CODE "place_once(\"${CMAKE_BINARY_DIR}/home-files/AliasList.cfg\" \"\${CMAKE_INSTALL_PREFIX}\")")
install(CODE "place_once(\"${CMAKE_BINARY_DIR}/example-home/\" \"\${CMAKE_INSTALL_PREFIX}/examples\")")
