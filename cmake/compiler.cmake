# What every target of ours is compiled and linked with.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
                    -Woverloaded-virtual -Werror)

# GCC 12 sees an overlap in std::string that cannot be (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)
endif()

# A release is hardened as Debian's own packages are (dpkg-buildflags). Debian's compilers make PIEs by themselves.
add_compile_options($<$<CONFIG:Release>:-fstack-protector-strong> $<$<CONFIG:Release>:-Wformat>
                    $<$<CONFIG:Release>:-Werror=format-security> $<$<CONFIG:Release>:-U_FORTIFY_SOURCE>
                    $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
add_link_options($<$<CONFIG:Release>:-Wl,-z,relro> $<$<CONFIG:Release>:-Wl,-z,now>)

find_program(MOLD mold)
if(MOLD)
    add_link_options(-fuse-ld=mold)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    # Precompiled headers are made anew by every build folder.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime ${CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    endif()
endif()

if(CORVANE_SANITIZERS)
    add_compile_options(-fsanitize=${CORVANE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${CORVANE_SANITIZERS})
endif()

if(CORVANE_TIDY)
    find_program(CLANG_TIDY clang-tidy REQUIRED)
    set(CMAKE_CXX_CLANG_TIDY ${CLANG_TIDY};--quiet)
endif()
