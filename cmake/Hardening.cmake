# qenxml_harden(TARGET): what makes a fault harder to exploit and costs no time worth measuring. Not
# where sanitizers or the counting of lines are built in, which do not go together with it.

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckPIESupported)

option(QENXML_HARDENING "Protect the stack, the calls and the loader's tables" ON)

check_cxx_compiler_flag(-fstack-protector-strong QENXML_STACK_PROTECTOR)
# Where the processor's kind has it. Elsewhere clang takes the options, too, and warns.
set(CMAKE_REQUIRED_FLAGS -Werror)
check_cxx_compiler_flag(-fcf-protection QENXML_CONTROL_FLOW_PROTECTION)        # x86
check_cxx_compiler_flag(-mbranch-protection=standard QENXML_BRANCH_PROTECTION) # 64-bit ARM
check_cxx_compiler_flag(-fstack-clash-protection QENXML_STACK_CLASH_PROTECTION)
unset(CMAKE_REQUIRED_FLAGS)
# Some compilers check calls of the C library by themselves, as well or better than is asked for here.
set(CMAKE_REQUIRED_FLAGS -O2)
check_cxx_source_compiles("
    #if !defined(_FORTIFY_SOURCE) || _FORTIFY_SOURCE < 2
    #error
    #endif
    int main() {}" QENXML_FORTIFIED_BY_COMPILER)
unset(CMAKE_REQUIRED_FLAGS)
check_pie_supported(LANGUAGES CXX)

function(qenxml_harden target)
    if(NOT QENXML_HARDENING OR QENXML_SANITIZERS OR QENXML_COVERAGE)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        $<$<BOOL:${QENXML_STACK_PROTECTOR}>:-fstack-protector-strong>
        $<$<BOOL:${QENXML_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>
        $<$<BOOL:${QENXML_CONTROL_FLOW_PROTECTION}>:-fcf-protection>
        $<$<BOOL:${QENXML_BRANCH_PROTECTION}>:-mbranch-protection=standard>)
    # Who packages it may have decided.
    if(NOT QENXML_FORTIFIED_BY_COMPILER AND NOT CMAKE_CXX_FLAGS MATCHES "_FORTIFY_SOURCE")
        # Needs optimisation.
        target_compile_options(${target} PRIVATE
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
    endif()
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_link_options(${target} PRIVATE LINKER:-z,relro LINKER:-z,now)
endfunction()
