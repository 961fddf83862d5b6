# What a packager decides about access-point profiles: where they are, and who may have made them.
set(TARVO_PROFILE_FOLDER "/Library/Application Support/Skyvane/QX_Profile/" CACHE STRING
  "Folder of the access-point profiles and of their list, profile.xml")
set(TARVO_DEMO_PROFILE_PUBLIC_KEY "${PROJECT_SOURCE_DIR}/simulator/demo-profile-key.public.pem")
set(TARVO_PROFILE_PUBLIC_KEY "${TARVO_DEMO_PROFILE_PUBLIC_KEY}" CACHE FILEPATH
  "Public half of the key that makes profiles (RSA, 1024 bits, PEM), or empty for none; the demonstration key protects nothing")
if(TARVO_PROFILE_PUBLIC_KEY STREQUAL "")
  message(STATUS "No operator's key (TARVO_PROFILE_PUBLIC_KEY): the companion sends no access points")
endif()

# Turns the key into DER and checks what it is, at configure time. Needs the program only then.
find_program(OPENSSL_PROGRAM openssl REQUIRED)

# tarvo_profile_public_key(OUT): the key as the elements of a C array (SubjectPublicKeyInfo, RFC 5280), empty for no key.
function(tarvo_profile_public_key out)
  set(pem "${TARVO_PROFILE_PUBLIC_KEY}")
  if(pem STREQUAL "")
    set(${out} "" PARENT_SCOPE)
    return()
  endif()
  set(der "${CMAKE_CURRENT_BINARY_DIR}/profile-public-key.der")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${pem}")
  if(NOT EXISTS "${pem}")
    message(FATAL_ERROR "TARVO_PROFILE_PUBLIC_KEY: there is no file ${pem}")
  endif()
  execute_process(COMMAND "${OPENSSL_PROGRAM}" rsa -pubin -in "${pem}" -noout -text
    OUTPUT_VARIABLE description ERROR_QUIET RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "TARVO_PROFILE_PUBLIC_KEY: ${pem} holds no RSA public key in PEM form")
  endif()
  if(NOT description MATCHES "\\(1024 bit\\)")
    message(FATAL_ERROR "TARVO_PROFILE_PUBLIC_KEY: the key in ${pem} is not of 1024 bits, as profiles need")
  endif()
  execute_process(COMMAND "${OPENSSL_PROGRAM}" rsa -pubin -in "${pem}" -outform DER -out "${der}"
    ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${der}" digits HEX)
  string(REGEX REPLACE "(..)" "0x\\1, " bytes "${digits}")
  set(${out} "${bytes}" PARENT_SCOPE)
endfunction()

# tarvo_profile_key_description(OUT): the built-in key, for the manual.
function(tarvo_profile_key_description out)
  tarvo_profile_public_key(key)
  set(description "no key to read profiles is built into it, so that it sends no access points.")
  if(NOT key STREQUAL "")
    file(SHA256 "${CMAKE_CURRENT_BINARY_DIR}/profile-public-key.der" fingerprint)
    set(description "the fingerprint of its key is\n.nf\n${fingerprint}.\n.fi")
  endif()
  if(TARVO_PROFILE_PUBLIC_KEY STREQUAL TARVO_DEMO_PROFILE_PUBLIC_KEY)
    string(APPEND description "\nThat is the demonstration key, which everybody has and which protects nothing.")
  endif()
  set(${out} "${description}" PARENT_SCOPE)
endfunction()

# tarvo_profile_folder(OUT): the folder with its trailing slash.
function(tarvo_profile_folder out)
  if(NOT IS_ABSOLUTE "${TARVO_PROFILE_FOLDER}")
    message(FATAL_ERROR "TARVO_PROFILE_FOLDER: ${TARVO_PROFILE_FOLDER} is no absolute path")
  endif()
  string(REGEX REPLACE "/+$" "" folder "${TARVO_PROFILE_FOLDER}")
  set(${out} "${folder}/" PARENT_SCOPE)
endfunction()
