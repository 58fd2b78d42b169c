# SPDX-License-Identifier: MIT
#
# What keeps a fault in the product from becoming a break-in, as far as the compiler knows it: frames are checked, copies
# are bounded where their size is known, jumps go only where they may; all symbols are bound and write-protected before
# the program starts. tests/packaging looks for each of them in what is installed.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()
# A flag that means nothing for this processor is taken with a warning only.
set(CMAKE_REQUIRED_FLAGS -Werror)
check_cxx_compiler_flag(-fstack-protector-strong KEYRILL_HAS_STACK_PROTECTOR)
check_cxx_compiler_flag(-fstack-clash-protection KEYRILL_HAS_STACK_CLASH_PROTECTION)
check_cxx_compiler_flag(-fcf-protection=full KEYRILL_HAS_CONTROL_FLOW_PROTECTION)
check_cxx_compiler_flag(-mbranch-protection=standard KEYRILL_HAS_BRANCH_PROTECTION)
unset(CMAKE_REQUIRED_FLAGS)

set(KEYRILL_HARDENING_OPTIONS
    $<$<BOOL:${KEYRILL_HAS_STACK_PROTECTOR}>:-fstack-protector-strong>
    $<$<BOOL:${KEYRILL_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>
    $<$<BOOL:${KEYRILL_HAS_CONTROL_FLOW_PROTECTION}>:-fcf-protection=full>
    $<$<BOOL:${KEYRILL_HAS_BRANCH_PROTECTION}>:-mbranch-protection=standard>)
# The sanitizers have checked functions of their own.
if(NOT KEYRILL_SANITIZE)
    list(APPEND KEYRILL_HARDENING_OPTIONS -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
endif()

# For a room or a program of the product.
function(keyrill_harden target)
    target_compile_options(${target} PRIVATE ${KEYRILL_HARDENING_OPTIONS})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now,-z,noexecstack)
    endif()
endfunction()
