# The target help_file makes help/Vorlane.chm in the build folder. It isn't part of the default build: nothing on Linux
# needs the compiled file, and its compiler is large.
add_custom_target(help_file
    COMMAND /usr/bin/python3 ${PROJECT_SOURCE_DIR}/tools/make_help_file.py ${PROJECT_BINARY_DIR}/help
    COMMENT "Compiling the help file" VERBATIM)
