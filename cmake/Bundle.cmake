# The component `bundle`: what a home needs besides `home` to run on a machine that hasn't got the toolkit. Its libraries
# and plug-ins stand beside the programs, which look there before they look on the machine.
set(bundled_programs lineforge lineforge_notepad lineforge_check)
if(TARGET lineforge_jet)
    list(APPEND bundled_programs lineforge_jet)
endif()
# The old form of that path also serves the plug-ins, which have none of their own.
foreach(program IN LISTS bundled_programs)
    set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
    target_link_options(${program} PRIVATE LINKER:--disable-new-dtags)
    list(APPEND program_files "$<TARGET_FILE:${program}>")
    list(APPEND program_names "$<TARGET_FILE_NAME:${program}>")
endforeach()

set(plugin_kinds wayland-decoration-client wayland-graphics-integration-client wayland-shell-integration)
foreach(module Gui Multimedia PrintSupport)
    get_target_property(kinds Qt6::${module} MODULE_PLUGIN_TYPES)
    list(APPEND plugin_kinds ${kinds})
endforeach()

install(CODE "
    set(program_files \"${program_files}\")
    set(plugin_directory \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}\")
    set(plugin_kinds \"${plugin_kinds}\")" COMPONENT bundle EXCLUDE_FROM_ALL)
install(SCRIPT cmake/BundleLibraries.cmake COMPONENT bundle EXCLUDE_FROM_ALL)
file(WRITE ${CMAKE_BINARY_DIR}/qt.conf "[Paths]\nPrefix=.\n")
install(FILES ${CMAKE_BINARY_DIR}/qt.conf DESTINATION . COMPONENT bundle EXCLUDE_FROM_ALL)

# The package of a distribution has the distribution's libraries.
install(CODE "
    foreach(name ${program_names})
        file(RPATH_REMOVE FILE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/lib/lineforge/\${name}\")
    endforeach()" COMPONENT system EXCLUDE_FROM_ALL)
