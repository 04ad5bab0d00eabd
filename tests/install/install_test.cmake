# Installs the build into a scratch folder, and uses the copy as others do.
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV} failed: ${output}${error}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(build project)
  run(${CMAKE_COMMAND} -S ${project} -B ${SCRATCH}/${ARGV1} -G Ninja -D HEADERS=${SCRATCH}/installed/include
      -D CMAKE_PREFIX_PATH=${SCRATCH}/installed -D CMAKE_BUILD_TYPE=Release --no-warn-unused-cli)
  run(${CMAKE_COMMAND} --build ${SCRATCH}/${ARGV1})
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/installed)
file(GLOB shared ${SCRATCH}/installed/lib*/libvormant_ss.so ${SCRATCH}/installed/lib/*/libvormant_ss.so)
run(${PYTHON} ${SOURCE}/tests/install/exported.py ${SCRATCH}/installed/include ${STATIC} ${shared})
build(${SOURCE}/tests/install/interface interface)

build(${SOURCE}/examples/host host)
run(${SCRATCH}/host/host_example ${SCRATCH}/installed/share/vormant/library ${SCRATCH}/Bill.sss)
file(WRITE ${SCRATCH}/printed.txt "${output}")
run(${PYTHON} ${SOURCE}/tests/install/page.py ${SOURCE}/docs/embedding.md ${SOURCE}/examples/host/main.cpp
    ${SCRATCH}/printed.txt)
if(NOT EXISTS ${SCRATCH}/Bill.sss)
  message(FATAL_ERROR "the example wrote no bill")
endif()

if(EXISTS ${SCRATCH}/installed/bin AND NOT EXISTS ${SCRATCH}/installed/share/vormant/icons/ProfSectionI-big.bmp)
  message(FATAL_ERROR "the pictures of section types are not installed")
endif()
