# Run with cmake -P; see CMakeLists.txt in this folder.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        string(REPLACE ";" " " line "${ARGN}")
        message(FATAL_ERROR "failed (${result}): ${line}")
    endif()
endfunction()

file(REMOVE_RECURSE ${STAGING_DIR} ${CONSUMER_BUILD_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${STAGING_DIR})

set(flags "${CXX_FLAGS}")
if(SANITIZE)
    string(APPEND flags " -fsanitize=address,undefined")
endif()
run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${CONSUMER_BUILD_DIR}
    -DCMAKE_PREFIX_PATH=${STAGING_DIR}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    "-DCMAKE_CXX_FLAGS=${flags}")
run(${CMAKE_COMMAND} --build ${CONSUMER_BUILD_DIR})
run(${CONSUMER_BUILD_DIR}/consumer)

# The pkg-config file must describe the same staged install.
find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG)
    file(GLOB_RECURSE pcfile ${STAGING_DIR}/*/LibControl.pc)
    get_filename_component(pcdir "${pcfile}" DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${pcdir}")
    run(${PKG_CONFIG} --exists --print-errors "LibControl = 1.0.0")
endif()
