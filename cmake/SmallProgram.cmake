# What is built for use is to be small: of a program's code, the pages that a start has touched stay in the memory of
# each that runs it. Functions and data that nobody uses are left out, and what is not on the way of a key, a paint or a
# pass over a page is built for size: measured, all of that is a fifth of the program.
include(CheckCXXSourceRuns)
include(CheckLinkerFlag)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    add_compile_options(-O2 -ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections)
    # The list of the places that a start has to put addresses into, at a few bits each instead of 24 bytes. What links
    # it need not be what can load it, so a program has to run.
    set(CMAKE_REQUIRED_LINK_OPTIONS -Wl,-z,pack-relative-relocs)
    if(NOT CMAKE_CROSSCOMPILING)
        check_cxx_source_runs("static int a; int *const places[] = {&a}; int main() { return *places[0]; }"
            TAGWRIGHTER_PACKS_RELOCATIONS)
    endif()
    unset(CMAKE_REQUIRED_LINK_OPTIONS)
    if(TAGWRIGHTER_PACKS_RELOCATIONS)
        add_link_options(-Wl,-z,pack-relative-relocs)
    endif()
    set(CMAKE_CXX_VISIBILITY_PRESET hidden) # calls within a library need no detour by a table then
    set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
endif()

# The folders of src/ whose code is built for speed; all others are for windows that somebody opens and reads.
set(TAGWRIGHTER_FAST_FOLDERS common services storage widgets surface codeknowledge document texttools)

# tagwrighter_is_small(FOLDER RESULT): whether its code is built for size.
function(tagwrighter_is_small folder result)
    set(${result} FALSE PARENT_SCOPE)
    if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT folder IN_LIST TAGWRIGHTER_FAST_FOLDERS)
        set(${result} TRUE PARENT_SCOPE)
    endif()
endfunction()

# tagwrighter_orders_functions(PROGRAM): has the functions that a start runs beside one another. They are a quarter of the
# program's code, but scattered they have all of its pages read. With a linker that knows no such scripts, or without a
# release build, they stay where they are.
option(TAGWRIGHTER_ORDERS_FUNCTIONS "The functions that a start runs stand together in a release build" ON)
set(TAGWRIGHTER_START_FUNCTIONS ${CMAKE_CURRENT_LIST_DIR}/startFunctions.txt)
function(tagwrighter_orders_functions program)
    if(NOT TAGWRIGHTER_ORDERS_FUNCTIONS OR NOT CMAKE_BUILD_TYPE STREQUAL "Release")
        return()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${TAGWRIGHTER_START_FUNCTIONS})
    file(STRINGS ${TAGWRIGHTER_START_FUNCTIONS} functions REGEX "^_")
    list(TRANSFORM functions REPLACE "(.+)" "    *(.text.\\1 .text.\\1.*)\n")
    string(JOIN "" sections ${functions})
    set(script ${CMAKE_CURRENT_BINARY_DIR}/startFunctions.ld)
    file(CONFIGURE OUTPUT ${script} CONTENT "SECTIONS\n{\n  .text.start :\n  {\n${sections}  }\n}\nINSERT BEFORE .text;\n")
    check_linker_flag(CXX "-Wl,-T,${script}" TAGWRIGHTER_TAKES_SCRIPTS)
    if(TAGWRIGHTER_TAKES_SCRIPTS)
        target_link_options(${program} PRIVATE -Wl,-T,${script})
        set_property(TARGET ${program} APPEND PROPERTY LINK_DEPENDS ${script})
    endif()
endfunction()
