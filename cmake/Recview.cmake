# One static library per subsystem: the sources of src/<dir>/ without its widgets/ folder.
function(recview_library name dir)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${dir}/*.cpp
                                        ${PROJECT_SOURCE_DIR}/src/${dir}/*.h)
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_DEPS})
endfunction()

# One GoogleTest program per subsystem: every tests/<dir>/*.cpp, linked with the support library.
function(recview_test name dir)
    cmake_parse_arguments(ARG "" "" "DEPS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${dir}/*.cpp)
    add_executable(${name} ${sources})
    # The dependencies come first, so that a window test takes its own main().
    target_link_libraries(${name} PRIVATE ${ARG_DEPS} recview_test_support GTest::gtest GTest::gmock)
    # Files shipped beside the program are looked for beside the test program too.
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${PROJECT_SOURCE_DIR}/data/langVX.txt
                $<TARGET_FILE_DIR:${name}>/langVX.txt)
    add_test(NAME ${name} COMMAND ${name})
    # A hung test fails after the timeout instead of stopping the run.
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
                                            WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
                                            TIMEOUT 300)
endfunction()
