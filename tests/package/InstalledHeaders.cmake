# Compiles each installed header on its own, twice included, with all warnings; and by the name of the
# library's folder, with no other folder on the include path than that of all headers of the system.

include(${CMAKE_CURRENT_LIST_DIR}/Common.cmake)

set(include_dir ${PREFIX}/include/qenxml)
file(GLOB_RECURSE headers RELATIVE ${include_dir} ${include_dir}/*.h)
if(NOT headers)
    message(FATAL_ERROR "No headers in ${include_dir}")
endif()
file(MAKE_DIRECTORY ${WORK_DIR})
foreach(header IN LISTS headers)
    file(WRITE ${WORK_DIR}/header.cpp "#include \"${header}\"\n#include \"${header}\"\n")
    run(${CXX} -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -Wnon-virtual-dtor -Werror -I ${include_dir} ${WORK_DIR}/header.cpp)
    file(WRITE ${WORK_DIR}/prefixed.cpp "#include <qenxml/${header}>\n")
    run(${CXX} -std=c++17 -fsyntax-only -I ${PREFIX}/include ${WORK_DIR}/prefixed.cpp)
endforeach()
