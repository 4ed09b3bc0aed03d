# Read by cpack before each of its packages: how the .deb is laid out. The .tar.gz is the component `home` as it stands.
if(CPACK_GENERATOR STREQUAL DEB)
    list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
    list(GET CPACK_INSTALL_CMAKE_PROJECTS 1 project)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        ${build} ${project} home /usr/lib/lineforge
        ${build} ${project} system /usr)
endif()
