# The one place that says how every translation unit is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Debug)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # A precompiled header carries a time stamp and macros that only these allowances let the cache ignore.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros
                                    "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" "${CCACHE}")
endif()

add_compile_options(-pthread -Wall -Wextra -Wpedantic -Werror)
if(CMAKE_BUILD_TYPE STREQUAL Release AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # GCC 12 sees overlaps and overruns in std::string's own operator+ once it is inlined.
    add_compile_options(-Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
endif()
add_compile_definitions(QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MARROWVALE_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(MARROWVALE_SANITIZE)
    # The code that the sanitizers weave in makes the compiler doubt variables that are set.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
                        -Wno-maybe-uninitialized)
    add_link_options(-fsanitize=address,undefined)
endif()
