# Generates texts.cpp, which embeds files from the source tree, so that the program does not need to read them.
set(hazards ${PROJECT_SOURCE_DIR}/docs/hazards.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS catalogue.schema.json ${hazards})
file(READ catalogue.schema.json OSTREL_SCHEMA)
# docs/hazards.md ends with a JSON block that has a line for each argument.
file(READ ${hazards} OSTREL_HAZARDS)
string(REGEX REPLACE "^.*\n```json\n(.*)```\n$" "\\1" OSTREL_HAZARDS "${OSTREL_HAZARDS}")
configure_file(texts.cpp.in texts.cpp @ONLY)
# Compilers are not required to support literals of this length, but they accept much longer ones.
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/texts.cpp PROPERTIES COMPILE_OPTIONS -Wno-overlength-strings)
