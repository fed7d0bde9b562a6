# One room, one library: orl_room(numbers SOURCES ... LINKS ...) makes the target orl_numbers with the alias
# orl::numbers. A room links only what its row of ARCHITECTURE.md allows, so that a wrong arrow does not build.

find_program(CCACHE ccache)
if(CCACHE)
    # Without this lenience ccache passes over every file that includes a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

find_program(MOLD mold)
if(MOLD)
    add_link_options(-fuse-ld=mold)
endif()

add_library(orl_warnings INTERFACE)
target_compile_options(orl_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wimplicit-fallthrough -Werror
    # GCC 12 sees an overlap in "literal" + std::string where there is none.
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)

if(ORL_SANITIZE)
    add_compile_options(-fsanitize=${ORL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ORL_SANITIZE})
endif()

# Most of what a file takes to build goes into reading the headers of Qt and of the tests. orl_precompiled(NAME
# DEFINITIONS ... LINKS ... HEADERS ...) reads them once for all targets that reuse NAME with orl_precompile(TARGET NAME).
# Sources include what they use all the same: the address sanitizer's build goes without and shows what is missing.
function(orl_precompiled name)
    cmake_parse_arguments(ARG "" "" "DEFINITIONS;LINKS;HEADERS" ${ARGN})
    if(NOT ORL_PRECOMPILE)
        return()
    endif()
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} orl_warnings)
    target_compile_options(${name} PUBLIC $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>) # ccache needs it
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

function(orl_precompile target name)
    if(TARGET ${name})
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
        target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
endfunction()

function(orl_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(orl_${name} STATIC ${ARG_SOURCES})
    add_library(orl::${name} ALIAS orl_${name})
    set_target_properties(orl_${name} PROPERTIES AUTOMOC ON)
    target_include_directories(orl_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_compile_definitions(orl_${name} PUBLIC QT_NO_KEYWORDS PRIVATE QT_NO_CAST_FROM_ASCII)
    target_link_libraries(orl_${name} PUBLIC ${ARG_LINKS} PRIVATE orl_warnings)
    orl_precompile(orl_${name} orl_precompiled_rooms)
endfunction()
