# Run as a script by the rules of metagen_generate_tables: has the tool generate one table, and
# hands it over only when the run did not fail and the checker can read it.
#
#     cmake -DTOOL=<metagen> -DCHECKER=<check-tables> -DLAUNCHER=<program or nothing>
#           -DCOMMAND=<genh or genm> -DDOCUMENT=<combined.json> -DOUTPUT=<path without suffix>
#           -P MetagenTables.cmake
#
# Beside <path>.bin and <path>.inl stands <path>.generated.inl, the source text as the tool wrote
# it. Its format has places that no C++ compiler takes, which <path>.inl completes:
# - a table of file parameters without entries lacks its opening brace;
# - so does an array without elements, which becomes a std::array of none;
# - of the largest integers the array has 2147483648, the nearest float, and no int holds that;
# - a float whose six digits don't show its fraction lacks its point: "1f", "123457f";
# - infinities and NaNs are "inff" and "nanf", the latter a function of the C library.

# complete_floats(<variable> <before> <after>): completes the floats in the variable's text that
# stand between these two expressions, which tell them from parts of the document's own texts: no
# text of a document holds a line break.
function(complete_floats variable before after)
    set(text "${${variable}}")
    string(REGEX REPLACE "(${before}-?[0-9]+)f(${after})" "\\1.f\\2" text "${text}")
    string(REGEX REPLACE "(${before}-?)inff(${after})"
        "\\1std::numeric_limits<float>::infinity()\\2" text "${text}")
    string(REGEX REPLACE "(${before}-?)nanf(${after})"
        "\\1std::numeric_limits<float>::quiet_NaN()\\2" text "${text}")
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

set(generated "${OUTPUT}.generated")
cmake_path(GET OUTPUT PARENT_PATH folder)
file(MAKE_DIRECTORY "${folder}")

# run(<what> <program> <argument>...): the program, through the launcher. Ends the build when it fails.
function(run what)
    execute_process(COMMAND ${LAUNCHER} ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE printed ERROR_VARIABLE printed)
    if(printed)
        message(NOTICE "${what}: ${printed}")
    endif()
    if(NOT status EQUAL 0)
        if(printed MATCHES "Cannot load Qyra SDK Library")
            string(CONCAT hint "The SDK's root folder is SDK_ROOT of metagen_generate_tables, or else the one "
                "that QYRA_SDK names when the build runs.\n")
        else()
            string(CONCAT hint "metagen-lint finds the mistake in the stripped document that it was made of:\n"
                "  metagen-lint --base <base.json> <stripped.json>\n${hint}")
        endif()
        message(FATAL_ERROR "${what} failed (${status}) on the combined document\n"
            "  ${DOCUMENT}\n${hint}")
    endif()
endfunction()

run("metagen ${COMMAND}" "${TOOL}" ${COMMAND} -i "${DOCUMENT}" -o "${generated}")
set(hint "A table that nobody can read comes of a scaling condition whose \"value\" is no number.\n")
run("reading what metagen ${COMMAND} wrote" "${CHECKER}" "${generated}.bin")

file(READ "${generated}.inl" source)
string(REPLACE "\r\n" "\n" source "${source}")
string(FIND "${source}" "\nMeta m(" arrays_end)
if(arrays_end LESS 0)
    foreach(argument RANGE 1 3)  # at most three stand in a line, and the last of them is found
        complete_floats(source "HandlerTypes::[^\"\n]* " "[,)]")
    endforeach()
else()
    string(SUBSTRING "${source}" 0 ${arrays_end} arrays)
    string(SUBSTRING "${source}" ${arrays_end} -1 body)
    string(REGEX REPLACE "constexpr (int|float) ([a-z0-9]+)\\[\\] = };"
        "constexpr std::array<\\1, 0> \\2 = {};" arrays "${arrays}")
    string(REGEX REPLACE " 2147483648([,}])" " 2147483647\\1" arrays "${arrays}")
    complete_floats(arrays " " "[,}]")
    complete_floats(body ", " "\\);?\n")
    complete_floats(body "Scaling::Operation::Equals, " " },?\n")
    string(REPLACE "Params = \n};" "Params = {\n};" body "${body}")
    set(source "${arrays}${body}")
endif()
file(WRITE "${OUTPUT}.inl" "${source}")
file(RENAME "${generated}.bin" "${OUTPUT}.bin")
