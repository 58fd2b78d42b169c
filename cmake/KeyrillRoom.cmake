# SPDX-License-Identifier: MIT
#
# A room is one folder of the floor plan and one library. Its public headers are shown to others through a
# view: a folder of links that holds those headers and nothing else. A room gets the views of the rooms that
# it names in USES and of what these use in turn, so an include of a room above does not compile.

set(KEYRILL_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in the concatenation of strings that there are not (GCC bug 105651).
    list(APPEND KEYRILL_WARNINGS -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND KEYRILL_SANITIZE)
    # Instrumented code hides from GCC what has been initialised; its manual warns of false warnings then.
    list(APPEND KEYRILL_WARNINGS -Wno-maybe-uninitialized)
endif()

# Compile options that all targets of the project share.
function(keyrill_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    # GIO asks its users for -pthread and Qt for -fPIC; with all targets alike they share precompiled headers.
    target_compile_options(${target} PRIVATE -pthread -fPIC)
    # Nothing of the project is in a shared library, where another's function could stand in for one of ours.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-fno-semantic-interposition>)
    # Otherwise the calls of the system refuse what does not fit there: large files, high numbers of files, times after 2038.
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        target_compile_definitions(${target} PRIVATE _FILE_OFFSET_BITS=64 _TIME_BITS=64)
    endif()
    # xcb's header of XKB has a member called "explicit", which its users rename by a macro.
    target_compile_options(${target} PRIVATE ${KEYRILL_WARNINGS} $<$<BOOL:${KEYRILL_WERROR}>:-Werror>
                                             $<$<CXX_COMPILER_ID:Clang>:-Wno-keyword-macro>)
    if(KEYRILL_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${KEYRILL_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${KEYRILL_SANITIZE})
    endif()
    # A link that is out of date would show others a header that is gone.
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
endfunction()

# Links each of the headers, which lie in `from`, into `view`, under the name of their folder.
function(keyrill_view view folder from)
    foreach(header IN LISTS ARGN)
        set(link "${view}/${folder}/${header}")
        get_filename_component(parent "${link}" DIRECTORY)
        file(MAKE_DIRECTORY "${parent}")
        file(CREATE_LINK "${from}/${header}" "${link}" SYMBOLIC)
    endforeach()
endfunction()

# Shows that whoever uses the target can include each of the headers first.
function(keyrill_compile_alone target folder)
    if(NOT KEYRILL_BUILD_TESTS OR NOT ARGN)
        return()
    endif()
    set(alone "")
    foreach(header IN LISTS ARGN)
        string(MAKE_C_IDENTIFIER "${header}" name)
        set(source "${CMAKE_CURRENT_BINARY_DIR}/alone/${name}.cpp")
        file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${folder}/${header}\"\n")
        list(APPEND alone "${source}")
    endforeach()
    add_library(${target}_headers_alone OBJECT ${alone})
    keyrill_compile_options(${target}_headers_alone)
    set_target_properties(${target}_headers_alone PROPERTIES CXX_CLANG_TIDY "")
    target_link_libraries(${target}_headers_alone PRIVATE ${target})
endfunction()

# keyrill_room(keyrill_core FOLDER core HEADERS Action.h ... SOURCES Action.cpp ... PRIVATE_HEADERS ...
#              GENERATED_HEADERS ... USES keyrill_platform Boost::headers PRIVATE_USES XCB::XCB)
# Generated headers are public and lie in the binary folder. Every public header is also compiled alone.
function(keyrill_room target)
    cmake_parse_arguments(room "" "FOLDER" "HEADERS;GENERATED_HEADERS;PRIVATE_HEADERS;SOURCES;USES;PRIVATE_USES" ${ARGN})
    set(view "${PROJECT_BINARY_DIR}/view/${target}")
    file(REMOVE_RECURSE "${view}" "${view}_private")
    keyrill_view("${view}" "${room_FOLDER}" "${CMAKE_CURRENT_SOURCE_DIR}" ${room_HEADERS})
    keyrill_view("${view}" "${room_FOLDER}" "${CMAKE_CURRENT_BINARY_DIR}" ${room_GENERATED_HEADERS})
    keyrill_view("${view}_private" "${room_FOLDER}" "${CMAKE_CURRENT_SOURCE_DIR}" ${room_PRIVATE_HEADERS})

    if(room_SOURCES)
        add_library(${target} STATIC ${room_SOURCES})
        keyrill_compile_options(${target})
        keyrill_harden(${target})
        target_include_directories(${target} PUBLIC "${view}" PRIVATE "${view}_private")
        target_link_libraries(${target} PUBLIC ${room_USES} PRIVATE ${room_PRIVATE_USES})
        if(room_FOLDER MATCHES "^app/")
            keyrill_precompile(${target} keyrill_precompiled_qt)
        else()
            keyrill_precompile(${target} keyrill_precompiled_room)
        endif()
        # For keyrill_inside.
        set_target_properties(${target} PROPERTIES KEYRILL_PRIVATE_USES "${room_PRIVATE_USES}")
    else()
        add_library(${target} INTERFACE)
        target_compile_features(${target} INTERFACE cxx_std_20)
        target_include_directories(${target} INTERFACE "${view}")
        target_link_libraries(${target} INTERFACE ${room_USES})
    endif()

    keyrill_compile_alone(${target} ${room_FOLDER} ${room_HEADERS} ${room_GENERATED_HEADERS})
endfunction()

# keyrill_house(keyrill_script FOLDER platform/script SHOWS run/ScriptRunner.h ... USES keyrill_platform
#               ROOMS keyrill_script_run ...)
# Several rooms as one library: whoever uses it sees the headers that it shows, and links the rooms.
function(keyrill_house target)
    cmake_parse_arguments(house "" "FOLDER" "SHOWS;USES;ROOMS" ${ARGN})
    set(view "${PROJECT_BINARY_DIR}/view/${target}")
    file(REMOVE_RECURSE "${view}")
    keyrill_view("${view}" "${house_FOLDER}" "${CMAKE_CURRENT_SOURCE_DIR}" ${house_SHOWS})
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "${view}")
    list(TRANSFORM house_ROOMS REPLACE "(.+)" "$<LINK_ONLY:\\1>")
    target_link_libraries(${target} INTERFACE ${house_USES} ${house_ROOMS})
    keyrill_compile_alone(${target} ${house_FOLDER} ${house_SHOWS})
endfunction()

# keyrill_own_view(keyrill_script_tool FOLDER cli HEADERS Report.h ...): a program's own headers, for itself.
function(keyrill_own_view target)
    cmake_parse_arguments(own "" "FOLDER" "HEADERS" ${ARGN})
    set(view "${PROJECT_BINARY_DIR}/view/${target}")
    file(REMOVE_RECURSE "${view}")
    keyrill_view("${view}" "${own_FOLDER}" "${CMAKE_CURRENT_SOURCE_DIR}" ${own_HEADERS})
    target_include_directories(${target} PRIVATE "${view}")
endfunction()

# keyrill_inside(core_test keyrill_x11_watch ...): shows a test what those rooms see themselves.
function(keyrill_inside target)
    foreach(room IN LISTS ARGN)
        get_target_property(uses ${room} KEYRILL_PRIVATE_USES)
        if(NOT uses)
            set(uses "")
        endif()
        target_link_libraries(${target} PRIVATE ${room} ${uses})
        target_include_directories(${target} PRIVATE "${PROJECT_BINARY_DIR}/view/${room}"
                                                     "${PROJECT_BINARY_DIR}/view/${room}_private")
    endforeach()
endfunction()

# keyrill_test(core_test LABEL unit SOURCES ... USES ... INSIDE keyrill_core): one GoogleTest program for a folder or,
# with what keyrill_test_room adds, for a house. The tests of a desktop program are run each for itself, with displays
# of their own; a unit program is run whole, because to start it takes longer than all of its tests.
function(keyrill_test target)
    cmake_parse_arguments(test "" "LABEL;TIMEOUT" "SOURCES;USES;INSIDE;PROPERTIES" ${ARGN})
    if(NOT test_TIMEOUT)
        set(test_TIMEOUT 60)
    endif()
    # A processor that is played by a program is that much slower.
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        math(EXPR test_TIMEOUT "${test_TIMEOUT} * 30")
    endif()
    add_executable(${target} ${test_SOURCES})
    keyrill_compile_options(${target})
    keyrill_precompile(${target} keyrill_precompiled_test)
    target_link_libraries(${target} PRIVATE ${test_USES} GTest::gtest GTest::gtest_main)
    keyrill_inside(${target} ${test_INSIDE})
    # Whose session it is run in is none of a test's business, nor in what language.
    set(properties LABELS ${test_LABEL} TIMEOUT ${test_TIMEOUT} ENVIRONMENT_MODIFICATION "WAYLAND_DISPLAY=unset:" ENVIRONMENT "LC_ALL=C.UTF-8"
                   ${test_PROPERTIES})
    if(test_LABEL STREQUAL "unit")
        add_test(NAME ${target} COMMAND ${target})
        set_tests_properties(${target} PROPERTIES ${properties})
    else()
        gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES ${properties})
    endif()
endfunction()

# keyrill_test_room(app_test SOURCES MenuStateTest.cpp INSIDE keyrill_app_tray): adds a room's tests to its house's program.
function(keyrill_test_room target)
    cmake_parse_arguments(room "" "" "SOURCES;INSIDE" ${ARGN})
    target_sources(${target} PRIVATE ${room_SOURCES})
    keyrill_inside(${target} ${room_INSIDE})
endfunction()
