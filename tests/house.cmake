# The source checks, each also a command to run by hand. They do not depend on a build, so their names
# carry no build prefix.

foreach(check IN ITEMS layers sizes format documented-paths packaging shell)
    add_test(NAME "house/${check}" COMMAND "${PROJECT_SOURCE_DIR}/tools/checks/${check}")
    set_tests_properties("house/${check}" PROPERTIES LABELS house TIMEOUT 120)
endforeach()

# A check must detect a planted violation.
add_test(NAME house/layers-finds-upward-uses
         COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/house/planted-uses")
add_test(NAME house/sizes-finds-long-ones
         COMMAND "${PROJECT_SOURCE_DIR}/tools/checks/sizes" "${CMAKE_CURRENT_SOURCE_DIR}/fixtures/long")
set_tests_properties(house/layers-finds-upward-uses house/sizes-finds-long-ones
                     PROPERTIES LABELS house TIMEOUT 120)
set_tests_properties(house/sizes-finds-long-ones PROPERTIES PASS_REGULAR_EXPRESSION
    "Long.cpp:6: longest has 41 lines[^\n]*\n50% [^\n]*\n90% [^\n]*\nLoadwickApp/page/Long.qml has 201 lines")

# So must what plants faults: it names the test that notices one, and tells of one that none notices.
add_test(NAME house/mutants COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/mutants/run_test.py")
set_tests_properties(house/mutants PROPERTIES LABELS house TIMEOUT 300)

# The configuration names all that it lacks, also what a module needs in turn.
add_test(NAME house/names-what-is-missing
         COMMAND ${CMAKE_COMMAND} -S "${CMAKE_CURRENT_SOURCE_DIR}/fixtures/needs"
                 -B "${CMAKE_CURRENT_BINARY_DIR}/needs" -G "${CMAKE_GENERATOR}" --fresh)
string(JOIN "[ \n]*" missing
    "Found:" "Present" "QML module QtQuick" "Missing:" "Absent 2.1 COMPONENTS one two"
    "Qt6QuickPrivate with private/qquickitem_p.h" "QML module QtQuick.Absent"
    "QML module QtQuick.Imported" "QML module QtQml.Deep" "Install")
set_tests_properties(house/names-what-is-missing PROPERTIES LABELS house TIMEOUT 60
                                                            PASS_REGULAR_EXPRESSION "${missing}")

add_test(NAME house/qmllint
         COMMAND ${CMAKE_COMMAND} --build "${PROJECT_BINARY_DIR}" --target all_qmllint)
set_tests_properties(house/qmllint PROPERTIES LABELS "house;app" TIMEOUT 900)

# Builds the quick folders of the core again, with clang's counters.
add_test(NAME house/coverage COMMAND "${PROJECT_SOURCE_DIR}/tools/checks/coverage" --sample)
set_tests_properties(house/coverage PROPERTIES LABELS house-coverage TIMEOUT 1800 RUN_SERIAL ON)
