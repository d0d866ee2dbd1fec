# The rules that every target of the house shares.
#
#   palvestrin_library(NAME SOURCES ... [PUBLIC ...] [PRIVATE ...])
#   palvestrin_program(NAME SOURCES ... [PRIVATE ...])
#   palvestrin_test(NAME SOURCES ... [PRIVATE ...])
#
# A library offers the headers of its own folder and nothing else, so including a header of a folder that the
# target does not link is a build error: that is what keeps the arrows of ARCHITECTURE.md true.

# What restaurants run is hardened: a job is a stranger's text (see SECURITY.md).
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now,-z,noexecstack>")

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

function(palvestrin_compile_rules target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF CXX_STANDARD_REQUIRED ON)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align
    -Wunused -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)
  if(PALVESTRIN_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

function(palvestrin_library target)
  cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${target} STATIC ${arg_SOURCES})
  target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${target} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
  palvestrin_compile_rules(${target})
endfunction()

function(palvestrin_program target)
  cmake_parse_arguments(arg "" "" "SOURCES;PRIVATE" ${ARGN})
  add_executable(${target} ${arg_SOURCES})
  target_link_libraries(${target} PRIVATE ${arg_PRIVATE})
  palvestrin_compile_rules(${target})
endfunction()

# A QtTest program, one CTest entry. It runs without a display and in a neutral locale; a test that wants
# another one sets it itself.
function(palvestrin_test target)
  cmake_parse_arguments(arg "" "" "SOURCES;PRIVATE" ${ARGN})
  add_executable(${target} ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${target} PRIVATE ${arg_PRIVATE} Qt6::Test)
  palvestrin_compile_rules(${target})
  add_test(NAME ${target} COMMAND ${target})
  # The toolkit's widgets want a folder for run-time files, and would leave one in /tmp.
  set(runtime_folder ${PROJECT_BINARY_DIR}/tests/runtime)
  file(MAKE_DIRECTORY ${runtime_folder})
  file(CHMOD ${runtime_folder} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set_tests_properties(${target} PROPERTIES TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;XDG_RUNTIME_DIR=${runtime_folder}")
endfunction()

# Builds `target`, a name in the current binary folder, from the file `source`: compressed as Debian wants it, with
# no name and no time inside, so that two builds of one version are equal.
function(palvestrin_compressed source target)
  add_custom_command(OUTPUT ${target}
    COMMAND gzip -9nc ${source} > ${target}
    DEPENDS ${source}
    VERBATIM)
  add_custom_target(compressed-${target} ALL DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${target})
endfunction()
