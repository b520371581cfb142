# The checks of the house, each one command that a hand can run too. They look at the sources, so they
# carry no build's prefix.

foreach(check IN ITEMS layers format documented-paths packaging shell)
    add_test(NAME "house/${check}" COMMAND "${PROJECT_SOURCE_DIR}/tools/checks/${check}")
    set_tests_properties("house/${check}" PROPERTIES LABELS house TIMEOUT 120)
endforeach()

add_test(NAME house/qmllint
         COMMAND ${CMAKE_COMMAND} --build "${PROJECT_BINARY_DIR}" --target all_qmllint)
set_tests_properties(house/qmllint PROPERTIES LABELS "house;app" TIMEOUT 900)

# Builds the quick folders of the core once more, with counters, by clang.
add_test(NAME house/coverage COMMAND "${PROJECT_SOURCE_DIR}/tools/checks/coverage" --sample)
set_tests_properties(house/coverage PROPERTIES LABELS house-coverage TIMEOUT 1800 RUN_SERIAL ON)
