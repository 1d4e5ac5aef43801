# Writes the packages and the host, configures the host and checks its output.
cmake_minimum_required(VERSION 3.16)

# install_qt(<major>:<version>[:<module that it lacks>])
function(install_qt qt)
    string(REPLACE ":" ";" parts ${qt})
    list(GET parts 0 major)
    list(GET parts 1 version)
    foreach(module IN ITEMS Core Gui Widgets)
        if(NOT module IN_LIST parts)
            write_package(Qt${major}${module} ${version} "
                if(NOT TARGET Qt${major}::${module})
                    add_library(Qt${major}::${module} INTERFACE IMPORTED)
                endif()")
        endif()
    endforeach()
    write_package(Qt${major} ${version} "
        foreach(module IN LISTS \${CMAKE_FIND_PACKAGE_NAME}_FIND_COMPONENTS)
            find_package(Qt${major}\${module} QUIET PATHS \${CMAKE_CURRENT_LIST_DIR}/.. NO_DEFAULT_PATH)
            if(NOT Qt${major}\${module}_FOUND)
                set(\${CMAKE_FIND_PACKAGE_NAME}_FOUND FALSE)
            endif()
        endforeach()")
endfunction()

function(write_package name version code)
    set(path ${FOLDER}/qt/${name}/${name}Config)
    file(WRITE ${path}.cmake "${code}\n")
    file(WRITE ${path}Version.cmake "
        set(PACKAGE_VERSION ${version})
        set(PACKAGE_VERSION_COMPATIBLE TRUE)\n")
endfunction()

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
    set(CMAKE_PREFIX_PATH ${FOLDER}/qt)
    set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)
    set(CMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH OFF)
    set(CMAKE_FIND_USE_PACKAGE_REGISTRY OFF)
    ${BEFORE}
    add_subdirectory(library)
    ${AFTER}\n")
file(WRITE ${FOLDER}/host/library/CMakeLists.txt "
    include(${SOURCE_DIR}/cmake/MaltoQt.cmake)
    message(STATUS \"chose \${MALTO_QT_MAJOR}\")\n")
configure_host()
foreach(qt IN LISTS LATER)
    install_qt(${qt})
    configure_host()
endforeach()
