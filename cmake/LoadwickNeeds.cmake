# Finds what the build takes from the system. Whatever is missing is named at once, beside what was found,
# as CMake and Qt call it: each distribution packages it under names of its own.

function(loadwick_note is_found name)
    if(is_found)
        set_property(GLOBAL APPEND PROPERTY LOADWICK_FOUND "${name}")
    else()
        set_property(GLOBAL APPEND PROPERTY LOADWICK_MISSING "${name}")
    endif()
endfunction()

# Takes what find_package takes. A macro, because packages set variables for whoever finds them.
macro(loadwick_needs)
    find_package(${ARGN} QUIET)
    string(REPLACE ";" " " wanted "${ARGN}")
    loadwick_note("${${ARGV0}_FOUND}" "${wanted}")
endmacro()

# Parts of Qt, each of which is a package of its own to CMake.
macro(loadwick_needs_qt version)
    foreach(part IN ITEMS ${ARGN})
        find_package(Qt6 ${version} QUIET COMPONENTS ${part})
        loadwick_note("${Qt6${part}_FOUND}" "Qt6${part} ${version}")
    endforeach()
endmacro()

# The private headers of a part of Qt, one of which is `header`. Some distributions package them apart.
function(loadwick_needs_private_qt part header)
    find_file(found "private/${header}" PATHS ${Qt6${part}_INCLUDE_DIRS} NO_DEFAULT_PATH NO_CACHE
              PATH_SUFFIXES "${Qt6${part}_VERSION}/Qt${part}")
    loadwick_note("${found}" "Qt6${part}Private with private/${header}")
endfunction()

# Qt's QML modules that the pages below a folder import, and those that these import in turn.
function(loadwick_needs_modules_of folder)
    set(roots "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_QML}" $ENV{QML_IMPORT_PATH})
    file(GLOB_RECURSE files "${folder}/*.qml")
    set(seen "")
    while(files)
        list(POP_FRONT files file)
        file(STRINGS "${file}" lines REGEX "^(import|default import|depends) Qt")
        list(TRANSFORM lines REPLACE ".*(import|depends) ([A-Za-z.]+).*" "\\2" OUTPUT_VARIABLE modules)
        list(REMOVE_ITEM modules "" ${seen})
        list(REMOVE_DUPLICATES modules)
        foreach(module IN LISTS modules)
            list(APPEND seen "${module}")
            string(REPLACE "." "/" path "${module}")
            find_file(found "${path}/qmldir" PATHS ${roots} NO_DEFAULT_PATH NO_CACHE)
            loadwick_note("${found}" "QML module ${module}")
            if(found)
                list(APPEND files "${found}")
            endif()
            unset(found)
        endforeach()
    endwhile()
endfunction()

# Call after all others; ends the configuration if anything is missing.
function(loadwick_check_needs)
    get_property(found GLOBAL PROPERTY LOADWICK_FOUND)
    get_property(missing GLOBAL PROPERTY LOADWICK_MISSING)
    if(missing)
        list(REMOVE_DUPLICATES found)
        list(REMOVE_DUPLICATES missing)
        list(JOIN found "\n    " found)
        list(JOIN missing "\n    " missing)
        message(FATAL_ERROR "Loadwick looks for packages, by their names in CMake, and for QML modules.\n"
                "Found:\n    ${found}\nMissing:\n    ${missing}\n"
                "Install what holds the missing ones, with headers, then start again.\n")
    endif()
endfunction()
