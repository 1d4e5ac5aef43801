# The Debian packages that cpack creates with the preset `package`: the libraries, and the
# development files for building hosts. Those of the build for Qt 6 have names of their own.
if(MALTO_QT_MAJOR EQUAL 5)
    set(qt_development qtbase5-dev)
    set(qt_tools "qttools5-dev, qttools5-dev-tools")
    set(qt_translations qttranslations5-l10n)
else()
    set(qt_development qt6-base-dev)
    set(qt_tools "qt6-tools-dev, qt6-l10n-tools")
    set(qt_translations qt6-translations-l10n)
endif()
# As usual in Debian, a hyphen separates the version from a name that ends in a digit.
string(REGEX REPLACE "([0-9])$" "\\1-" runtime_name libmaltoconfiguration${MALTO_SUFFIX})
string(APPEND runtime_name ${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME maltoconfiguration)
set(CPACK_PACKAGE_VENDOR "The MaltoConfiguration developers")
set(CPACK_PACKAGE_CONTACT "The MaltoConfiguration developers <maintainers@maltoconfiguration.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "settings library for Qt ${MALTO_QT_MAJOR} applications")
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_name})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "A program declares each setting once, bound to one of its own variables; the
library keeps it in a file that merges with other copies, and shows one window
in which the user edits everything.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS ${qt_translations})

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libmaltoconfiguration${MALTO_SUFFIX}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "This package is for building programs with it: headers, a CMake package,
pkg-config files, and the translations, style sheets and icon font that a host
may ship.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION}-1), ${qt_development}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "${qt_tools}, ${qt_translations}")

# The changelog and the copyright file of each Debian package. Other installations do not need them.
find_program(MALTO_GZIP gzip)
if(MALTO_GZIP AND CMAKE_INSTALL_PREFIX STREQUAL /usr)
    set(folder ${PROJECT_BINARY_DIR}/packaging)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/copyright.in ${folder}/copyright @ONLY)
    execute_process(
        COMMAND ${MALTO_GZIP} -9nc ${PROJECT_SOURCE_DIR}/packaging/changelog
        OUTPUT_FILE ${folder}/changelog.Debian.gz)
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER ${component} upper)
        install(FILES ${folder}/copyright ${folder}/changelog.Debian.gz
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
            COMPONENT ${component})
    endforeach()
endif()
include(CPack)
