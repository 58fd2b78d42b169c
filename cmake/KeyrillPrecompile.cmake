# SPDX-License-Identifier: MIT
#
# Headers of libraries that most sources include, read by the compiler once instead of a thousand times: a third of a whole
# build's time. Only where that time is somebody's (dev and asan presets): the other presets show that each source
# includes what it uses.
option(KEYRILL_PRECOMPILE "Precompile the headers of libraries that most sources include" OFF)

set(KEYRILL_STANDARD_HEADERS <algorithm> <array> <charconv> <chrono> <cstdint> <deque> <filesystem> <fstream> <functional> <map>
    <memory> <optional> <set> <span> <sstream> <string> <string_view> <utility> <variant> <vector>)

# keyrill_precompiled(keyrill_precompiled_test HEADERS <string> ... USES GTest::gtest [HARDENED])
# A set of headers, compiled with the options of the targets that take it.
function(keyrill_precompiled target)
    cmake_parse_arguments(set "HARDENED" "" "HEADERS;USES" ${ARGN})
    if(NOT KEYRILL_PRECOMPILE)
        return()
    endif()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(${target} OBJECT "${source}")
    keyrill_compile_options(${target})
    if(set_HARDENED)
        keyrill_harden(${target})
    endif()
    target_link_libraries(${target} PRIVATE ${set_USES})
    target_precompile_headers(${target} PRIVATE ${set_HEADERS})
endfunction()

# keyrill_precompile(core_test keyrill_precompiled_test): the target takes that set.
function(keyrill_precompile target set)
    if(TARGET ${set})
        target_precompile_headers(${target} REUSE_FROM ${set})
    endif()
endfunction()
