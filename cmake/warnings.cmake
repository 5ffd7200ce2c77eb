# Every target is built without a warning, by both compilers.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
