# The warnings of every target: `link_libraries(nvlist_warnings)` applies them to all later targets. A
# project that adds this one with add_subdirectory chooses its own.
add_library(nvlist_warnings INTERFACE)
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
if(MSVC)
  target_compile_options(nvlist_warnings INTERFACE /W4)
else()
  target_compile_options(nvlist_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 reports overlaps in std::string's operator+ that do not exist.
  target_compile_options(nvlist_warnings INTERFACE -Wno-restrict)
endif()
