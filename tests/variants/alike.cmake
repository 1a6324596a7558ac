function(ostrel_copy_properties target)
    foreach(property ${ARGN})
        get_target_property(value ostrel_check ${property})
        set_property(TARGET ${target} PROPERTY ${property} "${value}")
    endforeach()
endfunction()

# An empty library, linked in the same way, with which the contract tests compare the other libraries.
add_library(ostrel_empty SHARED ${PROJECT_SOURCE_DIR}/tests/contract/empty.c)
ostrel_copy_properties(ostrel_empty LINK_OPTIONS)
set_target_properties(ostrel_empty PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/variants/empty)
