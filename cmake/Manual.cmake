# The manual, from its one source docs/manual.md: a man page and a page of HTML. Made by pandoc,
# where there is one: METAGEN_MANUAL tells whether it is made, and METAGEN_MANUAL_FOLDER where.

find_program(PANDOC pandoc DOC "Makes the manual")
mark_as_advanced(PANDOC)
set(METAGEN_MANUAL ${PANDOC})
set(METAGEN_MANUAL_FOLDER "${PROJECT_BINARY_DIR}/manual")
if(NOT METAGEN_MANUAL)
    message(STATUS "pandoc not found: the manual is not made")
    return()
endif()

set(source "${PROJECT_SOURCE_DIR}/docs/manual.md")
set(style "${CMAKE_CURRENT_LIST_DIR}/manual")
set(man_page "${METAGEN_MANUAL_FOLDER}/metagen.1")
set(html_page "${METAGEN_MANUAL_FOLDER}/manual.html")
# Quotes and dashes stay as they are: much of the manual is to be typed.
set(pandoc "${PANDOC}" --standalone --from markdown-smart)

add_custom_command(OUTPUT "${man_page}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${METAGEN_MANUAL_FOLDER}"
    COMMAND ${pandoc} --to man --lua-filter "${style}/man.lua"
        --variable "footer:metagen ${PROJECT_VERSION}" --output "${man_page}" "${source}"
    DEPENDS "${source}" "${style}/man.lua"
    VERBATIM)
add_custom_command(OUTPUT "${html_page}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${METAGEN_MANUAL_FOLDER}"
    COMMAND ${pandoc} --to html5 --toc --toc-depth 2 --self-contained --no-highlight
        --css "${style}/manual.css" --metadata "title:metagen ${PROJECT_VERSION}"
        --output "${html_page}" "${source}"
    DEPENDS "${source}" "${style}/manual.css"
    VERBATIM)
add_custom_target(manual ALL DEPENDS "${man_page}" "${html_page}")
