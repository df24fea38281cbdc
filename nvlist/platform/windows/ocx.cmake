# The library of ActiveX controls: nvList.ocx with its type library, and the manifest for use without
# registration.
enable_language(RC)

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(MANIFEST_ARCHITECTURE amd64)
else()
  set(MANIFEST_ARCHITECTURE x86)
endif()
set(made ${CMAKE_CURRENT_BINARY_DIR})

string(REPLACE "." "," VERSION_NUMBERS "${PROJECT_VERSION},0")
configure_file(nvList.rc.in ${made}/nvList.rc @ONLY)
add_library(nvlist_ocx MODULE
  Automation.cpp
  ConnectionPoint.cpp
  ListControl.cpp
  OleControl.cpp
  OleFont.cpp
  OlePersistence.cpp
  OleView.cpp
  dll.cpp
  objects.cpp
  registration.cpp
  ${made}/nvList.rc
  nvList.def)
add_dependencies(nvlist_ocx nvlist_types)
set_target_properties(nvlist_ocx PROPERTIES PREFIX "" SUFFIX .ocx OUTPUT_NAME nvList)
target_link_libraries(nvlist_ocx PRIVATE nvlist_windows)
target_include_directories(nvlist_ocx SYSTEM PRIVATE ${made})  # what widl makes has warnings
target_include_directories(nvlist_ocx PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_precompile_headers(nvlist_ocx REUSE_FROM nvlist_windows)
target_link_options(nvlist_ocx PRIVATE -static -Wl,--gc-sections -Wl,--enable-stdcall-fixup)
set_source_files_properties(${made}/nvList.rc PROPERTIES
  OBJECT_DEPENDS "${made}/nvList.tlb;${CMAKE_CURRENT_SOURCE_DIR}/nvList.bmp")

# Only the IDL contains the GUIDs.
file(READ nvList.idl idl_text)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS nvList.idl)
function(guid_before pattern result)
  string(REGEX MATCH "uuid.([0-9A-F-]+)[^{}]*\n *${pattern}\n" found "${idl_text}")
  if(NOT found)
    message(FATAL_ERROR "nvList.idl has no ${pattern}")
  endif()
  set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()
guid_before("library Norvane" LIBRARY_GUID)
set(MANIFEST_CLASSES "")
foreach(class nvList SpEv Error ListItem)
  guid_before("coclass ${class}" guid)
  set(misc "")
  if(class STREQUAL nvList)
    set(misc "\n               miscStatusContent=\"recomposeonresize,cantlinkinside,insideout,activatewhenvisible,setclientsitefirst\"")
  endif()
  string(APPEND MANIFEST_CLASSES
    "    <comClass clsid=\"{${guid}}\" progid=\"Norvane.${class}.1\" tlbid=\"{${LIBRARY_GUID}}\"\n"
    "              threadingModel=\"Apartment\"${misc}>\n"
    "      <progid>Norvane.${class}</progid>\n"
    "    </comClass>\n")
endforeach()
configure_file(nvList.manifest.in ${made}/nvList.manifest @ONLY)
