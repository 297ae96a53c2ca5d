# The date of the changelog is that of everything in the packages, unless the environment has another.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND dpkg-parsechangelog -l ${CPACK_KV_DEBIAN_DIR}/changelog --show-field Timestamp
    OUTPUT_VARIABLE timestamp OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} ${timestamp})
endif()
