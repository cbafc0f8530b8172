# Fills the fuzzers' corpora: the form scripts we ship and test with, and the jobs the example
# scripts save (run with PELLAM in a scratch folder).
file(MAKE_DIRECTORY "${OUT}/script" "${OUT}/opener")
file(GLOB scripts "${SOURCE}/tests/scripts/*.pellam" "${SOURCE}/examples/*.pellam")
file(COPY ${scripts} DESTINATION "${OUT}/script")

file(GLOB examples "${SOURCE}/examples/*.pellam")
foreach(example IN LISTS examples)
  get_filename_component(name "${example}" NAME_WE)
  set(work "${OUT}/work-${name}")
  file(REMOVE_RECURSE "${work}")
  file(MAKE_DIRECTORY "${work}")
  execute_process(COMMAND "${PELLAM}" run "${example}" WORKING_DIRECTORY "${work}"
    OUTPUT_QUIET RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${example} did not run (exit status ${status})")
  endif()
  file(GLOB jobs "${work}/samples/*.zpd")
  foreach(job IN LISTS jobs)
    get_filename_component(job_name "${job}" NAME)
    file(COPY_FILE "${job}" "${OUT}/opener/${name}-${job_name}")
  endforeach()
  file(REMOVE_RECURSE "${work}")
endforeach()
# A file far too short to be a job, which the opener must refuse or survive.
file(WRITE "${OUT}/opener/short.zpd" "not a job")
