# SPDX-License-Identifier: MIT
#
# Every library from outside, found in one place. tools/packages lists the packages that hold them.
find_package(PkgConfig REQUIRED)
find_package(Boost 1.74 REQUIRED)
find_package(Threads REQUIRED)
find_package(nlohmann_json 3.11 REQUIRED)

pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
pkg_check_modules(XCB_INPUT REQUIRED IMPORTED_TARGET xcb-xinput)
pkg_check_modules(XCB_XTEST REQUIRED IMPORTED_TARGET xcb-xtest)
pkg_check_modules(XCB_XKB REQUIRED IMPORTED_TARGET xcb-xkb)
pkg_check_modules(XCB_RECORD REQUIRED IMPORTED_TARGET xcb-record)
pkg_check_modules(XCB_RES REQUIRED IMPORTED_TARGET xcb-res)
pkg_check_modules(WAYLAND_CLIENT REQUIRED IMPORTED_TARGET wayland-client)
pkg_check_modules(XKBCOMMON REQUIRED IMPORTED_TARGET xkbcommon)
pkg_check_modules(XKBCOMMON_X11 REQUIRED IMPORTED_TARGET xkbcommon-x11)
pkg_check_modules(GLIB REQUIRED IMPORTED_TARGET glib-2.0 gio-2.0)
pkg_check_modules(GIO_UNIX REQUIRED IMPORTED_TARGET gio-unix-2.0)
if(KEYRILL_UPDATE_CHECK)
    pkg_check_modules(CURL REQUIRED IMPORTED_TARGET libcurl)
endif()

# Makes code of the descriptions of interfaces.
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)

# Draws the PNGs of icons and pictures.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets DBus LinguistTools)

if(KEYRILL_BUILD_TESTS)
    find_package(GTest REQUIRED)
    pkg_check_modules(ATSPI REQUIRED IMPORTED_TARGET atspi-2)
    pkg_check_modules(GOBJECT REQUIRED IMPORTED_TARGET gobject-2.0)
    include(GoogleTest)
endif()
if(KEYRILL_BUILD_BENCH)
    find_package(benchmark REQUIRED)
endif()
