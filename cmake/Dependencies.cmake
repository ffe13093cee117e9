# The JSON library, the command line library of metagen-lint, and the test framework for those who
# build the tests.

# picojson is one header. It is copied into a folder by itself, so that a cross build takes no
# other header of the build machine along with it.
find_path(PICOJSON_INCLUDE_DIR picojson.h NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include
    DOC "Folder of picojson.h" REQUIRED)
set(picojson_alone "${PROJECT_BINARY_DIR}/picojson")
configure_file("${PICOJSON_INCLUDE_DIR}/picojson.h" "${picojson_alone}/picojson.h" COPYONLY)

add_library(picojson INTERFACE)
target_include_directories(picojson SYSTEM INTERFACE "${picojson_alone}")

# CLI11 is a folder of headers, copied for the same reason.
find_path(CLI11_INCLUDE_DIR CLI/CLI.hpp NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include
    DOC "Folder of CLI/CLI.hpp" REQUIRED)
set(cli11_alone "${PROJECT_BINARY_DIR}/cli11")
file(COPY "${CLI11_INCLUDE_DIR}/CLI" DESTINATION "${cli11_alone}")

add_library(cli11 INTERFACE)
target_include_directories(cli11 SYSTEM INTERFACE "${cli11_alone}")

# Defines GTest::gtest and GTest::gtest_main: the system's libraries, or in a cross build, which has
# none, libraries built from the sources that the system keeps.
macro(metagen_find_googletest)
    if(NOT CMAKE_CROSSCOMPILING)
        find_package(GTest REQUIRED)
    else()
        find_path(GOOGLETEST_SOURCE_DIR src/gtest-all.cc NO_CMAKE_FIND_ROOT_PATH
            PATHS /usr/src/googletest/googletest DOC "Sources of GoogleTest" REQUIRED)
        add_library(gtest STATIC EXCLUDE_FROM_ALL "${GOOGLETEST_SOURCE_DIR}/src/gtest-all.cc")
        target_include_directories(gtest SYSTEM
            PUBLIC "${GOOGLETEST_SOURCE_DIR}/include" PRIVATE "${GOOGLETEST_SOURCE_DIR}")
        add_library(gtest_main STATIC EXCLUDE_FROM_ALL
            "${GOOGLETEST_SOURCE_DIR}/src/gtest_main.cc")
        target_link_libraries(gtest_main PUBLIC gtest)
        add_library(GTest::gtest ALIAS gtest)
        add_library(GTest::gtest_main ALIAS gtest_main)
    endif()
endmacro()
