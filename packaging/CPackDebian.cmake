# Read by cpack before it makes the package: the program that it asks for the libraries that are needed.
set(SHLIBDEPS_EXECUTABLE ${CMAKE_CURRENT_LIST_DIR}/shlibdeps)
