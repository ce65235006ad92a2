# One switch for the sanitizer build: AddressSanitizer and
# UndefinedBehaviorSanitizer for every target, with UB reports made fatal.
if(SPACEMGM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(SPACEMGM_SANITIZE=1)
endif()

# ThreadSanitizer cannot be combined with ASan, so it is a build of its own.
# Optimised, since every memory access is checked and the ui tests are slow
# enough already.
if(SPACEMGM_TSAN)
  if(SPACEMGM_SANITIZE)
    message(FATAL_ERROR "SPACEMGM_TSAN and SPACEMGM_SANITIZE exclude each other")
  endif()
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
  add_compile_definitions(SPACEMGM_TSAN=1)
endif()

# The fuzz build instruments every target for coverage and checks it with
# ASan and UBSan; only the fuzz targets link libFuzzer's driver.
if(SPACEMGM_BUILD_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "The fuzz targets need clang (use the `fuzz` preset)")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
