# Compiler settings and the few functions that the folders share.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

include(GNUInstallDirs)

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Concurrent Multimedia)
find_package(GIF REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SAMPLERATE REQUIRED IMPORTED_TARGET samplerate)
pkg_check_modules(UCHARDET REQUIRED IMPORTED_TARGET uchardet)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(zorv_options INTERFACE)
target_compile_options(zorv_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(zorv_options INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS)
if(ZORV_WERROR)
    target_compile_options(zorv_options INTERFACE -Werror)
endif()
if(ZORV_SANITIZE)
    target_compile_options(zorv_options INTERFACE
        -fsanitize=${ZORV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(zorv_options INTERFACE -fsanitize=${ZORV_SANITIZE})
endif()
if(ZORV_COVERAGE)
    target_compile_options(zorv_options INTERFACE --coverage -O0)
    target_link_options(zorv_options INTERFACE --coverage)
endif()
