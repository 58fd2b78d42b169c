# SPDX-License-Identifier: MIT
#
# An archive that runs wherever it is unpacked, where the libraries of Debian 12 are: cpack --config build/release/CPackConfig.cmake
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME keyrill)
set(CPACK_PACKAGE_VENDOR Orlen)
set(CPACK_PACKAGE_FILE_NAME "keyrill-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
