include("${CMAKE_CURRENT_LIST_DIR}/VormantTargets.cmake")
