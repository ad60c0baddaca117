# Installs the build into a fresh folder, moves that folder, and runs the demonstration from there:
# nothing of an installed tree may point back at the build.
#
#   cmake -D BUILD=build/release -D TREE=build/release/installed -P InstalledTree.cmake
file(REMOVE_RECURSE ${TREE} ${TREE}-moved)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(RENAME ${TREE} ${TREE}-moved)
execute_process(COMMAND ${TREE}-moved/bin/quorlin-host --demo --profile handset
                COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${TREE}-moved)
