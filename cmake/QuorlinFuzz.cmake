# Fuzz targets: one function, which builds a target twice over.
#
#   quorlin_fuzz_target(NAME IniFuzz LABELS unit
#     SOURCES IniFuzz.cpp IniRules.cpp IniRules.h    # define the functions of FuzzTarget.h
#     MUTATOR IniMutator.cpp                         # defines MutateFuzzInput; may be left out
#     DEPENDS Operations Support
#     CORPUS corpus regressions                      # folders of inputs
#     DICTIONARY ini.dict                            # libFuzzer's format; may be left out
#     MAX_LENGTH 16384)                              # bytes of an input; 4096 unless told
#
# With QUORLIN_LIBFUZZER (tools/fuzz.sh) that is a libFuzzer program of this name, built by the target
# "fuzz-targets" and listed in fuzz-targets.txt of the build folder. In every other build it is a test,
# NAMEReplay, that runs the inputs of CORPUS once each.
#   QT, LABELS   as for quorlin_test; QT for targets with widgets
#   LEAKS        suppressions of the leak sanitizer, in place of the tests' own

include_guard(GLOBAL)

function(quorlin_fuzz_target)
  cmake_parse_arguments(F "QT" "NAME;LABELS;DICTIONARY;MAX_LENGTH;LEAKS"
                        "SOURCES;MUTATOR;DEPENDS;CORPUS" ${ARGN})
  set(common ${PROJECT_SOURCE_DIR}/tests/fuzz/common)
  if(NOT F_MAX_LENGTH)
    set(F_MAX_LENGTH 4096)
  endif()
  list(TRANSFORM F_CORPUS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  list(JOIN F_CORPUS ":" folders)
  if(F_DICTIONARY)
    set(F_DICTIONARY ${CMAKE_CURRENT_SOURCE_DIR}/${F_DICTIONARY})
  endif()

  if(QUORLIN_LIBFUZZER)
    add_executable(${F_NAME} EXCLUDE_FROM_ALL ${F_SOURCES} ${F_MUTATOR})
    if(F_MUTATOR)
      target_sources(${F_NAME} PRIVATE ${common}/LibFuzzerMutator.cpp)
    endif()
    target_include_directories(${F_NAME} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${F_NAME} PRIVATE FuzzCommon ${F_DEPENDS})
    target_link_options(${F_NAME} PRIVATE -fsanitize=fuzzer)
    quorlin_precompile(${F_NAME} product)
    add_dependencies(fuzz-targets ${F_NAME})
    file(APPEND ${PROJECT_BINARY_DIR}/fuzz-targets.txt
         "${F_NAME}|${F_MAX_LENGTH}|${F_DICTIONARY}|${folders}\n")
    return()
  endif()

  if(NOT F_MUTATOR)
    set(F_MUTATOR ${common}/NoMutator.cpp)
  endif()
  set(qt "")
  if(F_QT)
    set(qt QT)
  endif()
  quorlin_test(NAME ${F_NAME}Replay ${qt} LABELS ${F_LABELS}
    SOURCES ${F_SOURCES} ${F_MUTATOR}
    APART ${F_SOURCES} ${F_MUTATOR}
    DEPENDS FuzzReplay ${F_DEPENDS})
  if(NOT TEST ${F_NAME}Replay)
    return()
  endif()
  set(environment QUORLIN_FUZZ_INPUTS=${folders} QUORLIN_FUZZ_WORDS=${F_DICTIONARY}
                  QUORLIN_FUZZ_MAX_LENGTH=${F_MAX_LENGTH})
  if(F_LEAKS)
    list(APPEND environment
         LSAN_OPTIONS=suppressions=${CMAKE_CURRENT_SOURCE_DIR}/${F_LEAKS}:print_suppressions=0)
  endif()
  set_property(TEST ${F_NAME}Replay APPEND PROPERTY ENVIRONMENT ${environment})
endfunction()
