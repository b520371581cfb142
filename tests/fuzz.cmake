# The fuzz targets, tests/fuzz/<Name>Fuzz.cpp. In an ordinary build all of them go into one program
# that feeds them their seeds; with LOADWICK_FUZZ each is a program of libFuzzer, "<Name>Fuzz", and
# one CTest test, "fuzz/<Name>", that runs it for LOADWICK_FUZZ_SECONDS.
set(LOADWICK_FUZZ_SECONDS 60 CACHE STRING "How long a test of the fuzz build runs its target")
file(GLOB fuzz_targets CONFIGURE_DEPENDS "fuzz/*Fuzz.cpp")
set(fuzz_support fuzz/FuzzInput.cpp fuzz/FuzzTarget.cpp fuzz/JsonOracle.cpp fuzz/UsageOracle.cpp)

function(loadwick_fuzz_seeds)
    add_executable(fuzz_tests ${fuzz_targets} ${fuzz_support} fuzz/FuzzInputTest.cpp
                              fuzz/SeedsTest.cpp)
    loadwick_warnings(fuzz_tests)
    loadwick_precompile_like(fuzz_tests LoadwickTestHeaders)
    target_link_libraries(fuzz_tests PRIVATE LoadwickTestSupport)
    target_compile_definitions(
        fuzz_tests PRIVATE LOADWICK_FUZZ_SEEDS="${CMAKE_CURRENT_SOURCE_DIR}/fuzz/corpus")
    loadwick_test("fuzz/Seeds" fuzz $<TARGET_FILE:fuzz_tests>)
endfunction()

function(loadwick_fuzz_programs)
    add_library(LoadwickFuzzSupport OBJECT ${fuzz_support} fuzz/FuzzEntry.cpp)
    loadwick_warnings(LoadwickFuzzSupport)
    target_include_directories(LoadwickFuzzSupport PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(LoadwickFuzzSupport PUBLIC LoadwickCore nlohmann_json::nlohmann_json)
    add_custom_target(fuzz_targets)
    foreach(source IN LISTS fuzz_targets)
        get_filename_component(program "${source}" NAME_WE)
        add_executable(${program} ${source})
        add_dependencies(fuzz_targets ${program})
        loadwick_warnings(${program})
        loadwick_precompile_like(${program} LoadwickCore)
        target_link_libraries(${program} PRIVATE LoadwickFuzzSupport)
        target_link_options(${program} PRIVATE -fsanitize=fuzzer)
        string(REGEX REPLACE "Fuzz$" "" name "${program}")
        loadwick_test("fuzz/${name}" fuzz "${CMAKE_CURRENT_SOURCE_DIR}/fuzz/run"
                      --programs "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
                      ${LOADWICK_FUZZ_SECONDS} ${name})
    endforeach()
endfunction()

if(LOADWICK_FUZZ)
    loadwick_fuzz_programs()
elseif(NOT LOADWICK_SLOW_TESTS_ONLY)
    loadwick_fuzz_seeds()
endif()
