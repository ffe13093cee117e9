# What `cmake --install` lays down beyond the package for hosts: the manual, completions, schemas,
# the Python tools, documentation and examples, in their standard places.

include(GNUInstallDirs)

if(METAGEN_MANUAL)
    install(FILES "${METAGEN_MANUAL_FOLDER}/manual.html" "${METAGEN_MANUAL_FOLDER}/lint.html"
        DESTINATION "${CMAKE_INSTALL_DOCDIR}")
endif()
if(METAGEN_MANUAL AND NOT WIN32)
    install(FILES "${METAGEN_MANUAL_FOLDER}/metagen.1" "${METAGEN_MANUAL_FOLDER}/metagen-lint.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    foreach(tool IN ITEMS metagen-report metagen-schema metagen-show)  # described in the same page
        file(WRITE "${METAGEN_MANUAL_FOLDER}/${tool}.1" ".so man1/metagen.1\n")
        install(FILES "${METAGEN_MANUAL_FOLDER}/${tool}.1"
            DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    endforeach()
endif()
if(NOT WIN32)
    # bash looks for a file of each one's name.
    foreach(command IN ITEMS metagen metagen-schema metagen-show)
        install(FILES completions/metagen.bash RENAME ${command}
            DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
    endforeach()
    install(FILES completions/metagen-lint.bash RENAME metagen-lint
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
    install(FILES completions/_metagen completions/_metagen-lint
        DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
endif()

install(PROGRAMS tools/metagen-report tools/metagen-schema tools/metagen-show
    DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY tools/metagen_report DESTINATION "${CMAKE_INSTALL_DATADIR}/metagen"
    FILES_MATCHING PATTERN "*.py" PATTERN "*.css" PATTERN "*.js" PATTERN __pycache__ EXCLUDE)

install(DIRECTORY schemas DESTINATION "${CMAKE_INSTALL_DATADIR}/metagen")
install(DIRECTORY examples DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(FILES CHANGELOG.md LICENSE NOTICE DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(FILES
    docs/bin-formats.md
    docs/handlers.ksy
    docs/inl-vocabulary.md
    docs/integrating.md
    docs/lint.md
    docs/manual.md
    docs/meta.ksy
    DESTINATION "${CMAKE_INSTALL_DOCDIR}/docs")
