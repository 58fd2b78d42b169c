# SPDX-License-Identifier: MIT
#
# A library of the C code that wayland-scanner makes of descriptions (NAME.xml in the current folder): the client's
# side, in headers called NAME-client-protocol.h.
function(keyrill_wayland_protocols target)
    set(sources "")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/made")
    foreach(protocol IN LISTS ARGN)
        set(description "${CMAKE_CURRENT_SOURCE_DIR}/${protocol}.xml")
        set(made "${CMAKE_CURRENT_BINARY_DIR}/made/${protocol}")
        add_custom_command(
            OUTPUT "${made}-client-protocol.h" "${made}-protocol.c"
            COMMAND ${WAYLAND_SCANNER} --strict client-header "${description}" "${made}-client-protocol.h"
            COMMAND ${WAYLAND_SCANNER} --strict private-code "${description}" "${made}-protocol.c"
            DEPENDS "${description}")
        list(APPEND sources "${made}-client-protocol.h" "${made}-protocol.c")
    endforeach()
    add_library(${target} STATIC ${sources})
    target_include_directories(${target} SYSTEM PUBLIC "${CMAKE_CURRENT_BINARY_DIR}/made")
    target_link_libraries(${target} PUBLIC PkgConfig::WAYLAND_CLIENT)
endfunction()
