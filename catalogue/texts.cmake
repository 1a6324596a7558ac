# Makes texts.cpp: files of the source tree as string literals, so that the program needs none of them later.
set(OSTREL_TEXT_DEFINITIONS "")
set(OSTREL_VECTOR_NAMES "")

function(ostrel_embed name path)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(READ ${path} text)
    set(OSTREL_TEXT_DEFINITIONS
        "${OSTREL_TEXT_DEFINITIONS}constexpr std::string_view ${name} = R\"~text~(${text})~text~\";\n" PARENT_SCOPE)
endfunction()

file(GLOB vector_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/vectors/*.ndjson)
set(number 0)
foreach(file ${vector_files})
    ostrel_embed(kVectors${number} ${file})
    string(APPEND OSTREL_VECTOR_NAMES "kVectors${number}, ")
    math(EXPR number "${number} + 1")
endforeach()
ostrel_embed(kDecisions ${PROJECT_SOURCE_DIR}/docs/decisions.md)
ostrel_embed(kMessages ${CMAKE_CURRENT_SOURCE_DIR}/messages.txt)
ostrel_embed(kSchema ${CMAKE_CURRENT_SOURCE_DIR}/catalogue.schema.json)
configure_file(texts.cpp.in texts.cpp @ONLY)
# Compilers promise less than these literals need, and manage far more.
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/texts.cpp PROPERTIES COMPILE_OPTIONS -Wno-overlength-strings)
