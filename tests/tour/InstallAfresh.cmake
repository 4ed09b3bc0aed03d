# Installs a build into a directory in which nothing of an earlier installation is left.
file(REMOVE_RECURSE ${prefix})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix ${prefix} COMMAND_ERROR_IS_FATAL ANY
                OUTPUT_QUIET)
