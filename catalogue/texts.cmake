# Makes texts.cpp: files of the source tree as string literals, so that the program needs none of them later.
foreach(name catalogue.schema.json hazards.ndjson)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${name})
endforeach()
file(READ catalogue.schema.json OSTREL_SCHEMA)
file(READ hazards.ndjson OSTREL_HAZARDS)
configure_file(texts.cpp.in texts.cpp @ONLY)
# Compilers promise less than these literals need, and manage far more.
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/texts.cpp PROPERTIES COMPILE_OPTIONS -Wno-overlength-strings)
