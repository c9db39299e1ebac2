# The scripts ask for the compiler's cache with CMAKE_CXX_COMPILER_LAUNCHER=ccache. It leaves out what
# uses a precompiled header, half of all sources, unless it may take for granted that no macro of the
# command line and no date of the compilation is meant by what stands in that header. None is here.
# And what one language of messages compiled serves another, what one build folder compiled serves the
# others: to the cache the project's files have names that are relative to the build folder.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
  list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER
       "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=locale,pch_defines,time_macros
       "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_ABSSTDERR=true)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # Else the header is another one each time that it is compiled.
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
  # Asked for by the flags and by the preset it would stand in a command twice, and such a command is
  # another one than that of a folder without the preset.
  if(CMAKE_CXX_FLAGS MATCHES "(^| )-Werror( |$)")
    set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  endif()
endif()
