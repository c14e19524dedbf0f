# A folder is a library: every source in it belongs, so adding a file needs no change here.
function(marrowvale_sources out)
    file(GLOB found CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" *.cpp *.h)
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# What every target of ours needs.
function(marrowvale_common name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_precompile_headers(${name} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled.h")
endfunction()

# The program's texts say their encoding; tests and the tour may write theirs plainly.
function(marrowvale_strict_texts name)
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
endfunction()

# marrowvale_library(store LINK foundation SQLite::SQLite3)
function(marrowvale_library name)
    cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
    marrowvale_sources(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC ${arg_LINK})
    marrowvale_common(${name})
    marrowvale_strict_texts(${name})
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
    marrowvale_strict_texts(${name})
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
