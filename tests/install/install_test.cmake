# Installs the build into a scratch folder, builds the consumer against it and runs it.
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV} failed: ${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/installed)
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/build -G Ninja
    -D CMAKE_PREFIX_PATH=${SCRATCH}/installed -D CMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)
run(${SCRATCH}/build/consumer ${SCRATCH}/installed/share/vormant/library)
if(NOT EXISTS ${SCRATCH}/installed/share/vormant/icons/ProfSectionI-big.bmp)
  message(FATAL_ERROR "the pictures of section types are not installed")
endif()
