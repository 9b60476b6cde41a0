# Installs the built library into a scratch prefix, then configures, builds and runs a tiny
# outside program against the installed package with find_package(QD8Designer2).
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
  RESULT_VARIABLE rc OUTPUT_QUIET)
if(rc)
  message(FATAL_ERROR "cmake --install failed: ${rc}")
endif()

# A sanitized library needs a sanitized program around it.
set(flags "")
if(SANITIZE)
  set(flags "-fsanitize=address,undefined")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/consumer
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS=${flags}"
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(rc)
  message(FATAL_ERROR "configuring the outside program failed:\n${out}\n${err}")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/consumer
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(rc)
  message(FATAL_ERROR "building the outside program failed:\n${out}\n${err}")
endif()

execute_process(COMMAND ${WORK_DIR}/consumer/consumer ${WORK_DIR}/consumer.dat
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(rc OR NOT out MATCHES "QD8Center.dat 2")
  message(FATAL_ERROR "the outside program failed (${rc}):\n${out}\n${err}")
endif()
message(STATUS "outside program: ${out}")
