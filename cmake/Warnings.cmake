# Flags that every target of ours is compiled with. Text never turns into bytes, or bytes into text, without being asked.
add_library(tagwrighter_options INTERFACE)
target_compile_options(tagwrighter_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# gcc's -Wconversion leaves the sign alone in C++; clang, which checks the tree in ./dev lint, is to ask for no more.
target_compile_options(tagwrighter_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
target_compile_definitions(tagwrighter_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(TAGWRIGHTER_SANITIZE)
    # Without the check of an object's own type: the web engine's objects carry no such information, and the check needs
    # a pipe, which the reader of pictures may not open any more.
    target_compile_options(tagwrighter_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(tagwrighter_options INTERFACE -fsanitize=address,undefined)
endif()
