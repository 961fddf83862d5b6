# One interface target carries what every translation unit of ours is built with.
set(TARVO_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them; empty for none")
option(TARVO_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)

get_property(is_multi_config GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT CMAKE_BUILD_TYPE AND NOT is_multi_config)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_SKIP_RPATH ON)

add_library(tarvo_settings INTERFACE)
target_include_directories(tarvo_settings INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_definitions(tarvo_settings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
# GCC 12 takes the stop state of its own <stop_token> for uninitialised, hence the last exception.
target_compile_options(tarvo_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wconversion -Wno-sign-conversion
  -Wformat=2 $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
  $<$<BOOL:${TARVO_WARNINGS_AS_ERRORS}>:-Werror>)

# Programs load at a random address, cannot be made to call what they did not mean to, and know no path of the machine
# that built them. The library's checks of buffer sizes need an optimised build, and hide what the sanitizers look for.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(branch_protection_x86_64 -fcf-protection)
set(branch_protection_aarch64 -mbranch-protection=standard)
target_compile_options(tarvo_settings INTERFACE
  -fstack-protector-strong -fstack-clash-protection ${branch_protection_${CMAKE_SYSTEM_PROCESSOR}}
  "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>")
target_link_options(tarvo_settings INTERFACE -Wl,-z,relro,-z,now)
if(NOT TARVO_SANITIZE)
  target_compile_options(tarvo_settings INTERFACE
    "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()

if(TARVO_SANITIZE)
  target_compile_options(tarvo_settings INTERFACE
    -fsanitize=${TARVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarvo_settings INTERFACE -fsanitize=${TARVO_SANITIZE})
endif()

# tarvo_add_library(NAME SOURCES ... LINKS ...): one static library a folder, with all that it links named.
function(tarvo_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tarvo_settings ${arg_LINKS})
endfunction()
