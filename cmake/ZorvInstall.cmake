# What `cmake --install` puts where, and the two ways in which others find the library.

include(CMakePackageConfigHelpers)

set(ZORV_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Zorv)

install(TARGETS zorv EXPORT ZorvTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zorv)
install(FILES ${CMAKE_BINARY_DIR}/src/include/zorv/zorv.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/zorv)

install(EXPORT ZorvTargets NAMESPACE Zorv:: DESTINATION ${ZORV_CMAKE_DIR})
configure_package_config_file(cmake/ZorvConfig.cmake.in ${CMAKE_BINARY_DIR}/ZorvConfig.cmake
                              INSTALL_DESTINATION ${ZORV_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZorvConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ZorvConfig.cmake ${CMAKE_BINARY_DIR}/ZorvConfigVersion.cmake
        DESTINATION ${ZORV_CMAKE_DIR})

# The prefix is told relative to the file, so that an installed tree can be moved.
file(RELATIVE_PATH ZORV_PREFIX_FROM_PC
     ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/zorv.pc.in ${CMAKE_BINARY_DIR}/zorv.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/zorv.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(ZORV_HOST)
    install(TARGETS zorv_program zorv_player RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(FILES host/cli/zorv.1 player/zorv-player.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs PATTERN Doxyfile EXCLUDE)
install(DIRECTORY samples DESTINATION ${CMAKE_INSTALL_DATADIR}/zorv)
install(DIRECTORY host/family/data/snippets DESTINATION ${CMAKE_INSTALL_DATADIR}/zorv)
install(DIRECTORY templates DESTINATION ${CMAKE_INSTALL_DATADIR}/zorv
        PATTERN templates.qrc EXCLUDE)
