# What is built for use is to be small: of a program's code, the pages that a start has touched stay in the memory of
# each that runs it. Functions and data that nobody uses are left out, and what is not on the way of a key, a paint or a
# pass over a page is built for size: measured, all of that is a fifth of the program.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    add_compile_options(-O2 -ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections)
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
