# SPDX-FileCopyrightText: 2026 Orvane
# SPDX-License-Identifier: MIT

# Compile options that hold for every target, as one interface library.
add_library(PanoHeadOptions INTERFACE)
target_compile_features(PanoHeadOptions INTERFACE cxx_std_17)
target_compile_options(PanoHeadOptions INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
  # Angles decide links: a fused multiply-add would decide some of them differently.
  -ffp-contract=off)
if(XPANOHEAD_WERROR)
  target_compile_options(PanoHeadOptions INTERFACE -Werror)
endif()
target_compile_definitions(PanoHeadOptions INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_DEPRECATED_WARNINGS)

if(XPANOHEAD_SANITIZE)
  list(JOIN XPANOHEAD_SANITIZE "," _sanitizers)
  target_compile_options(PanoHeadOptions INTERFACE
    -fsanitize=${_sanitizers} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(PanoHeadOptions INTERFACE -fsanitize=${_sanitizers})
  if("address" IN_LIST XPANOHEAD_SANITIZE)
    # Qt's checks of indices, and our own.
    target_compile_definitions(PanoHeadOptions INTERFACE QT_FORCE_ASSERTS)
  endif()
  if("undefined" IN_LIST XPANOHEAD_SANITIZE)
    target_compile_options(PanoHeadOptions INTERFACE -fsanitize=float-cast-overflow)
  endif()
endif()

if(XPANOHEAD_COVERAGE)
  target_compile_options(PanoHeadOptions INTERFACE --coverage -fprofile-abs-path -O0)
  target_link_options(PanoHeadOptions INTERFACE --coverage)
endif()
