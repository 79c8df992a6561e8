# bv_warnings: the warning set every target links privately; bv_warnings_strict adds -Wconversion.
add_library(bv_warnings INTERFACE)
target_compile_options(bv_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual)
if(BV_WERROR)
    target_compile_options(bv_warnings INTERFACE -Werror)
endif()

add_library(bv_warnings_strict INTERFACE)
target_link_libraries(bv_warnings_strict INTERFACE bv_warnings)
target_compile_options(bv_warnings_strict INTERFACE -Wconversion -Wsign-conversion)

# Text is QString built from u"..."_s; no silent byte-to-text steps.
set(BV_QT_DEFINES QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

# bv_add_tests(NAME SOURCES... LIBS ...): one GoogleTest executable per library.
function(bv_add_tests name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main bv_warnings)
    target_compile_definitions(${name} PRIVATE
        BV_SAMPLES_DIR="${CMAKE_SOURCE_DIR}/../shared/samples"
        BV_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        BV_BIN_DIR="${CMAKE_BINARY_DIR}/bin")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
