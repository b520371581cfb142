# The fuzz targets, tests/fuzz/<Name>Fuzz.cpp, and those that need the window's presenters,
# tests/fuzz/window/<Name>Fuzz.cpp. In an ordinary build all of a folder go into one program that feeds
# them their seeds; with LOADWICK_FUZZ each is a program of libFuzzer, "<Name>Fuzz", and one CTest test,
# "fuzz/<Name>", that runs it for LOADWICK_FUZZ_SECONDS, or LOADWICK_FUZZ_WINDOW_SECONDS.
set(LOADWICK_FUZZ_SECONDS 60 CACHE STRING "How long a test of the fuzz build runs its target")
set(LOADWICK_FUZZ_WINDOW_SECONDS 20 CACHE STRING "The same for a target of the window")
file(GLOB fuzz_targets CONFIGURE_DEPENDS "fuzz/*Fuzz.cpp")
file(GLOB fuzz_window_targets CONFIGURE_DEPENDS "fuzz/window/*Fuzz.cpp")
set(fuzz_support fuzz/FuzzInput.cpp fuzz/FuzzTarget.cpp fuzz/JsonOracle.cpp fuzz/UsageOracle.cpp)

function(loadwick_fuzz_seeds program test folder)
    add_executable(${program} ${ARGN} ${fuzz_support} fuzz/FuzzInputTest.cpp fuzz/SeedsTest.cpp)
    loadwick_warnings(${program})
    loadwick_precompile_like(${program} LoadwickTestHeaders)
    target_link_libraries(${program} PRIVATE LoadwickTestSupport)
    target_compile_definitions(
        ${program} PRIVATE LOADWICK_FUZZ_SEEDS="${CMAKE_CURRENT_SOURCE_DIR}/${folder}/corpus")
    loadwick_test("fuzz/${test}" fuzz $<TARGET_FILE:${program}>)
endfunction()

function(loadwick_fuzz_program seconds source)
    get_filename_component(program "${source}" NAME_WE)
    add_executable(${program} ${source})
    add_dependencies(fuzz_targets ${program})
    loadwick_warnings(${program})
    target_link_libraries(${program} PRIVATE LoadwickFuzzSupport ${ARGN})
    target_link_options(${program} PRIVATE -fsanitize=fuzzer)
    string(REGEX REPLACE "Fuzz$" "" name "${program}")
    loadwick_test("fuzz/${name}" fuzz "${CMAKE_CURRENT_SOURCE_DIR}/fuzz/run"
                  --programs "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}" ${seconds} ${name})
endfunction()

function(loadwick_fuzz_programs)
    add_library(LoadwickFuzzSupport OBJECT ${fuzz_support} fuzz/FuzzEntry.cpp)
    loadwick_warnings(LoadwickFuzzSupport)
    target_include_directories(LoadwickFuzzSupport PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(LoadwickFuzzSupport PUBLIC LoadwickCore nlohmann_json::nlohmann_json)
    add_custom_target(fuzz_targets)
    foreach(source IN LISTS fuzz_targets)
        loadwick_fuzz_program(${LOADWICK_FUZZ_SECONDS} "${source}")
        get_filename_component(program "${source}" NAME_WE)
        loadwick_precompile_like(${program} LoadwickCore)
    endforeach()
endfunction()

# Only what the targets use: the whole window under the fuzzer takes minutes to compile.
function(loadwick_fuzz_window_programs)
    set(app "${PROJECT_SOURCE_DIR}/LoadwickApp")
    file(GLOB overview CONFIGURE_DEPENDS "${app}/overview/*.cpp")
    set(sources "${app}/base/ListOf.cpp" "${app}/base/PainterItem.cpp"
                "${app}/base/QtTaskDispatcher.cpp" "${app}/base/TokenText.cpp"
                "${app}/base/XmlText.cpp" "${app}/charts/BandMeterGeometry.cpp"
                "${app}/charts/DonutChart.cpp" "${app}/charts/MarkedChart.cpp"
                "${app}/components/TrendMark.cpp" "${app}/desktop/FileOpener.cpp"
                "${app}/desktop/OpeningPrograms.cpp" "${app}/export/PictureFrame.cpp" ${overview}
                support/SteppingDispatcher.cpp fuzz/window/ReportInput.cpp)
    add_library(LoadwickFuzzWindow OBJECT ${sources})
    set_target_properties(LoadwickFuzzWindow PROPERTIES AUTOMOC ON)
    loadwick_unity(LoadwickFuzzWindow ${sources})
    loadwick_precompile(LoadwickFuzzWindow ${LOADWICK_STANDARD_HEADERS} ${LOADWICK_QT_HEADERS})
    target_include_directories(LoadwickFuzzWindow PUBLIC "${app}" "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(LoadwickFuzzWindow PUBLIC LoadwickSamples Qt6::DBus Qt6::Quick Qt6::Svg)
    foreach(source IN LISTS fuzz_window_targets)
        loadwick_fuzz_program(${LOADWICK_FUZZ_WINDOW_SECONDS} "${source}" LoadwickFuzzWindow)
        get_filename_component(program "${source}" NAME_WE)
        loadwick_precompile_like(${program} LoadwickFuzzWindow)
        qt_add_resources(${program} style PREFIX /qt/qml/Loadwick BASE "${app}"
                         FILES "${app}/overview/report.css")
    endforeach()
endfunction()

if(LOADWICK_FUZZ)
    loadwick_fuzz_programs()
    if(LOADWICK_BUILD_APP)
        loadwick_fuzz_window_programs()
    endif()
elseif(NOT LOADWICK_SLOW_TESTS_ONLY)
    loadwick_fuzz_seeds(fuzz_tests Seeds fuzz ${fuzz_targets})
    if(LOADWICK_BUILD_APP)
        loadwick_fuzz_seeds(fuzz_window_tests WindowSeeds fuzz/window ${fuzz_window_targets}
                            fuzz/window/ReportInput.cpp)
        loadwick_link_pages(fuzz_window_tests LoadwickUi)
        target_link_libraries(fuzz_window_tests PRIVATE Qt6::Svg)
    endif()
endif()
