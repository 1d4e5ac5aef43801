# Functions that create the targets of the project, with one include tree and one set of warnings.

# The same include lines, such as <MaltoConfiguration/store/ConfStorage.h>, work in the build tree,
# with an installed package and in a host's tree, whatever the name of the checkout. The build tree
# has a folder of symbolic links for this.
set(MALTO_INCLUDE_DIR ${CMAKE_CURRENT_BINARY_DIR}/include)

# malto_include_tree(<name> <entry>...): links each entry of the current source folder as
# include/<name>/<entry>.
function(malto_include_tree name)
    file(MAKE_DIRECTORY ${MALTO_INCLUDE_DIR}/${name})
    foreach(entry IN LISTS ARGN)
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${entry} ${MALTO_INCLUDE_DIR}/${name}/${entry}
             COPY_ON_ERROR SYMBOLIC)
    endforeach()
endfunction()

# Only clang warns about QSKIP, about Qt::CTRL + Qt::Key_A in Qt 5, and about the links of the
# include tree.
set(MALTO_CLANG_WARNINGS -Wno-gnu-zero-variadic-macro-arguments -Wno-enum-enum-conversion
    -Wno-nonportable-include-path)

# malto_own_code(<target> [CASTS]): enables warnings and strict Qt definitions for the project's
# sources, not for a host's. CASTS allows implicit conversions of literals to QString, for tests.
function(malto_own_code target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON AUTOUIC ON AUTORCC ON
        CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF)
    # Qt 6.4 has no replacement yet for what later versions deprecate.
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_WARN_DEPRECATED_UP_TO=0x060400)
    if(NOT "CASTS" IN_LIST ARGN)
        target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
    endif()
    # For private headers that hide the differences between Qt 5 and Qt 6.
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/compat/qt${MALTO_QT_MAJOR})
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        "$<$<CXX_COMPILER_ID:Clang,AppleClang>:${MALTO_CLANG_WARNINGS}>"
        $<$<BOOL:${MALTO_DEVELOPER}>:-Werror>)
endfunction()

# malto_library(<target>): makes a target a shared library of the project, with hidden symbols, the
# include tree and a name for its Qt. CMake's check of mixed Qts names the libraries, too, because
# they have the property that Qt's targets have.
function(malto_library target)
    malto_own_code(${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${target}${MALTO_SUFFIX}
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON POSITION_INDEPENDENT_CODE ON
        INTERFACE_QT_MAJOR_VERSION ${MALTO_QT_MAJOR} COMPATIBLE_INTERFACE_STRING QT_MAJOR_VERSION)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${MALTO_INCLUDE_DIR}> $<INSTALL_INTERFACE:${MALTO_HEADER_DIR}>)
endfunction()

# malto_companion(<name> <folder> <option> <header>): defines MaltoConfiguration::<name>, built from
# the folder or, if the option is on, imported from an installed library of that name.
function(malto_companion name folder option header)
    option(${option} "Link an installed lib${name} instead of building ${folder}" OFF)
    if(NOT ${option})
        add_subdirectory(${folder})
        add_library(MaltoConfiguration::${name} ALIAS ${name})
        return()
    endif()
    find_library(${name}_LIBRARY NAMES ${name} Qxt${name} QxtWidgets REQUIRED)
    find_path(${name}_INCLUDE_DIR NAMES ${header} PATH_SUFFIXES QxtWidgets REQUIRED)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${${name}_LIBRARY})
    target_include_directories(${name} SYSTEM INTERFACE ${${name}_INCLUDE_DIR})
    add_library(MaltoConfiguration::${name} ALIAS ${name})
endfunction()
