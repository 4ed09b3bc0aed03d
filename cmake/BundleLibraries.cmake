# Run at installation. Told `program_files`, `plugin_directory` and `plugin_kinds`.

# What stands on the machine itself, and what the machine's own drivers and plug-ins bring along and must find in the
# version that they were made for.
set(the_machines_own
    "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|gcc_s|stdc\\+\\+)\\.so"
    "^lib(GL|EGL|GLX|GLdispatch|drm|gbm)\\.so" "^lib(X11|X11-xcb|Xau|Xdmcp|Xext|xcb)\\.so" "^libwayland-"
    "^lib(fontconfig|freetype)\\.so" "^libdbus-1\\.so" "^libgst" "^lib(glib|gobject|gmodule|gio|gthread)-2" "^libpulse")
# Screens that no desktop is; looks that stand on a desktop's own libraries.
set(left_out "libq(eglfs|linuxfb|minimal|minimalegl|vkkhrdisplay|vnc|gtk3)\\.so|/(egldeviceintegrations|generic)/")

# A toolkit has one player or two. The one by GStreamer plays with the codecs of the machine; the other brings along all
# codecs that there are, and so goes into a bundle only where it is the only one.
function(choose_players players)
    set(by_gstreamer ${${players}})
    list(FILTER by_gstreamer INCLUDE REGEX "/libgstreamermedia")
    if(by_gstreamer)
        set(${players} ${by_gstreamer} PARENT_SCOPE)
    elseif(NOT ${players})
        message(FATAL_ERROR "The toolkit has no player in ${plugin_directory}/multimedia: sounds and films would be mute.")
    endif()
endfunction()

set(plugins)
foreach(kind IN LISTS plugin_kinds)
    file(GLOB found "${plugin_directory}/${kind}/*.so")
    list(FILTER found EXCLUDE REGEX "${left_out}")
    if(kind STREQUAL multimedia)
        choose_players(found)
    endif()
    if(NOT found)
        continue()
    endif()
    file(INSTALL ${found} DESTINATION "${CMAKE_INSTALL_PREFIX}/plugins/${kind}") # which looks at DESTDIR itself
    list(APPEND plugins ${found})
endforeach()

file(GET_RUNTIME_DEPENDENCIES
     EXECUTABLES ${program_files}
     LIBRARIES ${plugins}
     RESOLVED_DEPENDENCIES_VAR libraries
     PRE_EXCLUDE_REGEXES ${the_machines_own})
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
file(MAKE_DIRECTORY "${root}/lib")
foreach(library IN LISTS libraries)
    cmake_path(GET library FILENAME name)
    file(COPY_FILE "${library}" "${root}/lib/${name}") # the library that the name stands for
endforeach()
