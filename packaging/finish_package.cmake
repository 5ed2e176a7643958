# Run by cpack on the files of the package. Sets the usual permissions of folders, whatever the
# umask, and removes sections of the programs that are not needed at run time.
set(everyone OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
file(CHMOD_RECURSE ${CPACK_TEMPORARY_INSTALL_DIRECTORY} DIRECTORY_PERMISSIONS ${everyone})
execute_process(COMMAND ${CPACK_STRIP_PROGRAM} --remove-section=.comment --remove-section=.note
                        ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/tarvold-editor
                        ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/tarvold-records
                COMMAND_ERROR_IS_FATAL ANY)
