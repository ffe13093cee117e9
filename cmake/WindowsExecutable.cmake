# What an executable needs on Windows beyond its sources; elsewhere nothing is done.

if(WIN32)
    enable_language(RC)
endif()
set(metagen_windows_folder "${CMAKE_CURRENT_LIST_DIR}/windows")

# The manifest switches the process to the UTF-8 code page, so that narrow paths can name any
# file, and lifts the bound on path lengths. The stack is as large as elsewhere, since documents
# may nest deeply.
function(metagen_windows_executable target)
    if(NOT WIN32)
        return()
    endif()
    if(MSVC)
        target_sources(${target} PRIVATE "${metagen_windows_folder}/utf8.manifest")
        target_link_options(${target} PRIVATE /STACK:8388608)
    else()
        target_sources(${target} PRIVATE "${metagen_windows_folder}/manifest.rc")
        target_link_options(${target} PRIVATE -Wl,--stack,8388608)
    endif()
endfunction()
