# Selects the Qt to build with and sets MALTO_QT_MAJOR to 5 or 6.
#
# Targets of Qt are written with it, as Qt${MALTO_QT_MAJOR}::Core. The versionless targets would not
# work: in a host that has found both Qts they belong to the first one, a host can disable them, and
# the installed package must name the Qt that it was built with.

include(${CMAKE_CURRENT_LIST_DIR}/MaltoHostQt.cmake)

set(MALTO_MINIMUM_QT5 5.15)
set(MALTO_MINIMUM_QT6 6.4)

if(NOT DEFINED MALTO_QT_MAJOR)
    set(MALTO_QT_MAJOR "" CACHE STRING
        "Qt to build with, 5 or 6; empty: the one that the host has found, else the newest installed")
    set_property(CACHE MALTO_QT_MAJOR PROPERTY STRINGS "" 5 6)
endif()

# _malto_choose_qt(<result>): sets the result to 5 or 6, or to nothing if neither is found.
macro(_malto_choose_qt result)
    malto_qt_of_host(${result} malto_problem)
    if(malto_problem)
        message(FATAL_ERROR "${malto_problem}")
    elseif(NOT ${result})
        _malto_find_newest_qt(${result})
        if(NOT MALTO_IS_TOP_LEVEL AND NOT CMAKE_VERSION VERSION_LESS 3.19)
            # The host may call find_package() for its Qt later, and find the other one.
            cmake_language(EVAL CODE "
                cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]] CALL _malto_check_qt_found_later
                    [[${${result}}]])")
        endif()
    endif()
endmacro()

# Finds a Qt that is complete and new enough, or else any installed Qt, or else nothing. The result
# is cached, so that a Qt that is installed later does not change an existing build folder.
# (`find_package(QT NAMES Qt6 Qt5)` would depend on the order of the folders on the disk.)
macro(_malto_find_newest_qt result)
    foreach(major IN ITEMS ${MALTO_QT_FOUND} 6 5)
        find_package(Qt${major} QUIET COMPONENTS Core Gui Widgets)
        if(Qt${major}_FOUND AND NOT Qt${major}_VERSION VERSION_LESS MALTO_MINIMUM_QT${major})
            set(${result} ${major})
            break()
        elseif(Qt${major}_VERSION AND NOT ${result})
            set(${result} ${major})
        endif()
    endforeach()
    set(MALTO_QT_FOUND "${${result}}" CACHE INTERNAL "The Qt that was found first")
endmacro()

function(_malto_check_qt_found_later major)
    set(problem)
    malto_check_qt_of_host(problem ${major}
        "but had not when it added MaltoConfiguration, which took Qt ${major}")
    if(problem)
        message(FATAL_ERROR "${problem}")
    endif()
endfunction()

# malto_find_qt(<module>...): finds modules of the selected Qt, or fails with a message about the
# missing ones.
macro(malto_find_qt)
    find_package(Qt${MALTO_QT_MAJOR} QUIET COMPONENTS ${ARGN})
    _malto_check_modules(${ARGN})
endmacro()

function(_malto_check_modules)
    set(version ${Qt${MALTO_QT_MAJOR}_VERSION})
    if(NOT version)
        message(FATAL_ERROR "MaltoConfiguration needs Qt ${MALTO_MINIMUM_QT} or newer, which was not found: "
            "install its development packages or name its folder in CMAKE_PREFIX_PATH.")
    elseif(version VERSION_LESS MALTO_MINIMUM_QT)
        message(FATAL_ERROR "MaltoConfiguration needs Qt ${MALTO_MINIMUM_QT} or newer, but found Qt ${version} "
            "in ${Qt${MALTO_QT_MAJOR}_DIR}.")
    endif()
    set(missing)
    foreach(module IN LISTS ARGN)
        if(NOT Qt${MALTO_QT_MAJOR}${module}_FOUND)
            list(APPEND missing ${module})
        endif()
    endforeach()
    if(missing)
        list(JOIN missing ", " missing)
        message(FATAL_ERROR "MaltoConfiguration needs Qt's ${missing}, which Qt ${version} in "
            "${Qt${MALTO_QT_MAJOR}_DIR} lacks: install the development package of it.")
    endif()
endfunction()

_malto_choose_qt(malto_qt_major)
if(NOT malto_qt_major)
    message(FATAL_ERROR "MaltoConfiguration needs Qt ${MALTO_MINIMUM_QT5} or newer, or Qt "
        "${MALTO_MINIMUM_QT6} or newer, and found neither: install the development packages of one or "
        "name its folder in CMAKE_PREFIX_PATH.")
endif()
# This normal variable hides the cache variable, which keeps the user's choice.
set(MALTO_QT_MAJOR ${malto_qt_major})
set(MALTO_MINIMUM_QT ${MALTO_MINIMUM_QT${MALTO_QT_MAJOR}})
malto_find_qt(Core Gui Widgets)
