# Writes the packages of Qt and the host, configures the host and checks its output.
cmake_minimum_required(VERSION 3.16)
include(${CMAKE_CURRENT_LIST_DIR}/fakeQt.cmake)

function(configure_host)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S ${FOLDER}/host -B ${FOLDER}/build -G ${GENERATOR} ${OPTIONS}
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    string(REGEX REPLACE "[ \n]+" " " output "${output}") # messages are wrapped
    set(expectedResult 1)
    if(EXPECTED MATCHES "^chose")
        set(expectedResult 0)
    endif()
    if(NOT output MATCHES "${EXPECTED}" OR NOT result EQUAL expectedResult)
        message(FATAL_ERROR "expected: ${EXPECTED}\nconfiguration ended with ${result}: ${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${FOLDER})
foreach(qt IN LISTS QTS)
    install_qt(${qt})
endforeach()
file(WRITE ${FOLDER}/host/CMakeLists.txt "
    cmake_minimum_required(VERSION 3.16)
    project(host LANGUAGES NONE)
    # Find only these packages.
    set(CMAKE_PREFIX_PATH ${FOLDER}/qt ${PREFIXES})
    set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)
    set(CMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH OFF)
    set(CMAKE_FIND_USE_PACKAGE_REGISTRY OFF)
    ${BEFORE}
    ${ADD}
    ${AFTER}\n")
file(WRITE ${FOLDER}/host/library/CMakeLists.txt "
    include(${SOURCE_DIR}/cmake/MaltoQt.cmake)
    message(STATUS \"chose \${MALTO_QT_MAJOR}\")\n")
configure_host()
foreach(qt IN LISTS LATER)
    install_qt(${qt})
    configure_host()
endforeach()
