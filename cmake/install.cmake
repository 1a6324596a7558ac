# The files that cmake --install installs, in the three components runtime, development and tools.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS ostrel_check EXPORT ostrel_check
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(DIRECTORY include/ostrel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/ostrel_check)
install(EXPORT ostrel_check FILE ostrel_check-config.cmake NAMESPACE ostrel:: DESTINATION ${package_folder}
    COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ostrel_check-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ostrel_check-config-version.cmake DESTINATION ${package_folder}
    COMPONENT development)
file(RELATIVE_PATH OSTREL_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" OSTREL_PC_PREFIX "${OSTREL_PC_PREFIX}")
configure_file(cmake/ostrel_check.pc.in ostrel_check.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ostrel_check.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

if(OSTREL_BUILD_TOOLS)
    # The program finds the library relative to its own location, so the installed tree can be moved.
    file(RELATIVE_PATH library_folder /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(ostrel-check PROPERTIES INSTALL_RPATH "$ORIGIN/${library_folder}")
    install(TARGETS ostrel-check RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    install(FILES docs/ostrel-check.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    install(FILES packaging/completion/ostrel-check.bash RENAME ostrel-check
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tools)
    install(FILES packaging/completion/_ostrel-check
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tools)
endif()
