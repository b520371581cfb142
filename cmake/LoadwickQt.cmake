# Qt for all folders that build with it, found once, so that each of them sees the same targets.
loadwick_needs_qt(6.4 DBus Gui Qml Quick QuickTemplates2 Svg Widgets)
loadwick_needs_private_qt(Quick qaccessiblequickitem_p.h)
loadwick_needs_modules_of("${PROJECT_SOURCE_DIR}/LoadwickApp")
if(LOADWICK_BUILD_BENCHMARKS)
    loadwick_needs_qt(6.4 QuickControls2) # what the window is compared with
endif()
if(LOADWICK_BUILD_TESTS)
    loadwick_needs_qt(6.4 Test QuickTest)
    loadwick_needs_modules_of("${PROJECT_SOURCE_DIR}/tests/qml")
endif()
# Optional, as an animation in a covered window of X11 costs only power. The library is loaded by Qt.
find_path(LOADWICK_XCB_HEADERS xcb/xcb.h)
find_library(LOADWICK_XCB_LIBRARY xcb)
if(NOT LOADWICK_XCB_HEADERS OR NOT LOADWICK_XCB_LIBRARY)
    message(STATUS "Without libxcb, what turns goes on turning in a covered window of X11")
endif()
set(QT_QML_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml")

set(LOADWICK_QT_HEADERS
    <QAbstractListModel> <QColor> <QFont> <QGuiApplication> <QList> <QPainter> <QPointer> <QQmlEngine>
    <QQuickItem> <QQuickPaintedItem> <QQuickWindow> <QString> <QUrl> <QVariant>
    <QtQml/qqmlregistration.h> <QtQml/qqmlprivate.h>)

# Qt code converts text explicitly: no silent conversion from and to bytes.
function(loadwick_qt_strictness target)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                 QT_NO_KEYWORDS)
endfunction()

# Links the program with modules of pages, which are all that it imports statically: a scan of its
# imports would look for static versions of Qt's own modules too, and warn that there are none.
function(loadwick_link_pages target)
    set_property(TARGET ${target} PROPERTY QT_QML_MODULE_NO_IMPORT_SCAN ON)
    foreach(module IN LISTS ARGN)
        target_link_libraries(${target} PRIVATE ${module} ${module}plugin ${module}plugin_init)
    endforeach()
endfunction()

# A newly globbed file does not by itself make CMake 3.25 run moc again, as none of the files that it
# has read changed; without the stamp of its last run it does.
function(loadwick_moc_follows target)
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt")
    set(known)
    if(EXISTS "${list}")
        file(STRINGS "${list}" known)
    endif()
    if(NOT "${known}" STREQUAL "${ARGN}")
        list(JOIN ARGN "\n" names)
        file(WRITE "${list}" "${names}\n")
        file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
    endif()
endfunction()
