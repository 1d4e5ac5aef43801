# Builds the translations of a host for the language setting of its settings window.
#
#   malto_add_translations(<target>
#       [TS_DIR <folder>] [LANGUAGES <code>...] [DESTINATION <folder>])
#
# For every language this merges the translations of the library (translations/malto_<code>.ts) with
# those of the host (<TS_DIR>/<code>.ts) into <code>.qm, and writes Qt's translations to
# qt_<code>.qm. ConfWidgetLanguage finds both at these paths:
#
#   <folder of the executable>/../Resources/language/<code>.qm
#   <folder of the executable>/../Resources/language_qt/qt_<code>.qm
#
# In a macOS bundle this is its Resources folder. The files are built with the target, and again
# after a change of a .ts file.
#
#   TS_DIR       the host's .ts files, each named after its code: fr-fr.ts. Where both translate the
#                same text, the host's translation is used.
#   LANGUAGES    the codes to offer. By default those of the .ts files in TS_DIR, or without TS_DIR
#                all languages of the library. English, "en-us", is built in and never listed.
#   DESTINATION  a folder to use instead of <folder of the executable>/../Resources.
#
# Call it in the CMakeLists.txt that defines the target. It needs Qt's linguist tools; Qt's own
# texts come from the translations that Qt has installed (Debian: qttranslations5-l10n or
# qt6-translations-l10n). A language for which there are none is left out with a message, and its
# standard buttons stay English.

if(NOT DEFINED MALTO_TRANSLATIONS_DIR)
    get_filename_component(MALTO_TRANSLATIONS_DIR
                           ${CMAKE_CURRENT_LIST_DIR}/../translations ABSOLUTE)
    set(MALTO_TRANSLATIONS_QT_MAJOR ${MALTO_QT_MAJOR})
endif()
# The functions can be called in any folder, where the variables of this one are not set.
set_property(GLOBAL PROPERTY MALTO_TRANSLATIONS_DIR ${MALTO_TRANSLATIONS_DIR})
set_property(GLOBAL PROPERTY MALTO_TRANSLATIONS_QT_MAJOR ${MALTO_TRANSLATIONS_QT_MAJOR})

function(malto_add_translations target)
    cmake_parse_arguments(ARG "" "TS_DIR;DESTINATION" "LANGUAGES" ${ARGN})
    _malto_find_linguist_tools()
    get_property(own_dir GLOBAL PROPERTY MALTO_TRANSLATIONS_DIR)
    if(ARG_TS_DIR)
        get_filename_component(ARG_TS_DIR ${ARG_TS_DIR} ABSOLUTE)
    endif()
    if(NOT ARG_LANGUAGES)
        _malto_languages(ARG_LANGUAGES ${own_dir} "${ARG_TS_DIR}")
    endif()
    if(NOT ARG_DESTINATION)
        set(ARG_DESTINATION $<TARGET_FILE_DIR:${target}>/../Resources)
    endif()

    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_translations)
    set(catalogues)
    foreach(code IN LISTS ARG_LANGUAGES)
        if(NOT EXISTS ${own_dir}/malto_${code}.ts)
            message(FATAL_ERROR "malto_add_translations: the library does not know ${code}")
        endif()
        set(sources ${own_dir}/malto_${code}.ts)
        if(ARG_TS_DIR AND EXISTS ${ARG_TS_DIR}/${code}.ts)
            list(APPEND sources ${ARG_TS_DIR}/${code}.ts)
        endif()
        malto_add_catalogue(${folder}/language/${code}.qm ${sources})
        list(APPEND catalogues ${folder}/language/${code}.qm)

        _malto_qt_sources(sources ${own_dir} ${code})
        if(sources)
            malto_add_catalogue(${folder}/language_qt/qt_${code}.qm ${sources})
            list(APPEND catalogues ${folder}/language_qt/qt_${code}.qm)
        else()
            message(STATUS "Qt has no translations for ${code}")
        endif()
    endforeach()

    # As sources, the files are built with the target. As link dependencies, they cause it to be
    # linked again after a change, and so themselves to be copied again.
    target_sources(${target} PRIVATE ${catalogues})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${catalogues})
    foreach(part language language_qt)
        add_custom_command(TARGET ${target} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -E copy_directory ${folder}/${part} ${ARG_DESTINATION}/${part}
            VERBATIM)
    endforeach()
endfunction()

# malto_add_catalogue(<qm> <source>...): merges several .ts or .qm files into one .qm. If several
# translate a text, the last one wins.
function(malto_add_catalogue catalogue)
    _malto_find_linguist_tools()
    get_filename_component(folder ${catalogue} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    set(inputs)
    foreach(source IN LISTS ARGN)
        list(APPEND inputs -i ${source})
    endforeach()
    add_custom_command(OUTPUT ${catalogue}
        COMMAND Qt${qt_major}::lconvert ${inputs} -o ${catalogue}
        DEPENDS ${ARGN} VERBATIM)
endfunction()

# Sets qt_major and finds the linguist tools, both in the scope of the caller.
macro(_malto_find_linguist_tools)
    get_property(qt_major GLOBAL PROPERTY MALTO_TRANSLATIONS_QT_MAJOR)
    find_package(Qt${qt_major} QUIET COMPONENTS Core LinguistTools)
    if(NOT TARGET Qt${qt_major}::lconvert)
        message(FATAL_ERROR "malto_add_translations needs the linguist tools of Qt ${qt_major}, which "
            "were not found: install the development package of Qt's tools.")
    endif()
endmacro()

# Returns the codes of the .ts files in ts_dir, or of the library's own if ts_dir is empty.
function(_malto_languages result own_dir ts_dir)
    if(ts_dir)
        file(GLOB files RELATIVE ${ts_dir} CONFIGURE_DEPENDS ${ts_dir}/*.ts)
        list(TRANSFORM files REPLACE "^(.*)[.]ts$" "\\1")
    else()
        file(GLOB files RELATIVE ${own_dir} CONFIGURE_DEPENDS ${own_dir}/malto_*.ts)
        list(TRANSFORM files REPLACE "^malto_(.*)[.]ts$" "\\1")
    endif()
    set(${result} ${files} PARENT_SCOPE)
endfunction()

# Returns the catalogues of Qt's own texts in a language: the library's, which has the most visible
# texts for languages that Qt lacks, and the installed ones, which win.
function(_malto_qt_sources result own_dir code)
    get_property(qt_major GLOBAL PROPERTY MALTO_TRANSLATIONS_QT_MAJOR)
    get_target_property(qmake Qt${qt_major}::qmake IMPORTED_LOCATION)
    execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS
        OUTPUT_VARIABLE qt_dir OUTPUT_STRIP_TRAILING_WHITESPACE)
    string(REGEX REPLACE "-.*" "" language ${code})
    string(REGEX REPLACE ".*-" "" country ${code})
    string(TOUPPER ${country} country)
    string(REPLACE "CHT" "TW" country ${country})
    set(sources)
    foreach(source ${own_dir}/qt_${code}.ts
                   ${qt_dir}/qtbase_${language}.qm ${qt_dir}/qtbase_${language}_${country}.qm)
        if(EXISTS ${source})
            list(APPEND sources ${source})
        endif()
    endforeach()
    set(${result} ${sources} PARENT_SCOPE)
endfunction()
