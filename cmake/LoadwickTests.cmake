# Declares one CTest test: its name, its labels and its command. Under sanitizers the name gets the
# build's prefix, the options that make a finding fail, and tests whose name ends in "Slow" are left
# out; in an ordinary build those carry the label "slow".
function(loadwick_test name labels)
    if(LOADWICK_SANITIZE AND name MATCHES "Slow$")
        return()
    endif()
    set(name "${LOADWICK_TEST_PREFIX}${name}")
    if(name MATCHES "Slow$")
        list(APPEND labels slow)
    endif()
    add_test(NAME "${name}" COMMAND ${ARGN})
    set(environment
        "ASAN_OPTIONS=detect_stack_use_after_return=1"
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leaks.supp:print_suppressions=0"
        "UBSAN_OPTIONS=print_stacktrace=1"
        "TSAN_OPTIONS=halt_on_error=1")
    set_tests_properties("${name}" PROPERTIES LABELS "${labels}" TIMEOUT 300
                                              ENVIRONMENT "${environment}")
endfunction()

# Declares the tests of one folder: every <Type>Test.cpp in it goes into one program, and each file
# is one CTest test, "<folder>/<Type>", labelled with the folder's name. A file <Type>SlowTest.cpp
# also has the label "slow".
function(loadwick_core_tests folder)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*Test.cpp")
    if(LOADWICK_SLOW_TESTS_ONLY)
        list(FILTER sources INCLUDE REGEX "SlowTest\\.cpp$")
    endif()
    if(NOT sources)
        return()
    endif()
    set(program "${folder}_tests")
    add_executable(${program} ${sources})
    if(LOADWICK_COVERAGE)
        target_sources(${program} PRIVATE support/coverage/ProfileAtEnd.cpp)
    endif()
    loadwick_warnings(${program})
    loadwick_precompile_like(${program} LoadwickTestHeaders)
    target_link_libraries(${program} PRIVATE LoadwickTestSupport GTest::gtest_main)
    foreach(source IN LISTS sources)
        get_filename_component(suite "${source}" NAME_WE)
        string(REGEX REPLACE "Test$" "" type "${suite}")
        loadwick_test("${folder}/${type}" "${folder}" $<TARGET_FILE:${program}>
                      "--gtest_filter=${suite}.*:${suite}/*:*/${suite}.*")
    endforeach()
endfunction()
