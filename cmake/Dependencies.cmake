# Every third-party component comes from a Debian package
# (scripts/install-deps.sh installs them).
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
find_package(OpenSSL REQUIRED COMPONENTS Crypto SSL)
find_package(CURL REQUIRED)

pkg_check_modules(JSONCPP REQUIRED IMPORTED_TARGET jsoncpp)
if(NOT TARGET JsonCpp::JsonCpp)
  add_library(JsonCpp::JsonCpp ALIAS PkgConfig::JSONCPP)
endif()

pkg_check_modules(PUGIXML REQUIRED IMPORTED_TARGET pugixml)
pkg_check_modules(CAIRO REQUIRED IMPORTED_TARGET cairo)
pkg_check_modules(PANGOCAIRO REQUIRED IMPORTED_TARGET pangocairo)
pkg_check_modules(RSVG REQUIRED IMPORTED_TARGET librsvg-2.0)
pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)

# cpp-httplib: Debian ships the header and a compiled library.
find_path(HTTPLIB_INCLUDE_DIR httplib.h REQUIRED)
find_library(HTTPLIB_LIBRARY NAMES cpp-httplib)
add_library(spacemgm_httplib INTERFACE)
target_include_directories(spacemgm_httplib SYSTEM INTERFACE "${HTTPLIB_INCLUDE_DIR}")
target_compile_definitions(spacemgm_httplib INTERFACE CPPHTTPLIB_OPENSSL_SUPPORT)
target_link_libraries(spacemgm_httplib INTERFACE OpenSSL::SSL OpenSSL::Crypto Threads::Threads)
if(HTTPLIB_LIBRARY)
  target_link_libraries(spacemgm_httplib INTERFACE "${HTTPLIB_LIBRARY}")
endif()

if(SPACEMGM_BUILD_TESTS AND SPACEMGM_TOP_LEVEL)
  find_package(GTest REQUIRED)
endif()
if(SPACEMGM_BUILD_BENCH AND SPACEMGM_TOP_LEVEL)
  find_package(benchmark REQUIRED)
endif()
