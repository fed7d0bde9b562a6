# Installs the application of BUILD into SCRATCH and starts it from there: nothing of it may lead back to the build.
# WEB_TEST is the test program of the web view, which is told to take the installed one.
file(REMOVE_RECURSE ${SCRATCH})
set(prefix ${SCRATCH}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --component app --prefix ${prefix} COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_QUIET)
foreach(file share/applications/orl.desktop share/icons/hicolor/scalable/apps/orl.svg bin/orl-cli)
    if(NOT EXISTS ${prefix}/${file})
        message(FATAL_ERROR "${file} was not installed")
    endif()
endforeach()
file(GLOB_RECURSE binaries ${prefix}/bin/* ${prefix}/lib/*.so)
foreach(binary ${binaries})
    execute_process(COMMAND grep -c -F ${BUILD}/ ${binary} OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT found EQUAL 0)
        message(FATAL_ERROR "${binary} names the build folder")
    endif()
endforeach()

set(picture ${SCRATCH}/home.png)
execute_process(COMMAND ${prefix}/bin/orl --data ${SCRATCH}/data --choose "United States" 13055550149 --picture ${picture}
    COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${picture} size)
if(size LESS 10000)
    message(FATAL_ERROR "the picture has ${size} bytes")
endif()

set(ENV{ORL_WEB_DIR} ${prefix}/lib/orl/web)
execute_process(COMMAND ${WEB_TEST} --gtest_filter=*AMailIsShownAsItIs* COMMAND_ERROR_IS_FATAL ANY)
