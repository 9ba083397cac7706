# The pictures drawn by the build, for a toolkit that reads no vectors.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# draw_pictures(<variable> <folder> <names>...): each picture of assets/ as name.png, name@2x.png
# and name@3x.png in <folder>; their files in <variable>. Those made for paper are large enough
# at their own size.
function(draw_pictures variable folder)
    file(MAKE_DIRECTORY ${folder})
    set(files)
    foreach(name IN LISTS ARGN)
        set(source ${CMAKE_SOURCE_DIR}/assets/${name}.svg)
        file(STRINGS ${source} head LIMIT_COUNT 1)
        if(head MATCHES "width=\"[0-9][0-9][0-9][0-9]")
            set(scales 1)
        else()
            set(scales 1 2 3)
        endif()
        foreach(scale IN LISTS scales)
            if(scale EQUAL 1)
                set(file ${folder}/${name}.png)
            else()
                set(file ${folder}/${name}@${scale}x.png)
            endif()
            add_custom_command(OUTPUT ${file} DEPENDS ${source}
                COMMAND ${RSVG_CONVERT} --zoom ${scale} --output ${file} ${source} VERBATIM)
            list(APPEND files ${file})
        endforeach()
    endforeach()
    set(${variable} ${files} PARENT_SCOPE)
endfunction()
