# Run by cpack on the tree that it is about to pack: what Debian's policy asks beyond an installation
# elsewhere.

set(share "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share")
set(doc "${share}/doc/metagen")

# Debian's zsh looks in another folder than that of other systems.
file(MAKE_DIRECTORY "${share}/zsh/vendor-completions")
foreach(completion _metagen _metagen-lint)
    file(RENAME "${share}/zsh/site-functions/${completion}"
        "${share}/zsh/vendor-completions/${completion}")
endforeach()
file(REMOVE_RECURSE "${share}/zsh/site-functions")

# The licence stands in the file copyright, the changes in changelog.gz.
file(READ "${doc}/LICENSE" licence)
file(READ "${doc}/NOTICE" notice)
file(WRITE "${doc}/copyright" "${licence}\n${notice}")
file(REMOVE "${doc}/LICENSE" "${doc}/NOTICE")
file(RENAME "${doc}/CHANGELOG.md" "${doc}/changelog")

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE "${doc}/changelog.Debian"
"metagen (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * See changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")

file(GLOB man_pages "${share}/man/man1/*.1")
execute_process(
    COMMAND gzip -9n "${doc}/changelog" "${doc}/changelog.Debian" ${man_pages}
    COMMAND_ERROR_IS_FATAL ANY)
