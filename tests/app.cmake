# Tests of the window. Qt Test: tests/app/<folder>/<Type>Test.cpp, CTest "app/<folder>/<Type>".
# Qt Quick Test: tests/qml/tst_<Component>.qml, CTest "app/qml/<Component>". All are labelled "app".
# Declares one CTest test of the window: off screen, drawn in software, in a home of its own,
# without the locale, time zone and folders of the user who runs it. Qt 6.8 caches on disk what it
# compiles from a page; in the second engine of one program, casts of that page to our types are null.
function(loadwick_app_test name program)
    set(home "${CMAKE_BINARY_DIR}/tests/home")
    file(MAKE_DIRECTORY "${home}")
    loadwick_test("app/${name}" app $<TARGET_FILE:${program}> ${ARGN})
    set(environment
        QT_QPA_PLATFORM=set:offscreen QT_QUICK_BACKEND=set:software QT_SCALE_FACTOR=unset:
        QT_QUICK_CONTROLS_STYLE=unset: QT_QPA_PLATFORMTHEME=unset: LC_ALL=set:C.UTF-8
        LANG=unset: LANGUAGE=unset: TZ=set:UTC "HOME=set:${home}" CLAUDE_CONFIG_DIR=unset:
        XDG_CURRENT_DESKTOP=unset: XDG_CONFIG_HOME=unset: XDG_DATA_HOME=unset: XDG_CACHE_HOME=unset: XDG_STATE_HOME=unset:
        DBUS_SESSION_BUS_ADDRESS=unset: QML_DISK_CACHE=set:aot)
    set_tests_properties("${LOADWICK_TEST_PREFIX}app/${name}" PROPERTIES
                         TIMEOUT 120 ENVIRONMENT_MODIFICATION "${environment}")
endfunction()

# One program holds all Qt Test classes, so that the module is linked once.
function(loadwick_qt_tests)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/app/*/*.cpp"
                                        "${CMAKE_CURRENT_SOURCE_DIR}/app/*/*.h")
    qt_add_executable(app_tests ${sources})
    loadwick_warnings(app_tests)
    loadwick_qt_strictness(app_tests)
    loadwick_precompile(app_tests ${LOADWICK_STANDARD_HEADERS} ${LOADWICK_QT_HEADERS} <QAccessible>
                                  <QSignalSpy> <QTest>)
    target_include_directories(app_tests PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/app")
    # QTRY_VERIFY narrows a duration there; earlier versions still check our own conversions.
    if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8)
        target_compile_options(app_tests PRIVATE -Wno-conversion)
    endif()
    loadwick_link_pages(app_tests LoadwickUi)
    target_link_libraries(app_tests PRIVATE LoadwickTestSupport Qt6::DBus Qt6::Svg Qt6::Test)
    set_target_properties(app_tests PROPERTIES AUTOMOC ON)
    loadwick_moc_follows(app_tests ${sources})
    file(GLOB tests CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}/app"
                                      "${CMAKE_CURRENT_SOURCE_DIR}/app/*/*Test.cpp")
    list(FILTER tests EXCLUDE REGEX "^support/")
    foreach(test IN LISTS tests)
        string(REGEX REPLACE "Test\\.cpp$" "" test "${test}")
        get_filename_component(type "${test}" NAME)
        loadwick_app_test("${test}" app_tests "${type}")
    endforeach()
endfunction()

function(loadwick_quick_tests)
    file(GLOB support CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/qml/support/*.cpp"
                                        "${CMAKE_CURRENT_SOURCE_DIR}/qml/support/*.h")
    qt_add_executable(qml_tests ${support})
    loadwick_warnings(qml_tests)
    loadwick_qt_strictness(qml_tests)
    loadwick_link_pages(qml_tests LoadwickUi)
    target_link_libraries(qml_tests PRIVATE LoadwickTestSupport Qt6::QuickTest)
    set_target_properties(qml_tests PROPERTIES AUTOMOC ON)
    loadwick_moc_follows(qml_tests ${support})
    file(GLOB tests CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/qml/tst_*.qml")
    foreach(test IN LISTS tests)
        get_filename_component(component "${test}" NAME_WE)
        string(REPLACE "tst_" "" component "${component}")
        loadwick_app_test("qml/${component}" qml_tests -input "${test}")
    endforeach()
endfunction()

loadwick_qt_tests()
loadwick_quick_tests()

loadwick_app_test("shell/AccessMatrixAtTwiceTheScale" app_tests AccessMatrix)
set_property(TEST "${LOADWICK_TEST_PREFIX}app/shell/AccessMatrixAtTwiceTheScale"
             APPEND PROPERTY ENVIRONMENT_MODIFICATION QT_SCALE_FACTOR=set:2)
# Every frame advances an animation by the same time, however long it took to draw.
set_property(TEST "${LOADWICK_TEST_PREFIX}app/shell/ReducedMotion"
             APPEND PROPERTY ENVIRONMENT_MODIFICATION QSG_FIXED_ANIMATION_STEP=set:1)
# They wait for entrance animations, or open the window at many sizes.
foreach(test IN ITEMS AccessMatrix AccessMatrixAtTwiceTheScale ReducedMotion WindowSizes)
    set_property(TEST "${LOADWICK_TEST_PREFIX}app/shell/${test}" APPEND PROPERTY LABELS slow)
    set_property(TEST "${LOADWICK_TEST_PREFIX}app/shell/${test}" PROPERTY TIMEOUT 600)
endforeach()

# Looks at the sources, so one build runs it for all.
set(check "${PROJECT_SOURCE_DIR}/tools/checks/plain-text")
add_test(NAME app/lint-plain-text COMMAND "${check}")
add_test(NAME app/lint-plain-text-finds-markup
         COMMAND "${check}" "${CMAKE_CURRENT_SOURCE_DIR}/fixtures/markup")
set_tests_properties(app/lint-plain-text app/lint-plain-text-finds-markup
                     PROPERTIES LABELS app TIMEOUT 60)
set_tests_properties(app/lint-plain-text-finds-markup PROPERTIES PASS_REGULAR_EXPRESSION
    ":5: [^\n]*Button[^\n]*\n[^\n]*:6: [^\n]*MenuItem[^\n]*\n[^\n]*:7: Label[^\n]*\n[^\n]*:8: Text [^\n]*\n[^\n]*:9: [^\n]*PlainToolTip")

set(check "${PROJECT_SOURCE_DIR}/tools/checks/translated-text")
add_test(NAME app/lint-translated-text COMMAND "${check}")
add_test(NAME app/lint-translated-text-finds-others
         COMMAND "${check}" "${CMAKE_CURRENT_SOURCE_DIR}/fixtures/untranslated")
set_tests_properties(app/lint-translated-text app/lint-translated-text-finds-others
                     PROPERTIES LABELS app TIMEOUT 60)
set_tests_properties(app/lint-translated-text-finds-others PROPERTIES PASS_REGULAR_EXPRESSION
    "cpp:4: [^\n]*scans[^\n]*\n[^\n]*cpp:5: [^\n]*Duration[^\n]*\n[^\n]*qml:6: [^\n]*Tokens[^\n]*\n[^\n]*qml:8: [^\n]*scans[^\n]*\n[^\n]*qml:11: [^\n]*Shown[^\n]*\n[^\n]*qml:12: [^\n]*Hidden[^\n]*\n$")
