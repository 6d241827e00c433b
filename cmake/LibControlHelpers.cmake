# Build helpers shared by the library, its tests, fuzzers and tools.

set(LIBCONTROL_INCLUDE_BUILD_DIR ${PROJECT_BINARY_DIR}/include)
set(LIBCONTROL_LAYERS common fields forms worksheets widgets services)
set(LIBCONTROL_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/LibControl)

add_compile_options(-Wall -Wextra)

# Every target includes the library the way an installed consumer does,
# <LibControl/fields/Field.h>: the build tree gets include/LibControl/ with
# the export header and one symbolic link per layer folder.
function(libcontrol_setup_library target)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME LibControl
        EXPORT_NAME LibControl
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    set(inc ${LIBCONTROL_INCLUDE_BUILD_DIR}/LibControl)
    file(MAKE_DIRECTORY ${inc})
    foreach(layer ${LIBCONTROL_LAYERS})
        if(NOT EXISTS ${inc}/${layer})
            file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${layer} ${inc}/${layer} SYMBOLIC)
        endif()
    endforeach()
    generate_export_header(${target} BASE_NAME LIBCONTROL
        EXPORT_FILE_NAME ${inc}/libcontrol_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${LIBCONTROL_INCLUDE_BUILD_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII)
    target_link_libraries(${target}
        PUBLIC Qt5::Core Qt5::Gui Qt5::Widgets Qt5::Network PkgConfig::TinyXML)
endfunction()

# libcontrol_add_headers(<layer> <header>...): compiles (for moc), installs
# under include/LibControl/<layer>/ and lists in the umbrella header.
function(libcontrol_add_headers layer)
    foreach(header ${ARGN})
        target_sources(LibControl PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        set_property(GLOBAL APPEND PROPERTY LIBCONTROL_PUBLIC_HEADERS ${layer}/${header})
    endforeach()
    install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/LibControl/${layer})
endfunction()

function(libcontrol_install_library target)
    get_property(headers GLOBAL PROPERTY LIBCONTROL_PUBLIC_HEADERS)
    set(umbrella "// Generated: includes every public header of LibControl.\n#pragma once\n")
    foreach(header ${headers})
        string(APPEND umbrella "#include <LibControl/${header}>\n")
    endforeach()
    set(umbrella_file ${LIBCONTROL_INCLUDE_BUILD_DIR}/LibControl/LibControl.h)
    file(CONFIGURE OUTPUT ${umbrella_file} CONTENT "${umbrella}")

    install(TARGETS ${target} EXPORT LibControlTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${umbrella_file} ${LIBCONTROL_INCLUDE_BUILD_DIR}/LibControl/libcontrol_export.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/LibControl)
    install(EXPORT LibControlTargets NAMESPACE LibControl::
        DESTINATION ${LIBCONTROL_CMAKE_INSTALL_DIR})

    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/LibControlConfig.cmake.in
        ${PROJECT_BINARY_DIR}/LibControlConfig.cmake
        INSTALL_DESTINATION ${LIBCONTROL_CMAKE_INSTALL_DIR})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/LibControlConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/LibControlConfig.cmake
        ${PROJECT_BINARY_DIR}/LibControlConfigVersion.cmake
        DESTINATION ${LIBCONTROL_CMAKE_INSTALL_DIR})

    # Relocatable: the prefix is found from where the .pc file lies.
    file(RELATIVE_PATH LIBCONTROL_PC_TO_PREFIX /p/${CMAKE_INSTALL_LIBDIR}/pkgconfig /p)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/LibControl.pc.in
        ${PROJECT_BINARY_DIR}/LibControl.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/LibControl.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# libcontrol_add_test(<name> SOURCES <file>... [LIBS <lib>...] [TIMEOUT <s>])
# One QtTest executable, registered with CTest under the offscreen platform
# and a time-out, so a test that waits forever fails instead of hanging CI.
function(libcontrol_add_test name)
    cmake_parse_arguments(T "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    if(NOT T_TIMEOUT)
        set(T_TIMEOUT 60)
    endif()
    add_executable(${name} ${T_SOURCES})
    target_link_libraries(${name} PRIVATE LibControl::LibControl Qt5::Test ${T_LIBS})
    target_compile_definitions(${name} PRIVATE
        LIBCONTROL_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data")
    add_test(NAME ${name} COMMAND ${name})
    get_filename_component(label ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${T_TIMEOUT}
        LABELS ${label}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC;LC_ALL=C.UTF-8")
endfunction()

# libcontrol_add_tool_test(<name> SOURCES <file>... [TIMEOUT <s>]): a test
# that runs the built libcontrol tool, whose path it gets as LIBCONTROL_TOOL.
function(libcontrol_add_tool_test name)
    libcontrol_add_test(${name} ${ARGN})
    target_compile_definitions(${name} PRIVATE LIBCONTROL_TOOL="$<TARGET_FILE:libcontrol>")
    add_dependencies(${name} libcontrol)
endfunction()

# libcontrol_add_fuzzer(<name> <source>): the target replays the committed
# corpus fuzz/corpus/<name>/ as an ordinary test; with LIBCONTROL_BUILD_FUZZ
# (clang) it is also built as a libFuzzer executable.
function(libcontrol_add_fuzzer name source)
    add_executable(${name}_replay ${source} ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cpp)
    target_link_libraries(${name}_replay PRIVATE LibControl::LibControl)
    add_test(NAME ${name}_replay
        COMMAND ${name}_replay ${PROJECT_SOURCE_DIR}/fuzz/corpus/${name})
    set_tests_properties(${name}_replay PROPERTIES TIMEOUT 120 LABELS fuzz
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC")
    if(LIBCONTROL_BUILD_FUZZ)
        add_executable(${name} ${source})
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        target_link_libraries(${name} PRIVATE LibControl::LibControl)
    endif()
endfunction()
