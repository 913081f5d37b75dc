# What every target of the tree shares, and the two ways to add one: a room (a library under src/) and a test.

add_library(cantorama_flags INTERFACE)
target_include_directories(cantorama_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(cantorama_flags INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                     QT_STRICT_ITERATORS)
if(MSVC)
  target_compile_options(cantorama_flags INTERFACE /W4 /utf-8 $<$<BOOL:${CANTORAMA_WERROR}>:/WX>)
else()
  target_compile_options(cantorama_flags INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${CANTORAMA_WERROR}>:-Werror>)
endif()
# Hardened as distributions build their packages. Sanitizers have their own ways to watch memory.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT CANTORAMA_SANITIZE)
  include(CheckCXXCompilerFlag)
  include(CheckLinkerFlag)
  include(CheckPIESupported)
  check_pie_supported()
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  target_compile_options(cantorama_flags INTERFACE
    -fstack-protector-strong $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  target_link_options(cantorama_flags INTERFACE LINKER:-z,relro LINKER:-z,now)
  # Not every processor has these. The linker sets the mark of the second only if told: a C library's start files may
  # lack it.
  foreach(flag -fstack-clash-protection -fcf-protection)
    check_cxx_compiler_flag(${flag} CANTORAMA${flag})
    if(CANTORAMA${flag})
      target_compile_options(cantorama_flags INTERFACE ${flag})
    endif()
  endforeach()
  check_linker_flag(CXX LINKER:-z,ibt,-z,shstk CANTORAMA_MARK)
  if(CANTORAMA-fcf-protection AND CANTORAMA_MARK)
    target_link_options(cantorama_flags INTERFACE LINKER:-z,ibt,-z,shstk)
  endif()
endif()
if(CANTORAMA_SANITIZE)
  target_compile_options(cantorama_flags INTERFACE -fsanitize=${CANTORAMA_SANITIZE} -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(cantorama_flags INTERFACE -fsanitize=${CANTORAMA_SANITIZE})
endif()

# cantorama_room(NAME QT Core Gui SOURCES a.cpp b.cpp USES other rooms)
function(cantorama_room name)
  cmake_parse_arguments(ROOM "" "" "QT;SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  list(TRANSFORM ROOM_QT PREPEND Qt6::)
  target_link_libraries(${name} PUBLIC cantorama_flags ${ROOM_QT} ${ROOM_USES})
  if(CANTORAMA_PCH)
    # The rooms of the same libraries share the precompiled header of the first one. A fuzzer gives its rooms flags of
    # their own.
    list(GET ROOM_QT -1 library)
    get_property(first GLOBAL PROPERTY CANTORAMA_PCH_OF_${library})
    if(first AND NOT CANTORAMA_FUZZ)
      target_precompile_headers(${name} REUSE_FROM ${first})
    else()
      string(REPLACE "Qt6::" "Qt" header ${library})
      target_precompile_headers(${name} PRIVATE <${header}> <vector> <optional> <functional>)
      set_property(GLOBAL PROPERTY CANTORAMA_PCH_OF_${library} ${name})
    endif()
  endif()
endfunction()

# Adds a run of a test program on a display of its own: cantorama_display_test(NAME PROGRAM)
function(cantorama_display_test name program)
  cantorama_left_out(${program} left_out)
  if(left_out)
    return()
  endif()
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/tests/with_display ${CMAKE_CROSSCOMPILING_EMULATOR}
                                $<TARGET_FILE:${program}>)
  if(WIN32)
    # All programs under one Wine have one keyboard.
    set_property(TEST ${name} PROPERTY RESOURCE_LOCK keyboard)
  endif()
endfunction()

# Whether the test isn't for what is built here: cantorama_left_out(NAME RESULT)
if(WIN32)
  file(STRINGS ${CMAKE_SOURCE_DIR}/tests/left_out_on_windows.txt CANTORAMA_LEFT_OUT REGEX "^[^#]")
  list(TRANSFORM CANTORAMA_LEFT_OUT REPLACE ":.*" "")
endif()
function(cantorama_left_out name result)
  set(${result} OFF PARENT_SCOPE)
  if(name IN_LIST CANTORAMA_LEFT_OUT)
    set(${result} ON PARENT_SCOPE)
  endif()
endfunction()

# cantorama_test(FILE_WITHOUT_ENDING DISPLAY RESULTS folder SOURCES more.cpp USES rooms): one program a concept that can
# fail. With DISPLAY it runs on a virtual X server with a window manager, else on the offscreen platform. RESULTS is
# where the whole results lie that it compares with.
function(cantorama_test file)
  cmake_parse_arguments(TEST "DISPLAY" "RESULTS" "USES;SOURCES" ${ARGN})
  get_filename_component(name ${file} NAME)
  add_executable(${name} ${file}.cpp ${TEST_SOURCES})
  target_link_libraries(${name} PRIVATE cantorama_flags ${TEST_USES} Qt6::Test)
  target_compile_definitions(${name} PRIVATE SAMPLE_FOLDER="${CANTORAMA_DRIVE}${CMAKE_SOURCE_DIR}/sample/Cantorama")
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  if(TEST_RESULTS)
    target_compile_definitions(${name} PRIVATE RESULTS="${CANTORAMA_DRIVE}${CMAKE_CURRENT_SOURCE_DIR}/${TEST_RESULTS}")
  endif()
  # One that is left out is built all the same.
  cantorama_left_out(${name} left_out)
  if(left_out)
    return()
  endif()
  if(TEST_DISPLAY)
    cantorama_display_test(${name} ${name})
  else()
    add_test(NAME ${name} COMMAND ${name})
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  endif()
  if(TEST_RESULTS)
    set_property(TEST ${name} PROPERTY LABELS results)
  endif()
  # Whatever fonts a machine has, a test sees those that the program names.
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT FONTCONFIG_FILE=${CMAKE_SOURCE_DIR}/tests/fonts.conf)
  # The second: at the end of a program the leak check stumbles now and then over the storage of a thread that is just
  # ending, unless it leaves out the records of it.
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
               "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0"
               ASAN_OPTIONS=intercept_tls_get_addr=0)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
  if(WIN32)
    # Wine asks its server for much, which has to wait its turn on a busy machine.
    set_tests_properties(${name} PROPERTIES TIMEOUT 900)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT QTEST_FUNCTION_TIMEOUT=900000)
  endif()
endfunction()
