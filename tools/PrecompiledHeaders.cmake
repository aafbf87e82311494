# Precompiled headers that leave one compiler cache to all clones.
#
# What clang precompiles holds the paths of its input, its output and its include folders, and names the files when it
# is used: from the cache it would come with those of another clone. So its headers come from standard input, and what
# it writes goes to standard output, with "/" as its folder and without the tree's own folder. Two clones then get the
# same bytes, and ccache, which compares them, finds what the other has compiled.

# zelk_precompile_headers(target <header>...): TARGET's sources begin with these headers of the toolkit or the
# system.
function(zelk_precompile_headers target)
    if(NOT ZELK_PCH)
        return()
    endif()
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_precompile_headers(${target} PRIVATE ${ARGN})
        return()
    endif()
    set(out ${CMAKE_BINARY_DIR}/${target}.precompiled)
    list(TRANSFORM ARGN PREPEND "#include " OUTPUT_VARIABLE lines)
    list(JOIN lines "\n" lines)
    file(CONFIGURE OUTPUT ${out}.h CONTENT "${lines}\n" @ONLY)

    string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
    separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}")
    set(options "$<FILTER:$<TARGET_PROPERTY:${target},COMPILE_OPTIONS>,EXCLUDE,^SHELL:>")
    set(definitions "$<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>")
    set(folders "$<TARGET_PROPERTY:zelk_wx,INTERFACE_INCLUDE_DIRECTORIES>")
    add_custom_command(OUTPUT ${out}
        COMMAND ${CMAKE_CXX_COMPILER} ${flags} -std=c++${CMAKE_CXX_STANDARD} "${options}"
            "$<$<BOOL:${definitions}>:-D$<JOIN:${definitions},;-D>>"
            "$<$<BOOL:${folders}>:-isystem$<JOIN:${folders},;-isystem>>"
            -Xclang -emit-pch -Xclang -fno-pch-timestamp -MD -MT ${out} -MF ${out}.d
            -x c++-header - -o - < ${out}.h > ${out}.new
        COMMAND ${CMAKE_COMMAND} -E rename ${out}.new ${out}
        DEPENDS ${out}.h DEPFILE ${out}.d WORKING_DIRECTORY / COMMAND_EXPAND_LISTS
        COMMENT "Precompiling the headers of ${target}")
    add_custom_target(${target}_precompiled DEPENDS ${out})
    zelk_reuse_precompiled_headers(${target} ${target})
endfunction()

# zelk_reuse_precompiled_headers(target other): TARGET's sources begin with the headers that OTHER precompiles. Its
# options and definitions must be those of OTHER, or clang refuses them.
function(zelk_reuse_precompiled_headers target other)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_precompile_headers(${target} REUSE_FROM ${other})
        return()
    endif()
    target_compile_options(${target} PRIVATE
        "SHELL:-Xclang -include-pch -Xclang \"${CMAKE_BINARY_DIR}/${other}.precompiled\"")
    add_dependencies(${target} ${other}_precompiled)
endfunction()
