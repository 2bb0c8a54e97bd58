# How every target of the project is compiled. Warnings become errors through the presets.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Wunused -Wformat=2
                    -Wimplicit-fallthrough -Wdouble-promotion)
# A text never turns into bytes behind anyone's back, and rows are iterated as they are.
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DEPRECATED_WARNINGS)

option(PHONEUI_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(PHONEUI_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
