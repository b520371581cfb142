# Language level, warnings and sanitizers of every target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Programs are compiled as libraries are, so that both can use the same precompiled headers.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE "${CMAKE_CXX_COMPILE_OPTIONS_PIC}")

find_program(LOADWICK_CCACHE ccache)
if(LOADWICK_CCACHE)
    # Without these it caches nothing that uses a precompiled header.
    set(sloppiness "pch_defines,time_macros,include_file_mtime,include_file_ctime")
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=${sloppiness}"
                                    CCACHE_INODECACHE=1 "${LOADWICK_CCACHE}")
endif()

if(LOADWICK_SANITIZE)
    add_compile_options(-fsanitize=${LOADWICK_SANITIZE} -fno-omit-frame-pointer
                        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${LOADWICK_SANITIZE})
endif()

if(LOADWICK_COVERAGE)
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()

set(LOADWICK_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion)
if(LOADWICK_WARNINGS_AS_ERRORS)
    list(APPEND LOADWICK_WARNINGS -Werror)
endif()

# Our own code only: generated code and third-party headers are exempt.
function(loadwick_warnings target)
    target_compile_options(${target} PRIVATE ${LOADWICK_WARNINGS})
endfunction()

# The same for a target that also compiles Qt's generated QML code.
function(loadwick_source_warnings)
    set_property(SOURCE ${ARGN} APPEND PROPERTY COMPILE_OPTIONS ${LOADWICK_WARNINGS})
endfunction()
