# Plays one scenario script through qorvat-cli and compares the transcript
# with the expected one. A line "# exit status: N" in the script sets the
# expected exit status (default 0); a line "# profiles: FILE" plays it on
# that profile database (relative to the tests folder).
file(READ "${SCRIPT}" script_text)
set(expected_status 0)
if(script_text MATCHES "# exit status: ([0-9]+)")
  set(expected_status "${CMAKE_MATCH_1}")
endif()
set(options)
if(script_text MATCHES "# profiles: ([^\n]+)")
  list(APPEND options --profiles "${TESTS_DIR}/${CMAKE_MATCH_1}")
endif()
execute_process(COMMAND "${CLI}" ${options} "${SCRIPT}" OUTPUT_VARIABLE actual RESULT_VARIABLE status)
file(READ "${EXPECTED}" expected)
if(NOT actual STREQUAL expected)
  file(WRITE "${ACTUAL}" "${actual}")
  execute_process(COMMAND diff -u "${EXPECTED}" "${ACTUAL}")
  message(FATAL_ERROR "transcript differs from ${EXPECTED} (actual output in ${ACTUAL})")
endif()
if(NOT status EQUAL expected_status)
  message(FATAL_ERROR "exit status ${status}, expected ${expected_status}")
endif()
