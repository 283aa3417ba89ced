# A folder of the source tree is one library; its unit tests (*_test.cpp) and benchmarks (*_bench.cpp) stand beside the
# source. A folder links only with the folders it is given, and sees no toolkit or map library unless it names one.

# veldoria_glob(RESULT GLOB|GLOB_RECURSE PATTERN): the current folder's files, without those of libraries below it.
function(veldoria_glob result mode pattern)
  file(${mode} files CONFIGURE_DEPENDS "${pattern}")
  file(GLOB_RECURSE libraries CONFIGURE_DEPENDS "*/CMakeLists.txt")
  foreach(library IN LISTS libraries)
    get_filename_component(folder "${library}" DIRECTORY)
    list(FILTER files EXCLUDE REGEX "^${folder}/")
  endforeach()
  set(${result} "${files}" PARENT_SCOPE)
endfunction()

# veldoria_folder(NAME [RECURSE] [QT] [LINKS ...] [PRIVATE_LINKS ...] [TEST_LINKS ...] [BENCH_LINKS ...])
#   Library veldoria_<NAME> from the current folder's .cpp files (with RECURSE also of the folders below that are no
#   libraries of their own), its tests as the program <NAME>_test, and its benchmarks as <NAME>_bench.
function(veldoria_folder name)
  cmake_parse_arguments(ARG "RECURSE;QT" "" "LINKS;PRIVATE_LINKS;TEST_LINKS;BENCH_LINKS" ${ARGN})
  set(glob GLOB)
  if(ARG_RECURSE)
    set(glob GLOB_RECURSE)
  endif()
  veldoria_glob(sources ${glob} "*.cpp")
  veldoria_glob(tests ${glob} "*_test.cpp")
  veldoria_glob(benches ${glob} "*_bench.cpp")
  list(REMOVE_ITEM sources ${tests} ${benches})

  set(library veldoria_${name})
  if(sources)
    add_library(${library} STATIC ${sources})
    target_link_libraries(${library} PUBLIC ${ARG_LINKS} PRIVATE veldoria_options ${ARG_PRIVATE_LINKS})
    target_include_directories(${library} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    if(ARG_QT)
      set_target_properties(${library} PROPERTIES AUTOMOC ON)
    endif()
  else()
    add_library(${library} INTERFACE)
    target_link_libraries(${library} INTERFACE ${ARG_LINKS})
    target_include_directories(${library} INTERFACE "${CMAKE_SOURCE_DIR}/src")
  endif()

  if(tests)
    add_executable(${name}_test ${tests})
    target_link_libraries(${name}_test PRIVATE ${library} veldoria_options GTest::gtest GTest::gtest_main
                                               ${ARG_TEST_LINKS})
    veldoria_quickly_compiled(${name}_test)
    if(WIN32)
      # Run where there is a Windows, by what starts one.
      set_target_properties(${name}_test PROPERTIES EXCLUDE_FROM_ALL ON)
    else()
      add_test(NAME ${name}_test COMMAND ${name}_test)
      set_tests_properties(${name}_test PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
      if(ARG_QT)
        veldoria_sanitized_widgets(${name}_test)
      else()
        veldoria_sanitized(${name}_test)
      endif()
    endif()
  endif()
  veldoria_check_headers(${name} ${glob} ${ARG_PRIVATE_LINKS} ${ARG_TEST_LINKS})

  if(benches AND NOT WIN32)
    add_executable(${name}_bench ${benches})
    target_link_libraries(${name}_bench PRIVATE ${library} veldoria_options benchmark::benchmark_main
                                                ${ARG_BENCH_LINKS})
  endif()
endfunction()

# Compiled once and run for moments: what it tests is optimised, the test itself need not be.
function(veldoria_quickly_compiled target)
  target_compile_options(${target} PRIVATE -O0)
endfunction()

# Built by `headers`: each header of the current folder, compiled on its own, with what its tests may see. A header that
# its source or its test includes before all others is compiled so already.
add_custom_target(headers)
function(veldoria_check_headers name glob)
  veldoria_glob(headers ${glob} "*.h")
  set(units "")
  foreach(header IN LISTS headers)
    file(RELATIVE_PATH path "${CMAKE_SOURCE_DIR}/src" "${header}")
    veldoria_is_first("${header}" "${path}" first)
    if(NOT first)
      set(unit "${CMAKE_BINARY_DIR}/headers/${path}.cpp")
      if(NOT EXISTS "${unit}")
        file(WRITE "${unit}" "#include \"${path}\"\n")
      endif()
      list(APPEND units "${unit}")
    endif()
  endforeach()
  if(units)
    add_library(${name}_headers OBJECT EXCLUDE_FROM_ALL ${units})
    target_link_libraries(${name}_headers PRIVATE veldoria_${name} veldoria_options GTest::gtest ${ARGN})
    veldoria_quickly_compiled(${name}_headers)
    add_dependencies(headers ${name}_headers)
  endif()
endfunction()

function(veldoria_is_first header path result)
  set(${result} FALSE PARENT_SCOPE)
  foreach(ending IN ITEMS ".cpp" "_test.cpp")
    string(REGEX REPLACE "\\.h$" "${ending}" source "${header}")
    if(EXISTS "${source}")
      file(STRINGS "${source}" includes REGEX "^#include" LIMIT_COUNT 1)
      if(includes STREQUAL "#include \"${path}\"")
        set(${result} TRUE PARENT_SCOPE)
      endif()
    endif()
  endforeach()
endfunction()

# Marks a test as one that also runs under the sanitizers: built by `sanitized_tests`, run by `ctest -L sanitized`.
add_custom_target(sanitized_tests)
function(veldoria_sanitized test)
  add_dependencies(sanitized_tests ${test})
  set_tests_properties(${test} PROPERTIES LABELS sanitized)
endfunction()

# The same for a test with widgets, whose toolkit takes long to compile: `sanitized_widgets`, `ctest -L widgets`. What the
# toolkit and the font library never give back is not counted.
add_custom_target(sanitized_widgets)
function(veldoria_sanitized_widgets test)
  add_dependencies(sanitized_widgets ${test})
  set_tests_properties(${test} PROPERTIES LABELS widgets)
  if(VELDORIA_SANITIZE)
    set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT
                 "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/toolkit.supp:print_suppressions=0")
  endif()
endfunction()

# veldoria_app(NAME LINKS <targets>): the program apps/NAME from apps/NAME/main.cpp.
function(veldoria_app name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  add_executable(${name} ${name}/main.cpp)
  target_link_libraries(${name} PRIVATE veldoria_options ${ARG_LINKS})
endfunction()
