# Runs one bundled example in an empty folder of its own, as a user would, and checks that it
# ran to the end and saved its job.
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${PELLAM}" run "${SCRIPT}" WORKING_DIRECTORY "${WORK}"
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
file(GLOB saved "${WORK}/samples/*.zpd")
file(REMOVE_RECURSE "${WORK}")
if(NOT status EQUAL 0)
  message(FATAL_ERROR "exit status ${status}\n${out}${err}")
endif()
if(SAVES AND NOT saved)
  message(FATAL_ERROR "no job was saved\n${out}")
endif()
