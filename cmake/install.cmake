# What `cmake --install` brings: the libraries that were built, their headers, and the package
# nvList with the targets nvlist::nvlist, nvlist::qt and nvlist::qt_sql.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/nvList)
set(header_exclusions PATTERN qt EXCLUDE)
set(libraries nvlist)
set(package_qt_components)
if(TARGET nvlist_qt)
  set(header_exclusions)
  list(APPEND libraries nvlist_qt)
  set(package_qt_components Widgets)
  set_target_properties(nvlist_qt PROPERTIES EXPORT_NAME qt)
endif()
if(TARGET nvlist_qt_sql)
  list(APPEND libraries nvlist_qt_sql)
  list(APPEND package_qt_components Sql)
  set_target_properties(nvlist_qt_sql PROPERTIES EXPORT_NAME qt_sql)
endif()

install(TARGETS ${libraries} EXPORT nvListTargets)
install(EXPORT nvListTargets NAMESPACE nvlist:: DESTINATION ${package_dir})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/nvlist DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h" ${header_exclusions})

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/nvListConfig.cmake.in
  ${PROJECT_BINARY_DIR}/nvListConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nvListConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/nvListConfig.cmake
  ${PROJECT_BINARY_DIR}/nvListConfigVersion.cmake
  DESTINATION ${package_dir})
