# What CPack makes: the source archive, and Debian packages of the library (with JSON Lines), the Qt
# platform, the files for development and the command. scripts/check-packages builds and tries them.
set(CPACK_PACKAGE_NAME nvlist)
set(CPACK_PACKAGE_VENDOR "Norvane")
set(CPACK_PACKAGE_CONTACT "Norvane <nvlist@norvane.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME nvlist-${PROJECT_VERSION})
set(CPACK_SOURCE_IGNORE_FILES /build/ /[.]git)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# Where the packages find each other's libraries before they are installed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}
  ${PROJECT_BINARY_DIR}/nvlist/json ${PROJECT_BINARY_DIR}/nvlist/platform/qt)
set(CPACK_COMPONENTS_ALL library development)

set(date "Sat, 21 Nov 2026 12:00:00 +0000")
set(changelog ${PROJECT_BINARY_DIR}/packages/changelog)
file(WRITE ${changelog} "nvlist (${PROJECT_VERSION}) unstable; urgency=medium

  * See CHANGELOG.md of the source archive.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
file(ARCHIVE_CREATE OUTPUT ${changelog}.gz PATHS ${changelog} FORMAT raw
  COMPRESSION GZip COMPRESSION_LEVEL 9)
file(WRITE ${PROJECT_BINARY_DIR}/packages/copyright "nvList

Copyright: 2026 Norvane

No licence has been chosen yet. Until the owner chooses one, all rights are reserved.
")

# The cache of the linker is renewed after the installation of libraries.
set(triggers ${PROJECT_BINARY_DIR}/packages/triggers)
file(WRITE ${triggers} "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${triggers})
set(CPACK_DEBIAN_QT_PACKAGE_CONTROL_EXTRA ${triggers})

# Describes the Debian package of a component. Arguments after these: lines of the description.
function(debian_package component name section summary)
  string(TOUPPER ${component} key)
  list(JOIN ARGN "\n" description)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
  install(FILES ${changelog}.gz ${PROJECT_BINARY_DIR}/packages/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

debian_package(library libnvlist${PROJECT_VERSION_MAJOR} libs "visual list control"
  "A list control in the look of the Windows XP visual styles, which paints its own rows."
  "This package has the library, the platform without a screen, and JSON Lines.")
debian_package(development libnvlist-dev libdevel "visual list control - development files"
  "Headers, CMake package and pkg-config files of all libraries of nvList.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "qt6-base-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
if(TARGET nvlist_qt)
  list(APPEND CPACK_COMPONENTS_ALL qt)
  debian_package(qt libnvlist-qt${PROJECT_VERSION_MAJOR} libs "visual list control for Qt 6"
    "The list as a widget of Qt 6, and lists filled from its databases.")
  set(CPACK_COMPONENT_QT_DEPENDS library)
  list(APPEND CPACK_COMPONENT_DEVELOPMENT_DEPENDS qt)
endif()
if(TARGET nvlist-tool)
  list(APPEND CPACK_COMPONENTS_ALL tool)
  debian_package(tool nvlist-tool utils "list files: convert, compare and draw them"
    "A command that inspects the list files of nvList, converts them to and from JSON Lines and"
    "texts, compares them, and draws them as pictures in SVG.")
  set(CPACK_COMPONENT_TOOL_DEPENDS library)
endif()
include(CPack)
