# What makes building fast: third-party headers are read once per library instead of once per file,
# and where nobody edits (LOADWICK_UNITY) the compiler is given several files at a time.

option(LOADWICK_PRECOMPILE "Read the headers of others once, precompiled" ON)
option(LOADWICK_UNITY "Compile several files at a time, for builds that are made in one go" OFF)

set(LOADWICK_STANDARD_HEADERS
    <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <cstdlib> <deque> <filesystem>
    <functional> <limits> <map> <memory> <mutex> <optional> <set> <span> <string> <string_view>
    <system_error> <thread> <tuple> <unordered_map> <unordered_set> <utility> <variant> <vector>)

# Precompiles the given third-party headers for the target.
function(loadwick_precompile target)
    if(LOADWICK_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# Reuses the precompiled headers of another target that is built with the same options.
function(loadwick_precompile_like target other)
    if(LOADWICK_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${other})
    endif()
endfunction()

# Compiles the sources of each folder in one go. Their names in unnamed namespaces must differ.
function(loadwick_unity target)
    if(NOT LOADWICK_UNITY)
        return()
    endif()
    foreach(source IN LISTS ARGN)
        get_filename_component(folder "${source}" DIRECTORY)
        get_filename_component(folder "${folder}" NAME)
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${folder}")
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    # It takes every file but the one that is compiled for a header.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# Compiles the C++ that Qt generates from the pages a dozen at a time, without our warnings.
function(loadwick_compile_pages_together target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES HEADER_FILE_ONLY ON)
    set(batch 0)
    while(sources)
        list(SUBLIST sources 0 12 pages)
        list(REMOVE_ITEM sources ${pages})
        list(TRANSFORM pages REPLACE "(.+)" "#include \"\\1\"\n" OUTPUT_VARIABLE includes)
        list(JOIN includes "" includes)
        set(file "${CMAKE_CURRENT_BINARY_DIR}/${target}_pages_${batch}.cpp")
        file(CONFIGURE OUTPUT "${file}" CONTENT "${includes}" @ONLY)
        set_source_files_properties("${file}" PROPERTIES COMPILE_OPTIONS -w
                                                         OBJECT_DEPENDS "${pages}")
        target_sources(${target} PRIVATE "${file}")
        math(EXPR batch "${batch} + 1")
    endwhile()
endfunction()
