# What every target of ours is built with.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(vormant_build_flags INTERFACE)
target_compile_options(vormant_build_flags INTERFACE
  -Wall -Wextra -Wconversion -Werror $<$<CONFIG:Release>:-O2>)
if(VORMANT_SANITIZE)
  target_compile_options(vormant_build_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vormant_build_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VORMANT_FUZZ)
  # The fuzzer steers by the branches taken inside the module, not only in its own target.
  target_compile_options(vormant_build_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
