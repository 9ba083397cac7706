# Pictures drawn by the build at the sizes that screens ask for most.

# draw_ahead(<variable> <folder> SIZES <sizes>... PICTURES <names>...): each picture of assets/
# as name@size in <folder>, at each of the sizes; their files are added to <variable>. A size is
# a factor of the picture's own, or dots as 305x105.
function(draw_ahead variable folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SIZES;PICTURES")
    file(MAKE_DIRECTORY ${folder})
    set(images)
    foreach(name IN LISTS arg_PICTURES)
        foreach(size IN LISTS arg_SIZES)
            list(APPEND images ${folder}/${name}@${size})
        endforeach()
    endforeach()
    list(TRANSFORM arg_PICTURES REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/assets/\\1.svg")
    list(JOIN arg_SIZES "," sizes)
    add_custom_command(OUTPUT ${images} DEPENDS draw_ahead ${arg_PICTURES}
        COMMAND draw_ahead ${folder} ${sizes} ${arg_PICTURES} VERBATIM)
    set(${variable} ${${variable}} ${images} PARENT_SCOPE)
endfunction()
