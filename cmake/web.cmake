# The game in a browser page: one module beside the page's own files. The pictures are painted by the release
# build, since the painter runs on this machine.
set(GLOOMDECK_GFX ${PROJECT_SOURCE_DIR}/build/release/gfx CACHE PATH "the folder of the painted pictures")
set(web_library ${PROJECT_SOURCE_DIR}/platform/host_web.js)

enable_language(ASM)
add_executable(gloomdeck shell/main.cpp platform/host_web.cpp platform/files_web.cpp platform/pictures_web.S)
target_link_libraries(gloomdeck PRIVATE gloomdeck_game)

# Nothing of ours throws, and unwinding would double the module.
target_compile_options(gloomdeck_options INTERFACE -fno-exceptions)

# A polling loop cannot wait in a browser, so the stack is put aside for the time of a wait.
target_link_options(gloomdeck PRIVATE
  -fno-exceptions
  -sASYNCIFY -sASYNCIFY_STACK_SIZE=16384
  -sASYNCIFY_IMPORTS=gloomdeckSleep,gloomdeckAwaitInput,gloomdeckBreathe,gloomdeckRest
  -sMODULARIZE -sEXPORT_ES6 -sUSE_ES6_IMPORT_META=0 -sEXPORT_NAME=createGloomdeck
  -sENVIRONMENT=web -sALLOW_MEMORY_GROWTH
  -sFILESYSTEM=0
  -sEXPORTED_FUNCTIONS=_main,_gloomdeckKeep
  -sINCOMING_MODULE_JS_API=host,instantiateWasm,onAbort
  --js-library ${web_library})
set_target_properties(gloomdeck PROPERTIES LINK_DEPENDS ${web_library})

file(GLOB web_pictures CONFIGURE_DEPENDS ${GLOOMDECK_GFX}/*.bmp)
set_source_files_properties(platform/pictures_web.S PROPERTIES
  COMPILE_OPTIONS "-I${GLOOMDECK_GFX}" OBJECT_DEPENDS "${web_pictures}")
