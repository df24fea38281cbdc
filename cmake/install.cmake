# What `cmake --install` installs: the libraries with their public headers, the CMake package nvList,
# a pkg-config file for each library except the one for databases, and the command nvlist-tool.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/nvList)

# Installs the library `target`, which is exported as nvlist::`name`. `component` is the part of the
# installation that holds the library itself; cmake/packages.cmake makes a package of each.
function(install_library target name component)
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  install(TARGETS ${target} EXPORT ${target}_targets
    LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development
    RUNTIME COMPONENT ${component}
    ARCHIVE COMPONENT development
    FILE_SET HEADERS COMPONENT development)
  install(EXPORT ${target}_targets NAMESPACE nvlist:: DESTINATION ${package_dir}
    COMPONENT development)
endfunction()

# Installs the pkg-config file of the library `target`. Arguments: its description, and the packages
# that its users need.
function(install_pkg_config target description requires)
  string(REPLACE _ - package ${target})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/package.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endfunction()

file(RELATIVE_PATH prefix_from_pkgconfig
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

set(components)
install_library(nvlist nvlist library)
install_pkg_config(nvlist "${PROJECT_DESCRIPTION}" "")
if(TARGET nvlist_json)
  list(APPEND components json)
  install_library(nvlist_json json library)
  # A static library leaves it to its users to link what it uses itself.
  set(json_requires "nvlist = ${PROJECT_VERSION}")
  if(NOT BUILD_SHARED_LIBS)
    string(APPEND json_requires ", simdjson")
  endif()
  install_pkg_config(nvlist_json "Lists as JSON Lines" "${json_requires}")
endif()
if(TARGET nvlist_qt)
  list(APPEND components qt)
  install_library(nvlist_qt qt qt)
  install_pkg_config(nvlist_qt "nvList as a widget of Qt 6"
    "nvlist = ${PROJECT_VERSION}, Qt6Widgets >= 6.2")
endif()
if(TARGET nvlist_qt_sql)
  list(APPEND components qt_sql)
  install_library(nvlist_qt_sql qt_sql qt)
endif()

# Designer looks in this folder of Qt's own installation, and where QT_PLUGIN_PATH says.
if(TARGET nvlist_designer)
  install(TARGETS nvlist_designer LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer)
endif()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/nvListConfig.cmake.in
  ${PROJECT_BINARY_DIR}/nvListConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/nvListConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/nvListConfig.cmake
  ${PROJECT_BINARY_DIR}/nvListConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)
