# Where an installed tool lies, and the Debian package of it.
#
#   cmake --install build/release --prefix /opt/quorlin-rf     a tree that may be moved about
#   scripts/package.sh                                         build/package/quorlin-rf_*.deb, of preset hardened
#
# The tree is the build's own: bin/quorlin-host, bin/quorlin, plugins/libQuorlinRf.so with libQuorlinCal.so beside it
# (for "quorlin cal") and libQuorlinPlots.so, the Vond pair in lib/ where the plug-in's relative RUNPATH finds it, the tap beside the pair, and the header that a host needs in
# include/. With VOND_ROOT the pair stays where it is, and the plug-in's RUNPATH names that folder.
include_guard(GLOBAL)
include(GNUInstallDirs)

install(TARGETS quorlin-host quorlin RUNTIME DESTINATION bin COMPONENT tool)
install(TARGETS QuorlinRf QuorlinCal QuorlinPlots LIBRARY DESTINATION plugins COMPONENT tool)
install(DIRECTORY python/quorlin DESTINATION python COMPONENT tool FILES_MATCHING PATTERN "*.py" PATTERN "py.typed"
        PATTERN "__pycache__" EXCLUDE)
install(TARGETS VondTap LIBRARY DESTINATION lib COMPONENT tool)
if(NOT VOND_ROOT)
  install(TARGETS VondCore VondApp LIBRARY DESTINATION lib COMPONENT tool)
endif()
install(FILES PluginInterface/VondPluginInterface.h DESTINATION include/PluginInterface
        COMPONENT header)
install(FILES Tap/VondTap.h DESTINATION include/Tap COMPONENT header)

# The Debian package: the same tree as a private folder, as the plug-in and its pair are nobody
# else's libraries; what users and the system look for stands in its usual place.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorlin-rf)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Quorlin RF developers <quorlin-rf@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "test and calibrate the 5G NR radio of a device")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Quorlin RF is a Qt plug-in for engineers who test and calibrate the radio
of a device under test: continuous RX, RSSI, RSRP, single tone and PUSCH
transmission, RX path loss and APT profiles. The package holds the plug-in,
a bench host that shows it, and a simulated device to try it on.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
# Plots need Qwt, the tool does not (packaging/shlibdeps).
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS libqwt-qt5-6)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/packaging/CPackDebian.cmake)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/../package)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr/lib/quorlin-rf)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL tool debian)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ARCHIVE_TYPE gnutar)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# Absolute destinations: they are part of the package, not of an installed tree.
function(quorlin_package_file file destination)
  install(FILES ${file} DESTINATION ${destination} COMPONENT debian EXCLUDE_FROM_ALL ${ARGN})
endfunction()

# Debian wants its man pages and changelogs compressed, without the time in the file's head.
function(quorlin_package_compressed file name destination)
  set(packed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
  execute_process(COMMAND gzip -9 -n -c ${file} OUTPUT_FILE ${packed} COMMAND_ERROR_IS_FATAL ANY)
  quorlin_package_file(${packed} ${destination})
endfunction()

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
foreach(program quorlin-host quorlin)
  file(CREATE_LINK ../lib/quorlin-rf/bin/${program} ${PROJECT_BINARY_DIR}/packaging/${program} SYMBOLIC)
  quorlin_package_file(${PROJECT_BINARY_DIR}/packaging/${program} /usr/bin)
  quorlin_package_compressed(${PROJECT_SOURCE_DIR}/packaging/${program}.1 ${program}.1
                             /usr/share/man/man1)
endforeach()
file(CREATE_LINK ../../quorlin-rf/python/quorlin ${PROJECT_BINARY_DIR}/packaging/python SYMBOLIC)
quorlin_package_file(${PROJECT_BINARY_DIR}/packaging/python /usr/lib/python3/dist-packages RENAME quorlin)
configure_file(packaging/changelog.in ${PROJECT_BINARY_DIR}/packaging/changelog @ONLY)
quorlin_package_file(${PROJECT_SOURCE_DIR}/packaging/copyright /usr/share/doc/quorlin-rf)
quorlin_package_file(${PROJECT_SOURCE_DIR}/packaging/quorlin-rf.desktop /usr/share/applications)
quorlin_package_file(${PROJECT_SOURCE_DIR}/packaging/quorlin.bash-completion
                     /usr/share/bash-completion/completions RENAME quorlin)
quorlin_package_compressed(${PROJECT_BINARY_DIR}/packaging/changelog changelog
                           /usr/share/doc/quorlin-rf)
include(CPack)
