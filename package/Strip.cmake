# Takes from the staged programs what only compilers and debuggers read, as Debian's own packages do.
file(GLOB programs LIST_DIRECTORIES false ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/lib/till/*)
list(FILTER programs EXCLUDE REGEX shop-folder)
execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note ${programs}
                COMMAND_ERROR_IS_FATAL ANY)
