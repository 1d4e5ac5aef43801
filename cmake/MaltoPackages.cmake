# The Debian packages that cpack creates with the preset `package`: the libraries, and the
# development files for building hosts.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME maltoconfiguration)
set(CPACK_PACKAGE_VENDOR "The MaltoConfiguration developers")
set(CPACK_PACKAGE_CONTACT "The MaltoConfiguration developers <maintainers@maltoconfiguration.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "settings library for Qt applications")
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libmaltoconfiguration${PROJECT_VERSION_MAJOR})
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
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS qttranslations5-l10n)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libmaltoconfiguration-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "This package is for building programs with it: headers, a CMake package,
pkg-config files, and the translations, style sheets and icon font that a host
may ship.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION}-1), qtbase5-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "qttools5-dev, qttools5-dev-tools, qttranslations5-l10n")

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
