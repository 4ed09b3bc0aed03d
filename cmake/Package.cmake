# Two packages from one build: a .tar.gz that unpacks into a directory in which program and home stand together, and a
# .deb that puts such a directory on the machine, from which the launcher serves every user's own (packaging/launcher.sh).
set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PACKAGE_NAME lineforge)
set(CPACK_PACKAGE_VENDOR "Tarnwick Technology")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "draw your family tree and keep its records")
set(CPACK_PACKAGE_FILE_NAME lineforge-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS ${CMAKE_BINARY_DIR} ${PROJECT_NAME} home /)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/PackageKinds.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PackagePermissions.cmake)
set(CPACK_THREADS 0)
# A sanitizer's report is worth nothing without its names.
if(NOT LINEFORGE_SANITIZE)
    set(CPACK_STRIP_FILES ON)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Lineforge maintainers <maintainers@lineforge.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A genealogy database for amateur and professional family historians in which
you draw the family tree yourself. Each family line is a branch of the tree: a
directory with its records, a map of boxes, lines and texts, a picture of each
person and a gallery of pictures, sounds, videos and texts.")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the program loads or reads by name, so that no look at its libraries shows it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, gstreamer1.0-plugins-good, qt6-qpa-plugins")
# Most films that people have; the desktops that aren't X11's own, on which the program would stand as a guest.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "gstreamer1.0-libav, qt6-wayland")

set(packed_documents)
foreach(document data/desktop/lineforge.1 data/desktop/lineforge-check.1 packaging/changelog)
    cmake_path(GET document FILENAME name)
    add_custom_command(
        OUTPUT ${CMAKE_BINARY_DIR}/${name}.gz
        COMMAND gzip -9cn ${PROJECT_SOURCE_DIR}/${document} > ${CMAKE_BINARY_DIR}/${name}.gz
        DEPENDS ${PROJECT_SOURCE_DIR}/${document}
        VERBATIM)
    list(APPEND packed_documents ${CMAKE_BINARY_DIR}/${name}.gz)
endforeach()
add_custom_target(packed_documents ALL DEPENDS ${packed_documents})

include(CPack)
