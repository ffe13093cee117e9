# For host applications: generates metagen's tables as a part of their build.
#
#     metagen_generate_tables(TARGET <target> DOCUMENT <combined.json> [SDK_ROOT <folder>])
#
# Adds the rules that run genh and genm on the combined document, again whenever the document or
# metagen changes, and puts the folder with the outputs on the target's include path. The target's
# property METAGEN_TABLES_FOLDER names that folder. It holds handlers.inl and handlers.bin by genh,
# meta.inl and meta.bin by genm. The .bin files are the tool's own, byte by byte; so are the .inl
# files, but where they would not compile: see MetagenTables.cmake. The build ends when a command fails,
# or when a .bin file is one that the reader of metagen::host refuses.
#
# metagen loads the SDK's library in every run. SDK_ROOT is the SDK's root folder, the one with
# `bin` below; METAGEN_REPLAY_SDK_ROOT, which the package sets, serves where no SDK is installed.
# Without SDK_ROOT the environment of the build decides; an empty one is refused.
#
#     metagen_lint(DOCUMENT <stripped.json> [BASE <base.json>] [PREVIOUS <base.json>])
#
# Adds the target <name of the document>_lint, which runs metagen-lint on the stripped document, and,
# where the host has tests, a test of that name. Both fail when there is an error. Without BASE the
# installed SDK is asked.
#
# A metagen for another system than the build machine's is run through the program (with its
# arguments) that METAGEN_LAUNCHER names, by default CMAKE_CROSSCOMPILING_EMULATOR.

# What runs metagen on the build machine, if anything is needed.
function(metagen_launcher variable)
    set(launcher "")
    if(NOT METAGEN_SYSTEM STREQUAL CMAKE_HOST_SYSTEM_NAME)
        set(launcher ${CMAKE_CROSSCOMPILING_EMULATOR})
        if(METAGEN_LAUNCHER)
            set(launcher ${METAGEN_LAUNCHER})
        endif()
    endif()
    set(${variable} "${launcher}" PARENT_SCOPE)
endfunction()

function(metagen_generate_tables)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "TARGET;DOCUMENT;SDK_ROOT" "")
    if(NOT arg_TARGET OR NOT arg_DOCUMENT OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "metagen_generate_tables takes TARGET <target>, "
            "DOCUMENT <combined.json> and, optionally, SDK_ROOT <folder>")
    endif()
    if(NOT TARGET "${arg_TARGET}")
        message(FATAL_ERROR "metagen_generate_tables: there is no target ${arg_TARGET} above this")
    endif()
    if("SDK_ROOT" IN_LIST ARGV AND "${arg_SDK_ROOT}" STREQUAL "")
        message(FATAL_ERROR "metagen_generate_tables(TARGET ${arg_TARGET}): SDK_ROOT is empty. "
            "It takes the SDK's root folder, the one with bin below. Where no SDK is installed, "
            "SDK_ROOT \"\${METAGEN_REPLAY_SDK_ROOT}\" takes the replay SDK. Without SDK_ROOT, "
            "the environment variable QYRA_SDK names the folder when the build runs.")
    endif()
    cmake_path(ABSOLUTE_PATH arg_DOCUMENT)
    set(environment "")
    if(arg_SDK_ROOT)
        cmake_path(ABSOLUTE_PATH arg_SDK_ROOT)
        # metagen would look at the other variable first.
        set(environment --unset=QYRA_APPSDK_BIN "QYRA_SDK=${arg_SDK_ROOT}")
    endif()
    metagen_launcher(launcher)

    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}_tables")
    set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/MetagenTables.cmake")
    set(commands genh genm)
    set(tables handlers meta)
    foreach(command table IN ZIP_LISTS commands tables)
        # METAGEN_SDK_TARGETS: what a build that makes the SDK's stand-in itself has to make first.
        add_custom_command(
            OUTPUT "${folder}/${table}.inl" "${folder}/${table}.bin"
            BYPRODUCTS "${folder}/${table}.generated.inl"
            COMMAND "${CMAKE_COMMAND}" -E env ${environment}
                "${CMAKE_COMMAND}" "-DLAUNCHER=${launcher}" "-DTOOL=$<TARGET_FILE:metagen::metagen>"
                "-DCHECKER=$<TARGET_FILE:metagen::check_tables>"
                -DCOMMAND=${command} "-DDOCUMENT=${arg_DOCUMENT}" "-DOUTPUT=${folder}/${table}"
                -P "${script}"
            DEPENDS "${arg_DOCUMENT}" "${script}" metagen::metagen metagen::check_tables
                "$<TARGET_FILE:metagen::metagen>" ${METAGEN_SDK_TARGETS}
            COMMENT "Generating ${table}.inl and ${table}.bin for ${arg_TARGET}"
            VERBATIM)
        target_sources(${arg_TARGET} PRIVATE "${folder}/${table}.inl" "${folder}/${table}.bin")
    endforeach()
    target_include_directories(${arg_TARGET} PRIVATE "${folder}")
    set_target_properties(${arg_TARGET} PROPERTIES METAGEN_TABLES_FOLDER "${folder}")
endfunction()

function(metagen_lint)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "DOCUMENT;BASE;PREVIOUS" "")
    if(NOT arg_DOCUMENT OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "metagen_lint takes DOCUMENT <stripped.json> and, optionally, "
            "BASE <base.json> and PREVIOUS <base.json>")
    endif()
    metagen_launcher(launcher)
    set(command ${launcher} "$<TARGET_FILE:metagen::metagen-lint>")
    foreach(option BASE PREVIOUS)
        if(arg_${option})
            cmake_path(ABSOLUTE_PATH arg_${option})
            string(TOLOWER "--${option}" word)
            list(APPEND command ${word} "${arg_${option}}")
        endif()
    endforeach()
    cmake_path(ABSOLUTE_PATH arg_DOCUMENT)
    cmake_path(GET arg_DOCUMENT STEM name)
    list(APPEND command "${arg_DOCUMENT}")
    add_custom_target(${name}_lint COMMAND ${command} DEPENDS metagen::metagen-lint VERBATIM)
    add_test(NAME ${name}_lint COMMAND ${command})
endfunction()
