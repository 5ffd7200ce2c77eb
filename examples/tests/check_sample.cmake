# Makes the sample set anew and compares it with the committed one, byte for byte and file for file.
# cmake -DMAKER=make_figure -DCOMMITTED=examples/figures -DSCRATCH=folder -P check_sample.cmake
file(REMOVE_RECURSE "${SCRATCH}")
execute_process(COMMAND "${MAKER}" --sample "${SCRATCH}" COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE made RELATIVE "${SCRATCH}" "${SCRATCH}/*")
file(GLOB_RECURSE kept RELATIVE "${COMMITTED}" "${COMMITTED}/*")
list(LENGTH made count)
if(count EQUAL 0)
  message(FATAL_ERROR "Nothing was made in ${SCRATCH}")
endif()
if(NOT made STREQUAL kept)
  message(FATAL_ERROR "The committed files are\n${kept}\nand the program makes\n${made}")
endif()
foreach(name IN LISTS made)
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -E compare_files "${SCRATCH}/${name}" "${COMMITTED}/${name}"
    RESULT_VARIABLE differs OUTPUT_QUIET ERROR_QUIET)
  if(differs)
    message(FATAL_ERROR "${name} is not what the program makes")
  endif()
endforeach()
