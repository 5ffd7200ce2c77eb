# Every target is built without a warning, by both compilers.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees an overlap in the joining of two strings where there is none.
  add_compile_options(-Wno-restrict)
endif()
