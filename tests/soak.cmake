# The short forms of tests/soak: CTest "soak/<Name>", labelled "soak", "app" and "slow".
set(soak_growth 20)
if(LOADWICK_SANITIZE)
    # The sanitizer keeps stacks and margins; it looks for leaks at the end instead.
    set(soak_growth 100)
endif()
loadwick_test("soak/Scans" "soak;app;slow" "${CMAKE_CURRENT_SOURCE_DIR}/soak/run"
              --scans 300 --seconds 180 --seed 1 --growth ${soak_growth}
              "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
set_tests_properties("${LOADWICK_TEST_PREFIX}soak/Scans" PROPERTIES
                     TIMEOUT 600 ENVIRONMENT_MODIFICATION
                     "ASAN_OPTIONS=string_append::quarantine_size_mb=1")
loadwick_test("soak/Misuse" "soak;app;slow" "${CMAKE_CURRENT_SOURCE_DIR}/soak/misuse"
              --seconds 45 --seed 1 "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
set_tests_properties("${LOADWICK_TEST_PREFIX}soak/Misuse" PROPERTIES SKIP_RETURN_CODE 77)
