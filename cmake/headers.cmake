# `cmake --build … --target headers`: every header of the module and the programs compiles alone, before any
# other. A generated source a header, so that only what changed is compiled again.
file(GLOB_RECURSE headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/apps/*.h ${PROJECT_SOURCE_DIR}/tests/support/*.h)
set(sources)
foreach(header ${headers})
  string(MAKE_C_IDENTIFIER ${header} name)
  string(REGEX REPLACE "^(src|apps|tests)/" "" include ${header})
  set(source ${PROJECT_BINARY_DIR}/headers/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${include}\"\n")
  list(APPEND sources ${source})
endforeach()
add_library(headers OBJECT EXCLUDE_FROM_ALL ${sources})
set_target_properties(headers PROPERTIES AUTOMOC OFF)
target_link_libraries(headers PRIVATE vormant_desktop vormant_cli vormant_test_support)
