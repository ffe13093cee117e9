# What holds for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The replay SDK is a shared library that links metagen_core. It must show the SDK's entry points
# and nothing else, least of all symbols that the tool has too.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

option(METAGEN_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
if(METAGEN_SANITIZE)
    set(sanitizers address,undefined,float-cast-overflow,float-divide-by-zero)
    add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Among the sanitizers' own code gcc takes empty optionals for uninitialised ones. Its
        # other builds keep the warning.
        add_compile_options(-Wno-maybe-uninitialized)
    endif()
    add_link_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all)
endif()

option(METAGEN_FUZZ "Build the fuzz targets as fuzzers, which takes clang" OFF)
if(METAGEN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(WIN32)
    add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN)
endif()

if(MINGW)
    # The C library's own printf family instead of the system's; and no MinGW library beside what
    # is built.
    add_compile_definitions(__USE_MINGW_ANSI_STDIO=1)
    add_link_options(-static)
endif()

if(MSVC)
    set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
    add_compile_options(/utf-8 /permissive- /EHsc /Zc:__cplusplus)
    add_compile_definitions(_CRT_SECURE_NO_WARNINGS)
endif()
