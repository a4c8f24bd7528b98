# What the toolchain files share; each sets the processor, the triplet and the emulator before.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${processor})
set(CMAKE_LIBRARY_ARCHITECTURE ${triplet})
set(CMAKE_CXX_COMPILER ${triplet}-g++)

# Programs run here by the emulator, with the C and C++ libraries that come with the compiler.
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator} -L /usr/${triplet})

# The other libraries, where scripts/cross-test unpacks them.
get_filename_component(CMAKE_FIND_ROOT_PATH
    ${CMAKE_CURRENT_LIST_DIR}/../build/libraries-${debian_architecture} ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
