# Installs the engine of BUILD into SCRATCH and builds and runs the consumer, found both ways. FLAGS are those that the
# engine was compiled with beyond the usual. With SOURCE the engine is built for it as a shared library first.
function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_output program)
    set(ENV{LD_LIBRARY_PATH} ${libraries})
    execute_process(COMMAND ${program} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output)
    set(expected "there <i>b</i> Could not parse query p:none: unexpected token at :none\n")
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "${program} printed: ${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})
if(SOURCE)
    set(BUILD ${SCRATCH}/engine)
    run(${CMAKE_COMMAND} -S ${SOURCE} -B ${BUILD} -G Ninja -DCMAKE_BUILD_TYPE=Release -DORL_APP=OFF -DORL_TESTS=OFF
        -DORL_HTML_SHARED=ON)
    run(${CMAKE_COMMAND} --build ${BUILD} --parallel 2)
endif()
set(prefix ${SCRATCH}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD} --component html --prefix ${prefix})
file(GLOB_RECURSE pc ${prefix}/*/orl-html.pc)
cmake_path(GET pc PARENT_PATH pkgconfig)
cmake_path(GET pkgconfig PARENT_PATH libraries)

set(consumer ${CMAKE_CURRENT_LIST_DIR})
run(${CMAKE_COMMAND} -S ${consumer} -B ${SCRATCH}/found -G Ninja -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_FLAGS=${FLAGS}
    -DCMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${SCRATCH}/found)
expect_output(${SCRATCH}/found/consumer)

find_program(PKG_CONFIG pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${pkgconfig})
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs orl-html COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE options
    OUTPUT_STRIP_TRAILING_WHITESPACE)
separate_arguments(options UNIX_COMMAND "${options}")
run(${COMPILER} -std=c++20 ${FLAGS} ${consumer}/main.cpp -o ${SCRATCH}/pkg-config ${options})
expect_output(${SCRATCH}/pkg-config)

if(SOURCE)
    # What is hidden must not show.
    execute_process(COMMAND sh -c "nm -DC --defined-only ${libraries}/liborl-html.so | grep -c ' [TW] orl::html::core::'"
        OUTPUT_VARIABLE shown OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT shown EQUAL 0)
        message(FATAL_ERROR "${shown} functions of the engine's inside show in the shared library")
    endif()
endif()
