# WebAssembly, by Debian's emscripten, for the page in web/.

# The libraries, where scripts/web builds them.
get_filename_component(CMAKE_FIND_ROOT_PATH ${CMAKE_CURRENT_LIST_DIR}/../build/libraries-web ABSOLUTE)
set(CMAKE_PREFIX_PATH /usr)

include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

set(CMAKE_CXX_FLAGS_INIT -fexceptions)
