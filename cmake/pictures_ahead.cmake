# Pictures drawn by the build at the sizes that screens ask for most.

# draw_ahead(<variable> <folder> SCALES <scales>... PICTURES <names>...): each picture of assets/
# as name@scale in <folder>, at each of the scales; their files are added to <variable>.
function(draw_ahead variable folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "SCALES;PICTURES")
    file(MAKE_DIRECTORY ${folder})
    set(images)
    foreach(name IN LISTS arg_PICTURES)
        foreach(scale IN LISTS arg_SCALES)
            list(APPEND images ${folder}/${name}@${scale})
        endforeach()
    endforeach()
    list(TRANSFORM arg_PICTURES REPLACE "(.+)" "${CMAKE_SOURCE_DIR}/assets/\\1.svg")
    list(JOIN arg_SCALES "," scales)
    add_custom_command(OUTPUT ${images} DEPENDS draw_ahead ${arg_PICTURES}
        COMMAND draw_ahead ${folder} ${scales} ${arg_PICTURES} VERBATIM)
    set(${variable} ${${variable}} ${images} PARENT_SCOPE)
endfunction()
