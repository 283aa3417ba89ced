# Language level, warnings and build-wide tools. Every target takes them through `veldoria_options`.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# The cache is told where the tree stands, so that another checkout of it finds the same objects.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1
                                  "${CCACHE_PROGRAM}")
endif()

option(VELDORIA_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VELDORIA_FUZZ "Build the fuzzers, and everything so that they see what it does (clang with sanitizers only)" OFF)

add_library(veldoria_options INTERFACE)
target_compile_options(veldoria_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_include_directories(veldoria_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
if(VELDORIA_SANITIZE)
  # Enough to name the line of a finding, and compiled in half the time.
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -gline-tables-only")
  target_compile_options(veldoria_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(veldoria_options INTERFACE -fsanitize=address,undefined)
  if(VELDORIA_FUZZ)
    target_compile_options(veldoria_options INTERFACE -fsanitize=fuzzer-no-link)
  endif()
endif()
