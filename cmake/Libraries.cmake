# The libraries the till stands on, all of them Debian packages (see scripts/setup).
find_package(PkgConfig REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport SerialPort Network Test
             LinguistTools)
find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
if(TILL_TESTS)
  find_package(GTest REQUIRED)
endif()
if(TILL_BENCH)
  find_package(benchmark REQUIRED)
endif()
pkg_check_modules(sqlcipher REQUIRED IMPORTED_TARGET sqlcipher)
pkg_check_modules(sodium REQUIRED IMPORTED_TARGET libsodium)
pkg_check_modules(xlsxwriter REQUIRED IMPORTED_TARGET xlsxwriter)
pkg_check_modules(expat REQUIRED IMPORTED_TARGET expat)
pkg_check_modules(libzip REQUIRED IMPORTED_TARGET libzip)
pkg_check_modules(libpq REQUIRED libpq)
pkg_check_modules(libmdb REQUIRED IMPORTED_TARGET libmdb)

# What every target of ours is compiled with.
add_library(till_flags INTERFACE)
target_compile_options(till_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                            -Wno-sign-conversion -Werror)
if(TILL_SANITIZE)
  target_compile_options(till_flags INTERFACE -fsanitize=address,undefined
                                              -fno-sanitize-recover=undefined
                                              -fno-omit-frame-pointer)
  target_link_options(till_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TILL_FUZZ)
  # Every room tells the fuzzer which of its branches an input took.
  target_compile_options(till_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# All of Qt that the windows use, as one target, so that every room shares one precompiled header.
# Widget headers cost seconds per file; the precompiled header pays that once.
add_library(qt INTERFACE)
target_link_libraries(qt INTERFACE Qt6::Widgets Qt6::PrintSupport Qt6::SerialPort)
target_compile_definitions(qt INTERFACE QT_NO_CAST_TO_ASCII)
file(WRITE ${CMAKE_BINARY_DIR}/qt_pch.cpp "")
add_library(qt_pch OBJECT ${CMAKE_BINARY_DIR}/qt_pch.cpp)
set_target_properties(qt_pch PROPERTIES AUTOMOC OFF)
target_link_libraries(qt_pch PRIVATE till_flags qt)
target_precompile_headers(qt_pch PRIVATE <QtWidgets> <functional> <memory> <optional> <string>
                                         <vector>)
