# SPDX-FileCopyrightText: 2026 Orvane
# SPDX-License-Identifier: MIT

# Compiles through ccache where it is installed, unless another launcher (or none) was chosen with
# CMAKE_CXX_COMPILER_LAUNCHER. What was compiled in one checkout is found again in any other: paths
# below the checkout count relative to the build folder, which is itself left out of the count. The
# sloppiness is what ccache asks for where headers are precompiled.
find_program(XPANOHEAD_CCACHE ccache)
mark_as_advanced(XPANOHEAD_CCACHE)
if(XPANOHEAD_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_ctime,include_file_mtime ${XPANOHEAD_CCACHE})
endif()
