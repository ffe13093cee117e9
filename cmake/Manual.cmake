# The manual, from its sources docs/manual.md and docs/lint.md: man pages and pages of HTML. Made by
# pandoc, where there is one: METAGEN_MANUAL tells whether it is made, and METAGEN_MANUAL_FOLDER where.

find_program(PANDOC pandoc DOC "Makes the manual")
mark_as_advanced(PANDOC)
set(METAGEN_MANUAL ${PANDOC})
set(METAGEN_MANUAL_FOLDER "${PROJECT_BINARY_DIR}/manual")
if(NOT METAGEN_MANUAL)
    message(STATUS "pandoc not found: the manual is not made")
    return()
endif()

set(style "${CMAKE_CURRENT_LIST_DIR}/manual")
# Quotes and dashes stay as they are: much of the manual is to be typed.
set(pandoc "${PANDOC}" --standalone --from markdown-smart)
set(pages "")

# A page of docs as a man page and as a page of HTML: metagen_page(<name of its file> <program>).
function(metagen_page name program)
    set(source "${PROJECT_SOURCE_DIR}/docs/${name}.md")
    set(man_page "${METAGEN_MANUAL_FOLDER}/${program}.1")
    set(html_page "${METAGEN_MANUAL_FOLDER}/${name}.html")
    add_custom_command(OUTPUT "${man_page}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${METAGEN_MANUAL_FOLDER}"
        COMMAND ${pandoc} --to man --lua-filter "${style}/man.lua"
            --variable "footer:metagen ${PROJECT_VERSION}" --output "${man_page}" "${source}"
        DEPENDS "${source}" "${style}/man.lua"
        VERBATIM)
    add_custom_command(OUTPUT "${html_page}"
        COMMAND "${CMAKE_COMMAND}" -E make_directory "${METAGEN_MANUAL_FOLDER}"
        COMMAND ${pandoc} --to html5 --toc --toc-depth 2 --self-contained --no-highlight
            --lua-filter "${style}/html.lua"
            --css "${style}/manual.css" --metadata "title:${program} ${PROJECT_VERSION}"
            --output "${html_page}" "${source}"
        DEPENDS "${source}" "${style}/manual.css" "${style}/html.lua"
        VERBATIM)
    set(pages ${pages} "${man_page}" "${html_page}" PARENT_SCOPE)
endfunction()

metagen_page(manual metagen)
metagen_page(lint metagen-lint)
add_custom_target(manual ALL DEPENDS ${pages})
