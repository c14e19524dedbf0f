# A folder is a library: every source in it belongs, so adding a file needs no change here.
function(marrowvale_sources out)
    file(GLOB found CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" *.cpp *.h)
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# Headers are compiled once and shared, so what defines their meaning is the same for all: the marks of the libraries
# too, which Qt would set for each target by what it links.
add_compile_definitions(QT_CORE_LIB QT_DBUS_LIB QT_GUI_LIB QT_NETWORK_LIB QT_OPENGL_LIB QT_QMLINTEGRATION_LIB
                        QT_QMLMODELS_LIB QT_QML_LIB QT_QUICK_LIB QT_SVG_LIB QT_TESTLIB_LIB QT_WIDGETS_LIB)
function(marrowvale_precompiled name)
    add_library(${name} OBJECT "${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp")
    target_link_libraries(${name} PRIVATE Qt6::Quick Qt6::Widgets)
    target_precompile_headers(${name} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled.h" ${ARGN})
endfunction()
marrowvale_precompiled(precompiled)
# The program's texts say their encoding; tests and the tour may write theirs plainly.
set(strict_texts QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
target_compile_definitions(precompiled PRIVATE ${strict_texts})

function(marrowvale_target name precompiled)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    # What a new file declares would not be seen until a build from scratch.
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/timestamp")
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_precompile_headers(${name} REUSE_FROM ${precompiled})
endfunction()

function(marrowvale_common name)
    marrowvale_target(${name} precompiled)
    target_compile_definitions(${name} PRIVATE ${strict_texts})
endfunction()

# marrowvale_library(store LINK foundation SQLite::SQLite3)
function(marrowvale_library name)
    cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
    marrowvale_sources(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC ${arg_LINK})
    marrowvale_common(${name})
endfunction()

# The same for a folder whose classes layouts name: the folder is a QML module too, so that qmllint checks every
# outlet and action against the real type.
# marrowvale_qml_library(browse URI Marrowvale.Browse IMPORTS Marrowvale.Toolkit LINK model toolkit QML Home.qml)
function(marrowvale_qml_library name)
    cmake_parse_arguments(arg "" "URI" "IMPORTS;LINK;QML;RESOURCES" ${ARGN})
    marrowvale_sources(sources)
    string(REPLACE "." "/" folder "${arg_URI}")
    qt_add_library(${name} STATIC)
    target_link_libraries(${name} PUBLIC ${arg_LINK})
    marrowvale_common(${name})
    qt_add_qml_module(${name}
        URI ${arg_URI}
        VERSION 1.0
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml/${folder}"
        IMPORT_PATH "${PROJECT_BINARY_DIR}/qml"
        SOURCES ${sources}
        QML_FILES ${arg_QML}
        RESOURCES ${arg_RESOURCES}
        IMPORTS ${arg_IMPORTS}
        DEPENDENCIES QtQuick) # where qmllint finds colours, points and sizes
    # The registrations that Qt writes include each header by its bare name.
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()
