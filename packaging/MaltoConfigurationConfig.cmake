# find_package(MaltoConfiguration 0.1 REQUIRED [COMPONENTS <name>...])
#
# Finds the build for the Qt that the project has found. If the project has found none yet, finds the
# build for the newest Qt that is installed. If it has found both, MALTO_QT_MAJOR chooses: 5 or 6.
# The builds for Qt 5 and Qt 6 both install this file, each in its own folder.
#
# Every library is there whether or not it is named as a component: MaltoConfiguration, and its
# companions OrvUtils, QIconfont and QxtGlobalShortcut. A host links
# MaltoConfiguration::MaltoConfiguration. `malto_add_translations` is explained in
# MaltoTranslations.cmake beside this file; it looks for Qt's linguist tools only when it is called.

include(${CMAKE_CURRENT_LIST_DIR}/MaltoHostQt.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/MaltoCheckLinks.cmake)

# _malto_load(<major> <option>...): loads the build for a Qt from where the options of find_package()
# allow. Sets _malto_loaded to its Qt, or _malto_problem to a sentence if it is installed but unusable.
# This is a macro, because AUTOMOC needs the variables that Qt's packages set.
macro(_malto_load major)
    set(_malto_build MaltoConfiguration-qt${major})
    set(_malto_version ${MaltoConfiguration_FIND_VERSION_COMPLETE})
    if(NOT _malto_version) # before CMake 3.19
        set(_malto_version ${MaltoConfiguration_FIND_VERSION})
    endif()
    set(_malto_exact)
    if(MaltoConfiguration_FIND_VERSION_EXACT)
        set(_malto_exact EXACT)
    endif()
    unset(${_malto_build}_NOT_FOUND_MESSAGE)
    find_package(${_malto_build} ${_malto_version} ${_malto_exact} QUIET CONFIG
        NAMES MaltoConfiguration CONFIGS ${_malto_build}Config.cmake ${ARGN})
    if(${_malto_build}_FOUND)
        set(_malto_loaded ${major})
        set(MaltoConfiguration_DIR ${${_malto_build}_DIR}
            CACHE PATH "The directory containing a CMake configuration file for MaltoConfiguration." FORCE)
        foreach(_malto_part IN ITEMS "" _MAJOR _MINOR _PATCH _TWEAK _COUNT)
            set(MaltoConfiguration_VERSION${_malto_part} ${${_malto_build}_VERSION${_malto_part}})
        endforeach()
    elseif(${_malto_build}_NOT_FOUND_MESSAGE)
        set(_malto_problem "${${_malto_build}_NOT_FOUND_MESSAGE}")
    elseif(${_malto_build}_CONSIDERED_VERSIONS AND NOT _malto_problem)
        list(JOIN ${_malto_build}_CONSIDERED_VERSIONS ", " _malto_problem)
        set(_malto_problem
            "This project asks for MaltoConfiguration ${_malto_version} for Qt ${major}, but its version is ${_malto_problem}.")
    endif()
    # Otherwise a later MaltoConfiguration_DIR would have no effect.
    unset(${_malto_build}_DIR CACHE)
endmacro()

set(_malto_loaded)
malto_qt_of_host(_malto_major _malto_problem)
if(TARGET MaltoConfiguration::MaltoConfiguration)
    set(_malto_loaded TRUE)
elseif(NOT _malto_problem)
    set(_malto_majors ${_malto_major})
    if(NOT _malto_majors)
        # The build that was found first stays, even if a newer one is installed later.
        set(_malto_majors ${MALTO_QT_FOUND} 6 5)
    endif()
    # Builds in the same place first: the search has found this place before any other.
    foreach(_malto_place IN ITEMS "PATHS;${CMAKE_CURRENT_LIST_DIR}/..;NO_DEFAULT_PATH" "")
        foreach(_malto_candidate IN LISTS _malto_majors)
            if(NOT _malto_loaded)
                _malto_load(${_malto_candidate} ${_malto_place})
            endif()
        endforeach()
    endforeach()
    if(_malto_loaded AND NOT _malto_major)
        set(MALTO_QT_FOUND ${_malto_loaded} CACHE INTERNAL "The Qt that was found first")
    endif()
    if(_malto_loaded)
        malto_check_links_later()
    elseif(NOT _malto_problem)
        math(EXPR _malto_candidate "11 - ${_malto_major}")
        set(_malto_problem
            "This project uses Qt ${_malto_major}, but MaltoConfiguration in ${CMAKE_CURRENT_LIST_DIR} is for Qt ${_malto_candidate}: build and install it with -DMALTO_QT_MAJOR=${_malto_major}, too.")
    endif()
endif()

if(_malto_loaded)
    set(_malto_problem)
    foreach(_malto_part IN LISTS MaltoConfiguration_FIND_COMPONENTS)
        if(TARGET MaltoConfiguration::${_malto_part})
            set(MaltoConfiguration_${_malto_part}_FOUND TRUE)
        elseif(MaltoConfiguration_FIND_REQUIRED_${_malto_part})
            set(_malto_problem
                "MaltoConfiguration has no component ${_malto_part}: it has MaltoConfiguration, OrvUtils, QIconfont and QxtGlobalShortcut.")
        endif()
    endforeach()
endif()
if(_malto_problem)
    set(MaltoConfiguration_FOUND FALSE)
    set(MaltoConfiguration_NOT_FOUND_MESSAGE "${_malto_problem}")
endif()
