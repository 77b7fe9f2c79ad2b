# What a host gets: the modules, the headers, and a package that find_package(knav) finds.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(_package lib/cmake/knav)

install(TARGETS knav zoui knav_build EXPORT knavTargets
  RUNTIME DESTINATION bin ARCHIVE DESTINATION lib LIBRARY DESTINATION bin)
if(TARGET KnavRes)
  install(TARGETS KnavRes RUNTIME DESTINATION bin LIBRARY DESTINATION bin ARCHIVE DESTINATION lib)
endif()
install(DIRECTORY include/knav DESTINATION include FILES_MATCHING PATTERN "*.h")
install(FILES resources/ids.h DESTINATION include/knav)
install(DIRECTORY host/platform host/ry host/zoui DESTINATION include/zoui FILES_MATCHING PATTERN "*.h")
install(EXPORT knavTargets NAMESPACE knav:: DESTINATION ${_package})

configure_package_config_file(cmake/knavConfig.cmake.in ${CMAKE_BINARY_DIR}/knavConfig.cmake
  INSTALL_DESTINATION ${_package})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/knavConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/knavConfig.cmake ${CMAKE_BINARY_DIR}/knavConfigVersion.cmake DESTINATION ${_package})
