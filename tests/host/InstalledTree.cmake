# Installs the build into a fresh folder, moves that folder, and runs the demonstration from there:
# nothing of an installed tree may point back at the build.
#
#   cmake -D BUILD=build/release -D TREE=build/release/installed -D PRELOAD= -P InstalledTree.cmake
file(REMOVE_RECURSE ${TREE} ${TREE}-moved)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE}
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(RENAME ${TREE} ${TREE}-moved)
# The runtime of a sanitizer wants to be in front of the tap.
if(PRELOAD)
  set(ENV{LD_PRELOAD} ${PRELOAD})
endif()
execute_process(COMMAND ${TREE}-moved/bin/quorlin-host --demo --profile handset --record ${TREE}-moved/run.jsonl
                COMMAND_ERROR_IS_FATAL ANY)
unset(ENV{LD_PRELOAD})
file(STRINGS ${TREE}-moved/run.jsonl calls REGEX "^{\"index\"")
if(NOT calls)
  message(FATAL_ERROR "The demonstration of the installed tree left no call in its trace.")
endif()
execute_process(COMMAND ${TREE}-moved/bin/quorlin trace summary ${TREE}-moved/run.jsonl
                COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
file(REMOVE_RECURSE ${TREE}-moved)
