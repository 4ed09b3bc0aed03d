# Makes all packages of a build as they are given away, by a builder who shares nothing with others, and unpacks them
# beside each other into `deb`, `tar` and `bundle`.
file(REMOVE_RECURSE ${packages})
foreach(options "" "-G;TGZ;-D;LINEFORGE_BUNDLE=ON")
    execute_process(COMMAND sh -c "umask 077 && exec \"$@\"" sh
                            ${CMAKE_CPACK_COMMAND} --config ${build}/CPackConfig.cmake -B ${packages} ${options}
                    COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endforeach()
file(GLOB deb ${packages}/*.deb)
execute_process(COMMAND dpkg-deb -x ${deb} ${packages}/deb COMMAND_ERROR_IS_FATAL ANY)
file(GLOB bundle ${packages}/*-bundle.tar.gz)
file(GLOB tar ${packages}/*.tar.gz)
list(REMOVE_ITEM tar ${bundle})
foreach(archive tar bundle)
    file(MAKE_DIRECTORY ${packages}/${archive})
    execute_process(COMMAND tar -xpzf ${${archive}} -C ${packages}/${archive} --strip-components=1
                    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
