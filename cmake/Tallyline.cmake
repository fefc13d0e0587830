# Helpers shared by every subsystem.
#
# tl_add_library(<name> SOURCES ... [PUBLIC_DEPS ...] [PRIVATE_DEPS ...])
#   A static library whose headers are included as "<subsystem>/<File>.h".
#
# tl_add_test(<name> SOURCES ... [DEPS ...])
#   A QtTest executable registered with CTest. Every test runs on Qt's
#   offscreen platform, with a home and data folder of its own inside the
#   build tree, so that no test ever sees the user's real season files.

function(tl_add_library name)
  cmake_parse_arguments(A "" "" "SOURCES;PUBLIC_DEPS;PRIVATE_DEPS" ${ARGN})
  add_library(${name} STATIC ${A_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${A_PUBLIC_DEPS} PRIVATE ${A_PRIVATE_DEPS})
endfunction()

function(tl_add_test name)
  cmake_parse_arguments(A "" "" "SOURCES;DEPS" ${ARGN})
  add_executable(${name} ${A_SOURCES})
  target_link_libraries(${name} PRIVATE Qt6::Test tl_test_fakes ${A_DEPS})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  # What the build says the version is, for tests that check what the
  # program shows of it.
  target_compile_definitions(${name} PRIVATE TL_PROJECT_VERSION="${PROJECT_VERSION}")
  add_test(NAME ${name} COMMAND ${name})
  set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
  file(MAKE_DIRECTORY "${home}")
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_DATA_HOME=${home}/share;XDG_CONFIG_HOME=${home}/config;XDG_CACHE_HOME=${home}/cache;TL_TEST_DATA=${PROJECT_SOURCE_DIR}/tests/data;TL_SOURCE_DIR=${PROJECT_SOURCE_DIR}")
endfunction()
