# What `cpack` packs: on Linux a .deb with everything, for Windows a .zip with the tool and another
# one with the replay SDK.

set(METAGEN_PACKAGE_CONTACT "The metagen authors <authors@metagen.invalid>" CACHE STRING
    "Name and address of whoever makes packages, for the packages")

set(CPACK_PACKAGE_VENDOR "The metagen authors")
set(CPACK_PACKAGE_CONTACT "${METAGEN_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "metadata of a rendering SDK's plugin classes for hosts")
set(CPACK_PACKAGE_DESCRIPTION
"metagen asks an installed Qyra SDK about its plugin classes and makes from
the answers what a host application needs: documents to look at and to keep,
a report of what a new version of the SDK changed, and generated source text
with binary tables to compile in. A stand-in for the SDK comes along, which
answers from a document.")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL metagen replay_sdk)
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
    set(CPACK_COMPONENTS_GROUPING IGNORE)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
    set(CPACK_ARCHIVE_METAGEN_FILE_NAME "metagen-${PROJECT_VERSION}-windows-x86_64")
    set(CPACK_ARCHIVE_REPLAY_SDK_FILE_NAME "metagen-replay-sdk-${PROJECT_VERSION}-windows-x86_64")
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
    set(CPACK_DEBIAN_PACKAGE_SECTION devel)
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "python3")  # the tools beside metagen
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
    set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/packing/finish_deb.cmake")
endif()

include(CPack)
