# One switch for the sanitizer build: AddressSanitizer and
# UndefinedBehaviorSanitizer for every target, with UB reports made fatal.
if(SPACEMGM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(SPACEMGM_SANITIZE=1)
endif()
