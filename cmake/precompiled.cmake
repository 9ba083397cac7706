# Headers that most files of a target begin with, read once for all of them.
#
# By the g++ of here alone: clang, by which the source is watched and read, and the compiler for
# Windows see whether each file names all that it uses.

function(precompiled target)
    if(CMAKE_CROSSCOMPILING OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        return()
    endif()
    target_precompile_headers(${target} ${ARGN})
    # So that ccache sees what a file includes besides.
    target_compile_options(${target} PRIVATE -fpch-preprocess)
endfunction()

# precompiled_headers(<target> <headers>...)
function(precompiled_headers target)
    precompiled(${target} PRIVATE ${ARGN})
endfunction()

# precompiled_as(<target> <other>): those of another target, compiled with the same flags.
function(precompiled_as target other)
    precompiled(${target} REUSE_FROM ${other})
endfunction()
