# The program for Windows, built on Debian: it needs the system's own libraries alone. Its pictures and its icon are
# painted by the release build, since the painter runs on this machine.
set(GLOOMDECK_SDL ${PROJECT_SOURCE_DIR}/build/windows-sdl/installed CACHE PATH "where SDL2 is, built for Windows")
set(GLOOMDECK_PAINTED ${PROJECT_SOURCE_DIR}/build/release CACHE PATH "the build folder of what is painted")

find_package(SDL2 REQUIRED PATHS ${GLOOMDECK_SDL} NO_DEFAULT_PATH)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/gloomdeck.ico
  COMMAND ${GLOOMDECK_PAINTED}/art/artbake --icon-file ${CMAKE_BINARY_DIR}/gloomdeck.ico
  DEPENDS ${GLOOMDECK_PAINTED}/art/artbake VERBATIM)
include(packaging/owner.cmake)
configure_file(packaging/windows/readme.txt.in ${CMAKE_BINARY_DIR}/README.txt @ONLY)
configure_file(packaging/windows/gloomdeck.rc.in ${CMAKE_BINARY_DIR}/gloomdeck.rc @ONLY)
enable_language(RC)
set_source_files_properties(${CMAKE_BINARY_DIR}/gloomdeck.rc PROPERTIES
  OBJECT_DEPENDS "${CMAKE_BINARY_DIR}/gloomdeck.ico;${PROJECT_SOURCE_DIR}/packaging/windows/gloomdeck.manifest")

add_executable(gloomdeck WIN32 shell/main.cpp
  platform/host_sdl.cpp platform/host_sdl_input.cpp platform/host_sdl_window.cpp platform/desktop_system_windows.cpp
  ${CMAKE_BINARY_DIR}/gloomdeck.rc)
target_include_directories(gloomdeck PRIVATE ${GLOOMDECK_PAINTED}/generated)
target_link_libraries(gloomdeck PRIVATE gloomdeck_game SDL2::SDL2-static)
target_link_options(gloomdeck PRIVATE -static -s LINKER:--no-insert-timestamp)
