# What every target of the house is compiled with, and the one way to make a library of it.

add_library(app_flags INTERFACE)
target_compile_features(app_flags INTERFACE cxx_std_20)
target_compile_options(app_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# g++ 12 sees overlapping copies in the assignment of a literal to a std::string; later ones don't.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(app_flags INTERFACE -Wno-restrict)
endif()
target_include_directories(app_flags INTERFACE ${CMAKE_SOURCE_DIR})
if(WIN32)
    # One file that needs nothing of the compiler's own beside it; Windows 10 and later.
    target_compile_definitions(app_flags INTERFACE UNICODE _WIN32_WINNT=0x0A00)
    target_link_options(app_flags INTERFACE -static)
endif()
if(NAVARUN_SANITIZE)
    target_compile_options(app_flags INTERFACE
        -fsanitize=${NAVARUN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    target_link_options(app_flags INTERFACE -fsanitize=${NAVARUN_SANITIZE})
endif()
if(NAVARUN_COVERAGE)
    target_compile_options(app_flags INTERFACE --coverage)
    target_link_options(app_flags INTERFACE --coverage)
endif()

# app_library(<name> SOURCES <files> [DEPENDS <libraries of the house>])
# A static library app::<name>; what it depends on is visible to its users, the flags are not.
function(app_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
    add_library(navarun_${name} STATIC ${arg_SOURCES})
    add_library(app::${name} ALIAS navarun_${name})
    target_compile_features(navarun_${name} PUBLIC cxx_std_20)
    target_include_directories(navarun_${name} PUBLIC ${CMAKE_SOURCE_DIR})
    target_link_libraries(navarun_${name} PRIVATE app_flags)
    if(NAVARUN_SANITIZE)
        # Watched code is slow; the tests, which are most of what is compiled, do without.
        target_compile_options(navarun_${name} PRIVATE -O1)
    endif()
    if(NAVARUN_FUZZ)
        target_compile_options(navarun_${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    foreach(dependency IN LISTS arg_DEPENDS)
        target_link_libraries(navarun_${name} PUBLIC app::${dependency})
    endforeach()
endfunction()
