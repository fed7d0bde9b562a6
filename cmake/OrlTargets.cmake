# One room, one library: orl_room(numbers SOURCES ... LINKS ...) makes the target orl_numbers with the alias
# orl::numbers. A room links only what its row of ARCHITECTURE.md allows, so that a wrong arrow does not build.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
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

function(orl_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(orl_${name} STATIC ${ARG_SOURCES})
    add_library(orl::${name} ALIAS orl_${name})
    set_target_properties(orl_${name} PROPERTIES AUTOMOC ON)
    target_include_directories(orl_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_compile_definitions(orl_${name} PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
    target_link_libraries(orl_${name} PUBLIC ${ARG_LINKS} PRIVATE orl_warnings)
endfunction()
