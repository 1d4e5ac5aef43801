# Installs the builds for both Qts, with empty libraries, and fails if both install the same file.
# Leaves these folders in FOLDER: qt5, qt6, both, and newer5 with a newer version of qt5.
cmake_minimum_required(VERSION 3.16)
include(${CMAKE_CURRENT_LIST_DIR}/../choiceOfQt/fakeQt.cmake)

function(run)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

# configure(<major>): configures the build for a Qt, and writes empty files for its libraries. With
# the prefix /usr it also installs what only Debian packages have.
function(configure major)
    set(build ${FOLDER}/build${major})
    run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${COMPILER}
        -DMALTO_QT_MAJOR=${major} -DCMAKE_PREFIX_PATH=${FOLDER}/qt -DCMAKE_SKIP_RPATH=ON
        -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_LIBDIR=lib -DMALTO_GLOBAL_HOTKEYS=OFF
        -DMALTO_BUILD_DEMO=OFF -DMALTO_BUILD_TESTS=OFF -DMALTO_BUILD_BENCHMARKS=OFF)
    file(GLOB_RECURSE scripts ${build}/cmake_install.cmake)
    foreach(script IN LISTS scripts)
        file(READ ${script} text)
        string(REGEX MATCHALL "${build}/lib/[^\"]+" libraries "${text}")
        foreach(library IN LISTS libraries)
            file(WRITE ${library} "")
        endforeach()
    endforeach()
endfunction()

file(REMOVE_RECURSE ${FOLDER})
install_qt(5:5.15.8)
install_qt(6:6.4.2)
foreach(major IN ITEMS 5 6)
    configure(${major})
    foreach(prefix IN ITEMS qt${major} both)
        run(${CMAKE_COMMAND} --install ${FOLDER}/build${major} --prefix ${FOLDER}/${prefix})
    endforeach()
    file(GLOB_RECURSE files${major} RELATIVE ${FOLDER}/qt${major} ${FOLDER}/qt${major}/*)
    list(LENGTH files${major} count)
    if(NOT files${major} MATCHES "lib/lib" OR NOT files${major} MATCHES "share/doc/")
        message(FATAL_ERROR "The build for Qt ${major} installs only ${count} files: ${files${major}}")
    endif()
endforeach()
foreach(file IN LISTS files5)
    if(file IN_LIST files6)
        message(SEND_ERROR "Both builds install ${file}")
    endif()
endforeach()

file(COPY ${FOLDER}/qt5/ DESTINATION ${FOLDER}/newer5)
file(GLOB versions ${FOLDER}/newer5/lib/cmake/*/*Version.cmake)
foreach(version IN LISTS versions)
    file(READ ${version} text)
    string(REPLACE "0.1" "0.2" text "${text}")
    file(WRITE ${version} "${text}")
endforeach()
