# `cmake --install` gives the shared module, its headers, a find_package() config and the sample
# library.
include(CMakePackageConfigHelpers)

install(TARGETS vormant_ss EXPORT VormantTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT VormantTargets NAMESPACE Vormant::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vormant)
install(DIRECTORY include/vormant DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vormant/rooms
  FILES_MATCHING PATTERN *.h)
install(DIRECTORY library/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vormant/library)

write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VormantConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VormantConfigVersion.cmake
  cmake/VormantConfig.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vormant)
