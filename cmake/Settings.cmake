# Compile settings that every target of the tree shares.
add_library(korvane-settings INTERFACE)
target_include_directories(korvane-settings INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(korvane-settings INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
  KORVANE_VERSION="${PROJECT_VERSION}")
target_compile_options(korvane-settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(korvane-settings INTERFACE -Wno-sign-compare) # the kernel's netlink macros do
endif()
if(KORVANE_SANITIZER)
  target_compile_options(korvane-settings INTERFACE -fsanitize=${KORVANE_SANITIZER} -fno-omit-frame-pointer)
  target_link_options(korvane-settings INTERFACE -fsanitize=${KORVANE_SANITIZER})
  if(KORVANE_SANITIZER STREQUAL "thread")
    target_compile_options(korvane-settings INTERFACE -Wno-tsan) # Qt's headers have a fence, which it does not see
  endif()
endif()
