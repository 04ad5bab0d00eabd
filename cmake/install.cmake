# `cmake --install` gives the shared module, its headers, a find_package() config and the sample
# library.
include(CMakePackageConfigHelpers)

install(TARGETS vormant_ss EXPORT VormantTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT VormantTargets NAMESPACE Vormant::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vormant)
install(DIRECTORY include/vormant DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)
# Of src/ the headers that <vormant/*.h> reach, at the places that their includes name.
file(GLOB unread RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS include/vormant/*.h)
set(public_headers)
while(unread)
  list(POP_FRONT unread header)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
  file(STRINGS ${header} lines REGEX "^#include \"")
  foreach(line ${lines})
    string(REGEX REPLACE "^#include \"(.*)\".*" "src/\\1" included ${line})
    if(NOT included IN_LIST public_headers)
      list(APPEND public_headers ${included})
      list(APPEND unread ${included})
    endif()
  endforeach()
endwhile()
foreach(header ${public_headers})
  string(REGEX REPLACE "^src/(.*)/[^/]*$" "\\1" folder ${header})
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vormant/module/${folder})
endforeach()
install(DIRECTORY library/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vormant/library)

write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VormantConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VormantConfigVersion.cmake
  cmake/VormantConfig.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vormant)
