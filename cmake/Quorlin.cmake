# Build functions of the project: one each for a module, a page, a test and a benchmark.
#
#   quorlin_module(NAME Model SOURCES JsonPath.cpp JsonPath.h DEPENDS Qt5::Core)
#   quorlin_page(MODULE ViewRx NAME NrContRxDockWidgetV7)   # its .h, .cpp and .ui
#   quorlin_test(NAME JsonPathTest SOURCES JsonPathTest.cpp DEPENDS Model LABELS unit)

include_guard(GLOBAL)

# Compiler cache, told that the precompiled headers of this project are safe to share, and that another
# clone in another folder is the same code. It keeps the hash of a file by its inode, or it would read the
# hundred megabytes of a precompiled header again for each source. What a source includes it takes from the
# compiler's list, or a source that is new to it would be preprocessed once more.
function(quorlin_use_ccache)
  find_program(QUORLIN_CCACHE ccache)
  if(QUORLIN_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_INODECACHE=true CCACHE_DEPEND=true CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime
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

# What stands in front of every other library that is preloaded: the runtime of the sanitizer, if any.
set(QUORLIN_FIRST_PRELOAD "")
if(NOT QUORLIN_SANITIZE STREQUAL "none")
  set(runtime_of_address asan)
  set(runtime_of_thread tsan)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=lib${runtime_of_${QUORLIN_SANITIZE}}.so
    OUTPUT_VARIABLE QUORLIN_FIRST_PRELOAD OUTPUT_STRIP_TRAILING_WHITESPACE)
endif()

# Targets without classes of moc's, forms and resources need none of the passes for these.
function(quorlin_no_moc)
  set_target_properties(${ARGN} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# Precompiled headers. A target may reuse one only if it is compiled alike, so there are four kinds:
#   product   modules, and programs with product code alone
#   qtest     QtTest programs and the libraries that they share
#   gtest     GoogleTest programs, likewise; without moc
#   plain     GoogleTest programs without Qt
# Programs are compiled as position-independent as libraries are, to share theirs. Code of tests is not
# optimised, and not checked for undefined behaviour, which a third of its compilation would go to: it is
# most of what is compiled, and next to nothing of what runs.
function(quorlin_precompile target kind)
  set(header_product QtPrecompiled.h)
  set(header_qtest QtTestPrecompiled.h)
  set(header_gtest GTestPrecompiled.h)
  set(header_plain PlainTestPrecompiled.h)
  set(libraries quorlin_options)
  if(NOT kind STREQUAL "plain")
    list(APPEND libraries Qt5::Widgets Qt5::Concurrent)
  endif()
  set(options -fPIC)
  if(kind STREQUAL "qtest")
    list(APPEND libraries Qt5::Test)
  elseif(kind MATCHES "gtest|plain")
    list(APPEND libraries GTest::gtest)
  endif()
  if(kind STREQUAL "product")
    list(APPEND options ${QUORLIN_PRODUCT_OPTIONS})
  elseif(NOT QUORLIN_LIBFUZZER)
    list(APPEND options -O0)
    if(QUORLIN_SANITIZE STREQUAL "address")
      list(APPEND options -fno-sanitize=undefined)
    endif()
  endif()
  if(kind MATCHES "gtest|plain")
    quorlin_no_moc(${target})
  endif()
  set(holder quorlin_pch_${kind})
  if(NOT TARGET ${holder})
    file(WRITE ${PROJECT_BINARY_DIR}/pch/${holder}.cpp "")
    add_library(${holder} STATIC ${PROJECT_BINARY_DIR}/pch/${holder}.cpp)
    quorlin_no_moc(${holder})
    target_include_directories(${holder} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_options(${holder} PRIVATE ${options})
    target_link_libraries(${holder} PRIVATE ${libraries})
    target_precompile_headers(${holder} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header_${kind}})
  endif()
  # The holder's definitions, whatever the target links: a precompiled header fits only then.
  target_compile_options(${target} PRIVATE ${options})
  target_link_libraries(${target} PRIVATE ${libraries})
  target_precompile_headers(${target} REUSE_FROM ${holder})
endfunction()

# With QUORLIN_UNITY the sources of a folder are compiled as one: half of what the compiler does for a
# source it does for the headers, and then only once. So names of unnamed namespaces differ within a folder.
# Pages stay apart, which are twins and name their parts alike. Presets without it compile each source by
# itself, which has to include what it needs.
function(quorlin_unite target sources)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${QUORLIN_UNITY} UNITY_BUILD_MODE GROUP)
  foreach(source IN LISTS sources)
    get_filename_component(folder ${source} DIRECTORY)
    string(MAKE_C_IDENTIFIER "${target}/${folder}" group)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
  endforeach()
endfunction()

# Sources of test programs are united eight at a time, so that a change of one compiles few others; and those of a
# folder again have different names in unnamed namespaces, but for the ones in apart, which stay by themselves.
function(quorlin_unite_tests target sources apart)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${QUORLIN_UNITY} UNITY_BUILD_MODE GROUP)
  # Tests of a fixture in an unnamed namespace: the compiler takes such a source for a header.
  target_compile_options(${target} PRIVATE $<$<BOOL:${QUORLIN_UNITY}>:-Wno-subobject-linkage>)
  foreach(source IN LISTS sources)
    if(source IN_LIST apart OR NOT source MATCHES "\\.cpp$")
      continue()
    endif()
    get_filename_component(folder ${source} DIRECTORY)
    string(MAKE_C_IDENTIFIER "in/${folder}" folder)
    math(EXPR count_${folder} "0${count_${folder}} + 1")
    math(EXPR batch "${count_${folder}} / 8")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${target}_${folder}_${batch})
  endforeach()
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
  quorlin_precompile(${M_NAME} product)
  quorlin_unite(${M_NAME} "${M_SOURCES}")
endfunction()

# A library shows what the map in its folder names, and nothing else: without one it shows instances of the
# standard library's templates, which the loader would make one with the host's of the same names.
function(quorlin_export_only target map)
  target_link_options(${target} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/${map})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${map})
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

# A library that test programs share: compiled once, as they are, if one of them is built.
#   QT   for QtTest programs; without it for GoogleTest programs
function(quorlin_test_library)
  cmake_parse_arguments(L "QT" "NAME" "SOURCES;DEPENDS" ${ARGN})
  set(kind gtest)
  if(L_QT)
    set(kind qtest)
  endif()
  add_library(${L_NAME} STATIC EXCLUDE_FROM_ALL ${L_SOURCES})
  target_include_directories(${L_NAME} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${L_NAME} PUBLIC ${L_DEPENDS})
  quorlin_precompile(${L_NAME} ${kind})
endfunction()

# A test program, run by ctest from the build's bin folder.
#   LABELS   unit (no widgets, no plug-in), gui (widgets, offscreen), device (the whole plug-in on the
#            simulated DUT); the label sets the timeout
#   QT       uses QtTest; without it the test is a GoogleTest program
#   PLAIN    GoogleTest program that needs no Qt
#   CLASSES  test classes of tests/common/TestClass.h, one run of the program for each; the source has
#            the name of the class, and may stand in a folder. "LifetimeTest.resetWhileBusy" runs one
#            function of LifetimeTest. A class without a run in this build is not compiled.
#   APART    sources with names that others of their folder have, too (quorlin_unite_tests)
#   CASES    arguments; with them, one run of the program for each, named after both
function(quorlin_test)
  cmake_parse_arguments(T "QT;PLAIN" "NAME;LABELS" "SOURCES;APART;DEPENDS;CASES;CLASSES" ${ARGN})
  foreach(class IN LISTS T_CLASSES)
    get_filename_component(run ${class} NAME)
    quorlin_runs_elsewhere(elsewhere ${run} ${T_NAME})
    if(NOT elsewhere)
      string(REGEX REPLACE "\\..*" "" source ${class})
      list(APPEND T_SOURCES ${source}.cpp)
    endif()
  endforeach()
  if(NOT T_SOURCES)  # not built, and yet a target
    list(TRANSFORM T_CLASSES REPLACE "\\..*" "" OUTPUT_VARIABLE T_SOURCES)
    list(TRANSFORM T_SOURCES APPEND .cpp)
  endif()
  list(REMOVE_DUPLICATES T_SOURCES)
  add_executable(${T_NAME} EXCLUDE_FROM_ALL ${T_SOURCES})
  target_include_directories(${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR})
  if(T_CLASSES)
    list(APPEND T_DEPENDS QtKit)
  endif()
  target_link_libraries(${T_NAME} PRIVATE ${T_DEPENDS})
  if(T_QT)
    quorlin_precompile(${T_NAME} qtest)
  elseif(T_PLAIN)
    target_link_libraries(${T_NAME} PRIVATE GTest::gtest_main)
    quorlin_precompile(${T_NAME} plain)
  else()
    target_link_libraries(${T_NAME} PRIVATE GTest::gtest_main)
    quorlin_precompile(${T_NAME} gtest)
  endif()
  quorlin_unite_tests(${T_NAME} "${T_SOURCES}" "${T_APART}")

  foreach(case IN LISTS T_CASES)
    quorlin_test_run(${T_NAME}.${case} ${T_NAME} ${T_LABELS} ${case})
  endforeach()
  foreach(class IN LISTS T_CLASSES)
    get_filename_component(run ${class} NAME)
    string(REPLACE "." ";" arguments ${run})
    quorlin_test_run(${run} ${T_NAME} ${T_LABELS} ${arguments})
  endforeach()
  if(NOT T_CASES AND NOT T_CLASSES)
    quorlin_test_run(${T_NAME} ${T_NAME} ${T_LABELS})
  endif()
endfunction()

# One run of a program, by its name in ctest, with the arguments that follow the label. A test program is built
# with all others when it has a run in this build (cmake/RunsOnce.cmake).
function(quorlin_test_run name program label)
  set(timeout_unit 120)
  set(timeout_gui 120)
  set(timeout_device 600)
  if(NOT DEFINED timeout_${label})
    message(FATAL_ERROR "${name}: the label is one of unit, gui, device")
  endif()
  quorlin_runs_elsewhere(elsewhere ${name} ${program})
  if(elsewhere)
    return()
  endif()
  if(TARGET ${program})
    set_target_properties(${program} PROPERTIES EXCLUDE_FROM_ALL FALSE)
  endif()
  set(timeout ${timeout_${label}})
  if(QUORLIN_SANITIZE STREQUAL "thread")
    math(EXPR timeout "${timeout} * 5")
  endif()
  # Settings, backups and locks of a run are its own: runs are parallel, and a person has his.
  set(home ${CMAKE_BINARY_DIR}/homes/${name})
  file(MAKE_DIRECTORY ${home}/config ${home}/data ${home}/runtime)
  file(CHMOD ${home}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  add_test(NAME ${name} COMMAND ${program} ${ARGN}
    WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${timeout}
    ENVIRONMENT "${QUORLIN_TEST_ENVIRONMENT};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_RUNTIME_DIR=${home}/runtime")
endfunction()

# A benchmark program, run by hand (bench/README.md); never a test, since its numbers depend on the
# machine. The commit's check does not build it, a night does.
#   MOC   has classes of moc's
function(quorlin_bench)
  cmake_parse_arguments(B "MOC" "NAME" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${B_NAME} ${B_SOURCES})
  target_include_directories(${B_NAME} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${B_NAME} PRIVATE ${B_DEPENDS} benchmark::benchmark)
  if(NOT B_MOC)
    quorlin_no_moc(${B_NAME})
  endif()
  if(NOT QUORLIN_ALL_RUNS)
    set_target_properties(${B_NAME} PROPERTIES EXCLUDE_FROM_ALL TRUE)
  endif()
  quorlin_precompile(${B_NAME} product)
endfunction()
