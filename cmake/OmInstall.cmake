# Headers, libraries, the CMake package and the pkg-config files.

include(CMakePackageConfigHelpers)

set(OM_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/om)
set(OM_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/om)

set(OM_INSTALLED om om-cells om-settings om-platform om-blocks)
if(OM_BUILD_RENDER)
  list(APPEND OM_INSTALLED om-render)
endif()
install(TARGETS ${OM_INSTALLED} EXPORT omTargets
        FILE_SET HEADERS DESTINATION ${OM_INSTALL_INCLUDEDIR}
        INCLUDES DESTINATION ${OM_INSTALL_INCLUDEDIR})
install(EXPORT omTargets NAMESPACE om:: DESTINATION ${OM_INSTALL_CMAKEDIR})

configure_package_config_file(cmake/omConfig.cmake.in omConfig.cmake
                              INSTALL_DESTINATION ${OM_INSTALL_CMAKEDIR})
write_basic_package_version_file(omConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/omConfig.cmake ${PROJECT_BINARY_DIR}/omConfigVersion.cmake
        DESTINATION ${OM_INSTALL_CMAKEDIR})

# The pkg-config files find the rest from where they stand, so that the whole can be moved.
file(RELATIVE_PATH OM_PC_TO_INCLUDES /${CMAKE_INSTALL_LIBDIR}/pkgconfig /${OM_INSTALL_INCLUDEDIR})
configure_file(cmake/om.pc.in om.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/om.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(OM_BUILD_RENDER)
  configure_file(cmake/om-render.pc.in om-render.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/om-render.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
