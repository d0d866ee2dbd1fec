# Run by cpack between installing and packing: the folders of the packages, whatever the umask of whoever makes them.
execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -type d -exec chmod 755 {} + COMMAND_ERROR_IS_FATAL ANY)
