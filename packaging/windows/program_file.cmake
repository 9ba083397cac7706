# The icon, the version and what the system is told of the program, inside navarun.exe; and the
# toolkit's French words, for nothing stands beside it.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(CONVERT convert REQUIRED)

set(icon ${CMAKE_CURRENT_BINARY_DIR}/navarun.ico)
set(drawn_icons)
foreach(size 16 24 32 48 64 128 256)
    set(drawn_icon ${CMAKE_CURRENT_BINARY_DIR}/navarun-${size}.png)
    add_custom_command(OUTPUT ${drawn_icon} DEPENDS ${CMAKE_SOURCE_DIR}/assets/navarun.svg
        COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${drawn_icon}
            ${CMAKE_SOURCE_DIR}/assets/navarun.svg VERBATIM)
    list(APPEND drawn_icons ${drawn_icon})
endforeach()
add_custom_command(OUTPUT ${icon} DEPENDS ${drawn_icons}
    COMMAND ${CONVERT} ${drawn_icons} ${icon} VERBATIM)

set(resource ${CMAKE_CURRENT_BINARY_DIR}/navarun.rc)
configure_file(${CMAKE_CURRENT_LIST_DIR}/navarun.rc.in ${resource} @ONLY)
set_source_files_properties(${resource} PROPERTIES
    OBJECT_DEPENDS "${icon};${CMAKE_CURRENT_LIST_DIR}/navarun.exe.manifest")
target_sources(navarun PRIVATE ${resource} ${icon})

find_file(french_words qtbase_fr.qm REQUIRED NO_CMAKE_FIND_ROOT_PATH
    PATHS /usr/share/qt6/translations)
configure_file(${french_words} ${CMAKE_CURRENT_BINARY_DIR}/words/qtbase_fr.qm COPYONLY)
qt_add_resources(navarun words PREFIX /translations
    BASE ${CMAKE_CURRENT_BINARY_DIR}/words
    FILES ${CMAKE_CURRENT_BINARY_DIR}/words/qtbase_fr.qm)
