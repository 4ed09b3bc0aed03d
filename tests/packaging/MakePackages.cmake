# Makes both packages of a build as they are given away, by a builder who shares nothing with others, and unpacks them
# beside each other into `deb` and `tar`.
file(REMOVE_RECURSE ${packages})
execute_process(COMMAND sh -c "umask 077 && exec \"$@\"" sh
                        ${CMAKE_CPACK_COMMAND} --config ${build}/CPackConfig.cmake -B ${packages}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(GLOB deb ${packages}/*.deb)
file(GLOB tar ${packages}/*.tar.gz)
file(MAKE_DIRECTORY ${packages}/tar)
execute_process(COMMAND dpkg-deb -x ${deb} ${packages}/deb COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND tar -xpzf ${tar} -C ${packages}/tar --strip-components=1 COMMAND_ERROR_IS_FATAL ANY)
