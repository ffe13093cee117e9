# Warnings are errors in the project's own code. Every target of ours links metagen_warnings;
# other people's headers come in as system headers and stay out of it.

add_library(metagen_warnings INTERFACE)

if(MSVC)
    target_compile_options(metagen_warnings INTERFACE /W4 /WX)
else()
    target_compile_options(metagen_warnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Werror)
endif()
