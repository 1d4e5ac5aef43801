# Which Qt the project is built with: MALTO_QT_MAJOR is 5 or 6 after this file.
#
# The sources name Qt's targets by it, Qt${MALTO_QT_MAJOR}::Core. The names without a version would
# not do: in a host that has found both they belong to the first one, a host can turn them off, and
# the installed package must name the Qt that it was built with.

set(MALTO_MINIMUM_QT5 5.15)
set(MALTO_MINIMUM_QT6 6.4)

if(NOT DEFINED MALTO_QT_MAJOR)
    set(MALTO_QT_MAJOR "" CACHE STRING
        "Qt to build with, 5 or 6; empty: the one that the host has found, else the newest installed")
    set_property(CACHE MALTO_QT_MAJOR PROPERTY STRINGS "" 5 6)
endif()

# _malto_choose_qt(<result>): 5 or 6, or empty when there is neither.
macro(_malto_choose_qt result)
    set(${result} ${MALTO_QT_MAJOR})
    if(NOT "${MALTO_QT_MAJOR}" MATCHES "^[56]?$")
        message(FATAL_ERROR
            "MALTO_QT_MAJOR is \"${MALTO_QT_MAJOR}\", but MaltoConfiguration is built with Qt 5 or 6.")
    elseif(MALTO_QT_MAJOR)
        _malto_check_qt_of_host(${MALTO_QT_MAJOR}
            "but MALTO_QT_MAJOR chooses Qt ${MALTO_QT_MAJOR} for MaltoConfiguration")
    elseif(TARGET Qt5::Core AND TARGET Qt6::Core)
        message(FATAL_ERROR
            "This project has found both Qt 5 and Qt 6: set MALTO_QT_MAJOR to the one that "
            "MaltoConfiguration is to be built with.")
    elseif(TARGET Qt5::Core)
        set(${result} 5)
    elseif(TARGET Qt6::Core)
        set(${result} 6)
    elseif(QT_VERSION_MAJOR MATCHES "^[56]$")
        set(${result} ${QT_VERSION_MAJOR})
    else()
        _malto_find_newest_qt(${result})
        if(NOT MALTO_IS_TOP_LEVEL AND NOT CMAKE_VERSION VERSION_LESS 3.19)
            # The host may look for its Qt later, and find the other one.
            cmake_language(EVAL CODE "
                cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]] CALL _malto_check_qt_of_host
                    [[${${result}}]]
                    [[but had not when it added MaltoConfiguration, which took Qt ${${result}}]])")
        endif()
    endif()
endmacro()

# The newest Qt that is complete and new enough, or else one that is there, or else empty. The choice is
# kept, so that a Qt that is installed later does not change a build folder that is in use.
# (`find_package(QT NAMES Qt6 Qt5)` takes the one that the folder happens to list first.)
macro(_malto_find_newest_qt result)
    foreach(major IN ITEMS ${MALTO_QT_FOUND} 5 6)
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

# _malto_check_qt_of_host(<major> <objection>): ends the configuration when the host has found the
# other Qt and this one not.
function(_malto_check_qt_of_host major objection)
    math(EXPR other "11 - ${major}")
    if(TARGET Qt${other}::Core AND NOT TARGET Qt${major}::Core)
        message(FATAL_ERROR
            "This project has found Qt ${other}, ${objection}: set MALTO_QT_MAJOR to ${other}.")
    endif()
endfunction()

# malto_find_qt(<module>...): finds modules of the chosen Qt, or says what is missing.
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
# Hides the variable of the cache, which stays what the user has chosen.
set(MALTO_QT_MAJOR ${malto_qt_major})
set(MALTO_MINIMUM_QT ${MALTO_MINIMUM_QT${MALTO_QT_MAJOR}})
malto_find_qt(Core Gui Widgets)
