# Finds targets of a host that link MaltoConfiguration and the Qt that it was not built with. CMake's
# own message about them, on INTERFACE_QT_MAJOR_VERSION, does not say which of the two is wrong.

# malto_check_links_later(): checks the targets of the current folder and of those below at the end
# of the folder, when all of them are known. CMake before 3.19 cannot do this.
function(malto_check_links_later)
    if(NOT CMAKE_VERSION VERSION_LESS 3.19)
        cmake_language(DEFER CALL _malto_check_links ${CMAKE_CURRENT_SOURCE_DIR})
    endif()
endfunction()

function(_malto_check_links folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        _malto_collect_links(${target} links)
        set(libraries ${links})
        list(FILTER libraries INCLUDE REGEX "^MaltoConfiguration::")
        foreach(library IN LISTS libraries)
            get_target_property(major ${library} INTERFACE_QT_MAJOR_VERSION)
            math(EXPR other "11 - ${major}")
            set(others ${links})
            list(FILTER others INCLUDE REGEX "^Qt${other}::")
            if(others)
                list(GET others 0 module)
                message(FATAL_ERROR
                    "${target} links ${module} and ${library}, which was found for Qt ${major}: link one Qt only, "
                    "and set MALTO_QT_MAJOR to ${other} if that is to be Qt ${other}.")
            endif()
        endforeach()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        _malto_check_links(${subfolder})
    endforeach()
endfunction()

# _malto_collect_links(<target> <result>): the names of all that a target links, also by libraries
# of the host.
function(_malto_collect_links target result)
    set(links)
    get_target_property(pending ${target} LINK_LIBRARIES)
    while(pending)
        list(POP_FRONT pending link)
        if(link IN_LIST links)
            continue()
        endif()
        list(APPEND links "${link}")
        if(TARGET "${link}" AND NOT link MATCHES "^(MaltoConfiguration|Qt[56])::")
            get_target_property(more ${link} INTERFACE_LINK_LIBRARIES)
            if(more)
                list(TRANSFORM more REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1")
                list(APPEND pending ${more})
            endif()
        endif()
    endwhile()
    set(${result} "${links}" PARENT_SCOPE)
endfunction()
