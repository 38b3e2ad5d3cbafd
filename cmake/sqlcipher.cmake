# SQLCipher, linked statically: its symbols must not meet the ordinary SQLite that a desktop theme may load.
set(SQLCIPHER_MINIMUM 4.6)

find_path(SQLCIPHER_INCLUDE_DIR NAMES sqlite3.h PATH_SUFFIXES sqlcipher NO_DEFAULT_PATH PATHS /usr/include
          /usr/local/include)
find_library(SQLCIPHER_LIBRARY NAMES libsqlcipher.a)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)

if(NOT SQLCIPHER_INCLUDE_DIR OR NOT SQLCIPHER_LIBRARY)
  message(FATAL_ERROR "SQLCipher ${SQLCIPHER_MINIMUM} or later is needed (Debian: libsqlcipher-dev); none was found.")
endif()

if(NOT DEFINED SQLCIPHER_VERSION)
  try_run(version_run version_compiled "${CMAKE_BINARY_DIR}/sqlcipher_version"
          "${CMAKE_SOURCE_DIR}/cmake/sqlcipher_version.cpp"
          CMAKE_FLAGS "-DINCLUDE_DIRECTORIES=${SQLCIPHER_INCLUDE_DIR}"
          LINK_LIBRARIES "${SQLCIPHER_LIBRARY}" OpenSSL::Crypto m ${CMAKE_DL_LIBS}
          COMPILE_OUTPUT_VARIABLE version_output
          RUN_OUTPUT_VARIABLE version_text)
  if(NOT version_compiled OR NOT version_run EQUAL 0)
    message(FATAL_ERROR "SQLCipher was found in ${SQLCIPHER_LIBRARY} but cannot be used:\n${version_output}")
  endif()
  string(REGEX MATCH "^[0-9.]+" version_number "${version_text}")
  set(SQLCIPHER_VERSION "${version_number}" CACHE INTERNAL "The version that SQLCipher reports of itself")
endif()

if(SQLCIPHER_VERSION VERSION_LESS SQLCIPHER_MINIMUM)
  set(found "${SQLCIPHER_VERSION}")
  unset(SQLCIPHER_VERSION CACHE)
  message(FATAL_ERROR "SQLCipher ${SQLCIPHER_MINIMUM} or later is needed, and ${SQLCIPHER_LIBRARY} is ${found}: "
                      "a crafted file can crash the older engine. On Debian 12 the newer one is in "
                      "bookworm-backports; ./run and ./test install it.")
endif()
message(STATUS "SQLCipher ${SQLCIPHER_VERSION}: ${SQLCIPHER_LIBRARY}")

add_library(sqlcipher_engine INTERFACE)
target_include_directories(sqlcipher_engine SYSTEM INTERFACE "${SQLCIPHER_INCLUDE_DIR}")
target_compile_definitions(sqlcipher_engine INTERFACE SQLITE_HAS_CODEC)
target_link_libraries(sqlcipher_engine INTERFACE "${SQLCIPHER_LIBRARY}" OpenSSL::Crypto m ${CMAKE_DL_LIBS})
target_link_options(sqlcipher_engine INTERFACE "LINKER:--exclude-libs,libsqlcipher.a")
