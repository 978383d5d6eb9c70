# One static library a folder of src/. Sources are found by their place, so that a new file needs no second mention;
# a folder that holds no source yet is an interface library, so that its users can name it already.
#
# Parsing the headers of Qt is most of what compiling costs, so it is done once for all folders. `common` knows no widgets
# and cannot share in it: it has precompiled headers of its own.
add_library(tagwrighter_precompiled STATIC ${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp)
target_link_libraries(tagwrighter_precompiled PRIVATE tagwrighter_options Qt6::Widgets)
target_precompile_headers(tagwrighter_precompiled PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled.h)

function(tagwrighter_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    if(arg_SOURCES)
        add_library(${name} STATIC ${arg_SOURCES})
        target_link_libraries(${name} PUBLIC tagwrighter_options ${arg_LINK})
        target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
        if(name STREQUAL "tagwrighter_common")
            target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled.h)
        else()
            target_precompile_headers(${name} REUSE_FROM tagwrighter_precompiled)
        endif()
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE tagwrighter_options ${arg_LINK})
    endif()
endfunction()

function(tagwrighter_folder folder)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
    list(FILTER sources EXCLUDE REGEX "/shell/(frmMdi|frmSplash|application)[A-Za-z]*\\.(cpp|h)$")
    file(GLOB implementations CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
    list(FILTER implementations EXCLUDE REGEX "/shell/(frmMdi|frmSplash|application)[A-Za-z]*\\.cpp$")
    if(NOT implementations)
        set(sources "")
    endif()
    tagwrighter_library(tagwrighter_${folder} SOURCES ${sources} LINK ${ARGN})
endfunction()
