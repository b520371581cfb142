# Tests that drive a real window from another process: tests/endtoend/<what>_test.py, each with an X
# server and a session bus of its own. CTest "endtoend/<what>", labelled "endtoend" and "app". The
# system's own interpreter, which has the accessibility bindings.
find_program(LOADWICK_SYSTEM_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)

# Prints what another program would paste.
qt_add_executable(loadwick-clipboard endtoend/clipboard.cpp)
loadwick_warnings(loadwick-clipboard)
loadwick_qt_strictness(loadwick-clipboard)
target_link_libraries(loadwick-clipboard PRIVATE Qt6::Gui)

# The program, which ends as soon as its window has drawn.
qt_add_executable(loadwick-first-frame endtoend/first_frame.cpp)
loadwick_warnings(loadwick-first-frame)
loadwick_qt_strictness(loadwick-first-frame)
loadwick_link_pages(loadwick-first-frame LoadwickUi)

file(GLOB scripts CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}/endtoend"
                                    "${CMAKE_CURRENT_SOURCE_DIR}/endtoend/*_test.py")
foreach(script IN LISTS scripts)
    string(REGEX REPLACE "_test\\.py$" "" what "${script}")
    loadwick_test("endtoend/${what}" "endtoend;app"
                  "${LOADWICK_SYSTEM_PYTHON}" -B
                  "${CMAKE_CURRENT_SOURCE_DIR}/endtoend/${script}"
                  "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
endforeach()

# It starts a desktop for each test.
set_property(TEST "${LOADWICK_TEST_PREFIX}endtoend/desktop_sway" APPEND PROPERTY LABELS slow)

# They wait for what is said.
foreach(script IN LISTS scripts)
    if(script MATCHES "^reader_(.*)_test\\.py$")
        set_property(TEST "${LOADWICK_TEST_PREFIX}endtoend/reader_${CMAKE_MATCH_1}"
                     APPEND PROPERTY LABELS slow)
    endif()
endforeach()

# It watches for ten seconds.
set_property(TEST "${LOADWICK_TEST_PREFIX}endtoend/idle" APPEND PROPERTY LABELS slow)

# It starts the program a thousand times.
set(any_environment "${LOADWICK_TEST_PREFIX}endtoend/any_environment")
set_property(TEST "${any_environment}" APPEND PROPERTY LABELS slow)
set_tests_properties("${any_environment}" PROPERTIES TIMEOUT 900 PROCESSORS 2)
