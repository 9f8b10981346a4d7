# Gives all that goes into a package the time SOURCE_DATE_EPOCH, so that a source has one package whoever builds it.
if(NOT "$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    execute_process(
        COMMAND find ${CPACK_TEMPORARY_INSTALL_DIRECTORY} -exec touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
