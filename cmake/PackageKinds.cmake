# Read by cpack before each of its packages: how the .deb is laid out. The .tar.gz is the component `home` as it stands,
# or with LINEFORGE_BUNDLE together with the toolkit.
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
list(GET CPACK_INSTALL_CMAKE_PROJECTS 1 project)
if(LINEFORGE_BUNDLE)
    list(APPEND CPACK_INSTALL_CMAKE_PROJECTS ${build} ${project} bundle /)
    string(APPEND CPACK_PACKAGE_FILE_NAME -bundle)
elseif(CPACK_GENERATOR STREQUAL DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
    set(CPACK_INSTALL_CMAKE_PROJECTS
        ${build} ${project} home /usr/lib/lineforge
        ${build} ${project} system /usr)
endif()
