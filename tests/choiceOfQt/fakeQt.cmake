# Writes CMake packages of Qt without code, below FOLDER/qt. A project that uses them can be configured
# but not built.
find_program(NO_TOOL true)

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
                endif()
                foreach(tool IN ITEMS moc uic rcc)
                    if(NOT TARGET Qt${major}::\${tool})
                        add_executable(Qt${major}::\${tool} IMPORTED)
                        set_target_properties(Qt${major}::\${tool} PROPERTIES
                            IMPORTED_LOCATION ${NO_TOOL})
                    endif()
                endforeach()")
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
        if(NOT PACKAGE_VERSION VERSION_LESS PACKAGE_FIND_VERSION)
            set(PACKAGE_VERSION_COMPATIBLE TRUE)
        endif()\n")
endfunction()
