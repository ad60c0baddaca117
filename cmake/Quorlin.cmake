# Build functions of the project: one each for a module, a page, a test and a benchmark.
#
#   quorlin_module(NAME Model SOURCES JsonPath.cpp JsonPath.h DEPENDS Qt5::Core)
#   quorlin_page(MODULE ViewRx NAME NrContRxDockWidgetV7)   # its .h, .cpp and .ui
#   quorlin_test(NAME JsonPathTest SOURCES JsonPathTest.cpp DEPENDS Model LABELS unit)

include_guard(GLOBAL)

# Compiler cache, told that the precompiled headers of this project are safe to share, and that another
# clone in another folder is the same code.
function(quorlin_use_ccache)
  find_program(QUORLIN_CCACHE ccache)
  if(QUORLIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=true ${QUORLIN_CCACHE} PARENT_SCOPE)
  endif()
endfunction()

# Compile settings that all code of the project shares.
add_library(quorlin_options INTERFACE)
target_compile_options(quorlin_options INTERFACE -Wall -Wextra -Wconversion
                       $<$<BOOL:${QUORLIN_WERROR}>:-Werror>)
target_compile_definitions(quorlin_options INTERFACE QT_NO_FOREACH QT_DEPRECATED_WARNINGS
                           QT_MESSAGELOGCONTEXT)
if(QUORLIN_SANITIZE STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(QUORLIN_SANITIZE STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(NOT QUORLIN_SANITIZE STREQUAL "none")
  message(FATAL_ERROR "QUORLIN_SANITIZE is one of none, address, thread")
endif()

# Precompiled Qt headers. A target may reuse one only if it is compiled alike, so libraries and
# programs have one each.
function(quorlin_precompile target kind)
  set(header ${PROJECT_SOURCE_DIR}/cmake/QtPrecompiled.h)
  set(holder quorlin_pch_${kind})
  if(NOT TARGET ${holder})
    file(WRITE ${PROJECT_BINARY_DIR}/pch/${holder}.cpp "int main(int, char **) { return 0; }\n")
    if(kind STREQUAL "program")
      add_executable(${holder} ${PROJECT_BINARY_DIR}/pch/${holder}.cpp)
    else()
      add_library(${holder} STATIC ${PROJECT_BINARY_DIR}/pch/${holder}.cpp)
    endif()
    set_target_properties(${holder} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF
      RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/pch)
    target_link_libraries(${holder} PRIVATE quorlin_options Qt5::Widgets Qt5::Concurrent)
    target_precompile_headers(${holder} PRIVATE ${header})
  endif()
  # The holder's definitions, whatever the target links: a precompiled header fits only then.
  target_link_libraries(${target} PRIVATE quorlin_options Qt5::Widgets Qt5::Concurrent)
  target_precompile_headers(${target} REUSE_FROM ${holder})
endfunction()

# A module: one folder, one static library. Its headers are found by their folder's name
# ("Model/JsonPath.h"); scripts/static-checks.sh holds its includes to the arrows between the folders.
#   DEPENDS          modules and libraries that its headers show
#   PRIVATE_DEPENDS  those that only its sources use
function(quorlin_module)
  cmake_parse_arguments(M "" "NAME" "SOURCES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  add_library(${M_NAME} STATIC ${M_SOURCES})
  target_include_directories(${M_NAME} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${M_NAME} PUBLIC ${M_DEPENDS} PRIVATE ${M_PRIVATE_DEPENDS})
  quorlin_precompile(${M_NAME} library)
endfunction()

# A page: adds its header, source and Designer form to the module of the folder it lies in. The module
# remembers it, for quorlin_page_types.
function(quorlin_page)
  cmake_parse_arguments(P "" "NAME;MODULE" "" ${ARGN})
  target_sources(${P_MODULE} PRIVATE ${P_NAME}.h ${P_NAME}.cpp ${P_NAME}.ui)
  file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  set_property(TARGET ${P_MODULE} APPEND PROPERTY QUORLIN_PAGES ${folder}/${P_NAME})
endfunction()

# Writes a source from a template: the includes and the registrations of all pages of some modules.
function(quorlin_page_types TEMPLATE OUTPUT)
  foreach(module ${ARGN})
    get_target_property(pages ${module} QUORLIN_PAGES)
    foreach(page ${pages})
      get_filename_component(name ${page} NAME)
      string(APPEND PAGE_INCLUDES "#include \"${page}.h\"\n")
      string(APPEND PAGE_REGISTRATIONS "    qRegisterMetaType<C${name} *>(\"C${name}*\");\n")
    endforeach()
  endforeach()
  configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
endfunction()

# What every test runs with. The sanitizers' settings belong here, so that a test by hand and one in CI
# look at the same. One font alone, so that sizes are alike on every machine, whatever is installed there.
# A hung test is ended by ctest's time limit, which knows its label; QtTest's own is shorter.
set(QUORLIN_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "QTEST_FUNCTION_TIMEOUT=600000"
    "FONTCONFIG_FILE=${PROJECT_SOURCE_DIR}/tests/fonts/dejavu-sans.conf"
    "QT_LOGGING_RULES=quorlin.*.debug=false"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/races/tsan.supp:print_suppressions=0:second_deadlock_stack=1")

# A test program, run by ctest from the build's bin folder.
#   LABELS  unit (no widgets, no plug-in), gui (widgets, offscreen), device (the whole plug-in on the
#           simulated DUT); the label sets the timeout
#   QT      uses QtTest; without it the test is a GoogleTest program
#   CASES   arguments; with them, one run of the program for each, named after both
function(quorlin_test)
  cmake_parse_arguments(T "QT" "NAME;LABELS" "SOURCES;DEPENDS;CASES" ${ARGN})
  set(timeout_unit 120)
  set(timeout_gui 120)
  set(timeout_device 600)
  if(QUORLIN_SANITIZE STREQUAL "thread")
    foreach(label unit gui device)
      math(EXPR timeout_${label} "${timeout_${label}} * 5")
    endforeach()
  endif()
  if(NOT DEFINED timeout_${T_LABELS})
    message(FATAL_ERROR "quorlin_test(${T_NAME}): LABELS is one of unit, gui, device")
  endif()
  add_executable(${T_NAME} ${T_SOURCES})
  target_include_directories(${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${T_NAME} PRIVATE ${T_DEPENDS})
  if(T_QT)
    target_link_libraries(${T_NAME} PRIVATE Qt5::Test)
    quorlin_precompile(${T_NAME} program)
  else()
    set_target_properties(${T_NAME} PROPERTIES AUTOUIC OFF)
    target_link_libraries(${T_NAME} PRIVATE quorlin_options GTest::gtest_main)
  endif()
  set(runs)
  foreach(case IN LISTS T_CASES)
    list(APPEND runs ${T_NAME}.${case})
    add_test(NAME ${T_NAME}.${case} COMMAND ${T_NAME} ${case}
      WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endforeach()
  if(NOT runs)
    set(runs ${T_NAME})
    add_test(NAME ${T_NAME} COMMAND ${T_NAME} WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
  set_tests_properties(${runs} PROPERTIES LABELS ${T_LABELS} TIMEOUT ${timeout_${T_LABELS}}
    ENVIRONMENT "${QUORLIN_TEST_ENVIRONMENT}")
endfunction()

# A benchmark program, run by hand (bench/README.md); never a test, since its numbers depend on the
# machine.
function(quorlin_bench)
  cmake_parse_arguments(B "" "NAME" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${B_NAME} ${B_SOURCES})
  target_include_directories(${B_NAME} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${B_NAME} PRIVATE ${B_DEPENDS} benchmark::benchmark)
  quorlin_precompile(${B_NAME} program)
endfunction()
