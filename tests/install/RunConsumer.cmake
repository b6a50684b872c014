# Script mode: install, configure the consumer, build it, run it.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
    endif()
    set(last_output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${SEISPLOT_BUILD_DIR} --prefix ${prefix})
# A sanitized library needs the sanitizer runtime in the program that links it.
set(flags "")
if(SANITIZE)
    set(flags "-fsanitize=${SANITIZE}")
endif()
run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/build -G Ninja
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_CXX_FLAGS=${flags}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
# Without Mesa's shader cache on disk, whose writer thread, busy when a sanitized consumer
# ends, trips LeakSanitizer's final search.
run(${CMAKE_COMMAND} -E env MESA_SHADER_CACHE_DISABLE=true ${WORK_DIR}/build/consumer)
if(NOT last_output MATCHES "PGA 0.25 g")
    message(FATAL_ERROR "unexpected output from the consumer: ${last_output}")
endif()
message(STATUS "${last_output}")
