# What a packager decides about access-point profiles: where they are, and who may have made them.
set(TARVO_PROFILE_FOLDER "/Library/Application Support/Skyvane/QX_Profile/" CACHE STRING
  "Folder of the access-point profiles and of their list, profile.xml")
set(TARVO_DEMO_PROFILE_PUBLIC_KEY "${PROJECT_SOURCE_DIR}/simulator/demo-profile-key.public.pem")
set(TARVO_PROFILE_PUBLIC_KEY "${TARVO_DEMO_PROFILE_PUBLIC_KEY}" CACHE FILEPATH
  "Public half of the key that makes profiles (RSA, 1024 bits, PEM), or empty for none; the demonstration key protects nothing")
set(TARVO_DEMO_PROFILE_SEAL_KEY "${PROJECT_SOURCE_DIR}/simulator/demo-seal-key.public.pem")
set(TARVO_PROFILE_SEAL_KEY "${TARVO_DEMO_PROFILE_SEAL_KEY}" CACHE FILEPATH
  "Public half of the key that profile folders must be sealed with (Ed25519, PEM), or empty for none; with the demonstration key, a seal is checked where there is one")
if(TARVO_PROFILE_PUBLIC_KEY STREQUAL "")
  message(STATUS "No operator's key (TARVO_PROFILE_PUBLIC_KEY): the companion sends no access points")
endif()

# Turns the key into DER and checks what it is, at configure time. Needs the program only then.
find_program(OPENSSL_PROGRAM openssl REQUIRED)

# tarvo_public_key(VARIABLE NAME DER TEXT): reads the PEM file that VARIABLE names. DER becomes the key as the elements of a
# C array (SubjectPublicKeyInfo, RFC 5280) and TEXT what openssl says of it; both are empty for no key. NAME.der keeps it.
function(tarvo_public_key variable name out_der out_text)
  set(pem "${${variable}}")
  set(${out_der} "" PARENT_SCOPE)
  set(${out_text} "" PARENT_SCOPE)
  if(pem STREQUAL "")
    return()
  endif()
  set(der "${CMAKE_CURRENT_BINARY_DIR}/${name}.der")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${pem}")
  if(NOT EXISTS "${pem}")
    message(FATAL_ERROR "${variable}: there is no file ${pem}")
  endif()
  execute_process(COMMAND "${OPENSSL_PROGRAM}" pkey -pubin -in "${pem}" -noout -text
    OUTPUT_VARIABLE text ERROR_QUIET RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "${variable}: ${pem} holds no public key in PEM form")
  endif()
  execute_process(COMMAND "${OPENSSL_PROGRAM}" pkey -pubin -in "${pem}" -outform DER -out "${der}"
    ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${der}" digits HEX)
  string(REGEX REPLACE "(..)" "0x\\1, " bytes "${digits}")
  set(${out_der} "${bytes}" PARENT_SCOPE)
  set(${out_text} "${text}" PARENT_SCOPE)
endfunction()

# tarvo_profile_public_key(OUT): the key that profiles are made with.
function(tarvo_profile_public_key out)
  tarvo_public_key(TARVO_PROFILE_PUBLIC_KEY profile-public-key der text)
  set(${out} "${der}" PARENT_SCOPE)
  if(der STREQUAL "")
    return()
  endif()
  if(NOT text MATCHES "\\(1024 bit\\).*Modulus")
    message(FATAL_ERROR "TARVO_PROFILE_PUBLIC_KEY: it is no RSA key of 1024 bits, as profiles need")
  endif()
  if(text MATCHES "Exponent: ([0-9]+)" AND CMAKE_MATCH_1 LESS 65537)
    message(FATAL_ERROR "TARVO_PROFILE_PUBLIC_KEY: its public exponent is ${CMAKE_MATCH_1}. Below 65537 anybody can forge "
      "profiles; make the key with `openssl genrsa 1024`")
  endif()
endfunction()

# tarvo_profile_seal_key(OUT): the key that folders are sealed with.
function(tarvo_profile_seal_key out)
  tarvo_public_key(TARVO_PROFILE_SEAL_KEY profile-seal-key der text)
  set(${out} "${der}" PARENT_SCOPE)
  if(NOT der STREQUAL "" AND NOT text MATCHES "^ED25519")
    message(FATAL_ERROR "TARVO_PROFILE_SEAL_KEY: it is no Ed25519 key")
  endif()
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
