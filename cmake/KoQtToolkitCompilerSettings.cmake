# Warnings, sanitizers and visibility shared by every target of the project.

add_compile_options(-Wall -Wextra)
if(KO_QTTOOLKIT_DEVELOPER_MODE)
    add_compile_options(-Werror)
endif()

if(KO_QTTOOLKIT_SANITIZERS)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
