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

# An installed program finds the library beside it, wherever the prefix is.
file(RELATIVE_PATH ZORV_LIB_FROM_BIN
     ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH $ORIGIN/${ZORV_LIB_FROM_BIN})

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets Concurrent Multimedia LinguistTools)
if(ZORV_HOST)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Network)
endif()
if(ZORV_TESTS OR ZORV_BENCHMARKS)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
endif()
find_package(GIF REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SAMPLERATE REQUIRED IMPORTED_TARGET samplerate)
pkg_check_modules(UCHARDET REQUIRED IMPORTED_TARGET uchardet)
if(ZORV_HOST)
    pkg_check_modules(EBUR128 REQUIRED IMPORTED_TARGET libebur128)
    pkg_check_modules(SNDFILE REQUIRED IMPORTED_TARGET sndfile)
endif()

find_program(CCACHE ccache)
if(CCACHE AND ZORV_PCH)
    # Without these ccache keeps no result of a source that is compiled with such headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
elseif(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# Each of the many tests is a program with all that it tests in it. This linker needs a sixth of the
# time of the default one.
if(ZORV_TESTS)
    find_program(LLD ld.lld)
endif()

set(ZORV_PRECOMPILED
    <algorithm> <functional> <memory> <vector>
    <QAction> <QApplication> <QDialog> <QDir> <QFile> <QHash> <QImage> <QLabel> <QMenu> <QPainter>
    <QPointer> <QSettings> <QStringList> <QTreeView> <QVBoxLayout> <QVector>)

add_library(zorv_options INTERFACE)
if(LLD)
    target_link_options(zorv_options INTERFACE -fuse-ld=lld)
endif()
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
        -O1 -fsanitize=${ZORV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(zorv_options INTERFACE -fsanitize=${ZORV_SANITIZE})
endif()
if(ZORV_FUZZ)
    target_compile_options(zorv_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(ZORV_COVERAGE)
    target_compile_options(zorv_options INTERFACE --coverage -O0)
    target_link_options(zorv_options INTERFACE --coverage)
endif()

# Headers that do not fit a source are parsed for it: that costs time, and no more.
set(CMAKE_PCH_WARN_INVALID OFF)

# zorv_precompile(target)
#
# With ZORV_PCH, the headers that most sources include are parsed once for the target.
function(zorv_precompile target)
    if(ZORV_PCH)
        target_compile_options(${target} PRIVATE -fpch-preprocess)
        target_precompile_headers(${target} PRIVATE ${ZORV_PRECOMPILED})
    endif()
endfunction()

# zorv_test(tst_name [GUI [SCREENS size...]] [SOURCES file...] [LIBRARIES target...]
#           [ARGUMENTS arg...])
#
# A QtTest program of tst_name.cpp and the further sources, and its test. With GUI it runs on an X
# server of its own and carries the label "gui"; without, it needs no display. With SCREENS it is a
# test for each of these sizes of the screen, as in 1024x700.
function(zorv_test name)
    cmake_parse_arguments(arg "GUI" "" "SCREENS;SOURCES;LIBRARIES;ARGUMENTS" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE Zorv::zorv zorv_options Qt5::Test ${arg_LIBRARIES})
    if(ZORV_PCH)
        target_precompile_headers(${name} REUSE_FROM zorv_test_headers)
    endif()
    if(arg_GUI AND NOT ZORV_GUI_TESTS)
        set_target_properties(${name} PROPERTIES EXCLUDE_FROM_ALL ON)
        return()
    endif()
    if(arg_GUI)
        find_program(XVFB_RUN xvfb-run REQUIRED)
        set(tests)
        foreach(screen IN LISTS arg_SCREENS)
            list(APPEND tests ${name}_${screen})
        endforeach()
        if(NOT tests)
            set(tests ${name})
            set(arg_SCREENS 1280x1024)
        endif()
        foreach(test screen IN ZIP_LISTS tests arg_SCREENS)
            add_test(NAME ${test} COMMAND ${XVFB_RUN} -a -s "-screen 0 ${screen}x24"
                                          $<TARGET_FILE:${name}> ${arg_ARGUMENTS})
        endforeach()
        # Two xvfb-run at once may choose the same display number.
        set_tests_properties(${tests} PROPERTIES LABELS gui RESOURCE_LOCK xvfb)
        set(platform xcb)
    else()
        set(tests ${name})
        add_test(NAME ${name} COMMAND ${name} ${arg_ARGUMENTS})
        set(platform offscreen)
    endif()
    # The settings of the person who runs the tests are left alone.
    set(home ${CMAKE_CURRENT_BINARY_DIR}/${name}.home)
    set(environment QT_QPA_PLATFORM=${platform} LC_ALL=C.UTF-8
                    XDG_CONFIG_HOME=${home} XDG_DATA_HOME=${home})
    if(ZORV_SANITIZE)
        list(APPEND environment
             LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0
             UBSAN_OPTIONS=print_stacktrace=1)
    endif()
    set_tests_properties(${tests} PROPERTIES TIMEOUT 600 ENVIRONMENT "${environment}")
endfunction()

# zorv_benchmark(bench_name [SOURCES file...] [LIBRARIES target...])
#
# A benchmark of bench_name.cpp, put where scripts/bench finds it.
function(zorv_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE Zorv::zorv zorv_options Qt5::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bench)
endfunction()
