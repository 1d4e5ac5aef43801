# Installs two components: Runtime, which programs need, and Development, which is needed to build them.
# All paths are relative, so that the installed tree can be moved.
#
# The builds for Qt 5 and Qt 6 can be installed into one folder: libraries, modules of pkg-config,
# Debian packages and folders of the build for Qt 6 have a suffix. Include lines are the same for
# both, so the headers for Qt 6, some of which differ, have a folder of their own.
include(CMakePackageConfigHelpers)

set(MALTO_SUFFIX)
set(MALTO_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR})
if(MALTO_QT_MAJOR EQUAL 6)
    set(MALTO_SUFFIX -qt6)
    set(MALTO_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/MaltoConfiguration${MALTO_SUFFIX})
endif()
set(MALTO_DATA_DIR ${CMAKE_INSTALL_DATADIR}/MaltoConfiguration${MALTO_SUFFIX})
set(MALTO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/MaltoConfiguration${MALTO_SUFFIX})

# malto_install_library(<target> <pkg-config name> <description> <folder of headers> <entry>...):
# installs the library, its target for the CMake package, its pkg-config file, and its headers: each
# entry of the current source folder as <folder>/<entry>. The suffix is added to the module's name.
function(malto_install_library target module description folder)
    set(include_dir ${MALTO_HEADER_DIR}/${folder})
    install(TARGETS ${target} EXPORT MaltoConfigurationTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT Runtime NAMELINK_COMPONENT Development)
    foreach(entry IN LISTS ARGN)
        if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/${entry})
            install(DIRECTORY ${entry} DESTINATION ${include_dir} COMPONENT Development
                FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
        else()
            install(FILES ${entry} DESTINATION ${include_dir} COMPONENT Development)
        endif()
    endforeach()
    file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    set(PC_MODULE ${module}${MALTO_SUFFIX})
    set(PC_LIBRARY ${target}${MALTO_SUFFIX})
    set(PC_DESCRIPTION ${description})
    string(REGEX REPLACE "/$" "" to_prefix ${to_prefix})
    set(PC_PREFIX \${pcfiledir}/${to_prefix})
    set(PC_INCLUDES -I\${includedir})
    if(target STREQUAL QxtGlobalShortcut)
        string(APPEND PC_INCLUDES " -I\${includedir}/${folder}")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/packaging/module.pc.in
                   ${PROJECT_BINARY_DIR}/pkgconfig/${PC_MODULE}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${PC_MODULE}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()

# malto_install_generated_header(<header>): installs a header that the build generates.
function(malto_install_generated_header header)
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${MALTO_INCLUDE_DIR}/${header}
        DESTINATION ${MALTO_HEADER_DIR}/${folder} COMPONENT Development)
endfunction()

# Installs the CMake package, and the translations, style sheets and font that hosts may use. The
# package consists of two: MaltoConfiguration finds the right build, MaltoConfiguration-qt<major>.
function(malto_install_package)
    set(build ${PROJECT_BINARY_DIR}/MaltoConfiguration-qt${MALTO_QT_MAJOR})
    install(EXPORT MaltoConfigurationTargets NAMESPACE MaltoConfiguration::
        DESTINATION ${MALTO_CMAKE_DIR} COMPONENT Development)
    configure_package_config_file(
        ${PROJECT_SOURCE_DIR}/packaging/MaltoConfiguration-qtConfig.cmake.in
        ${build}Config.cmake
        INSTALL_DESTINATION ${MALTO_CMAKE_DIR}
        PATH_VARS MALTO_DATA_DIR)
    # Both packages have the same version. Before 1.0 a minor version may be incompatible.
    write_basic_package_version_file(
        ${build}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES ${build}ConfigVersion.cmake
        DESTINATION ${MALTO_CMAKE_DIR} RENAME MaltoConfigurationConfigVersion.cmake COMPONENT Development)
    install(FILES
            ${build}Config.cmake
            ${build}ConfigVersion.cmake
            ${PROJECT_SOURCE_DIR}/packaging/MaltoConfigurationConfig.cmake
            ${PROJECT_SOURCE_DIR}/cmake/MaltoCheckLinks.cmake
            ${PROJECT_SOURCE_DIR}/cmake/MaltoHostQt.cmake
            ${PROJECT_SOURCE_DIR}/cmake/MaltoTranslations.cmake
        DESTINATION ${MALTO_CMAKE_DIR} COMPONENT Development)

    install(DIRECTORY ${PROJECT_SOURCE_DIR}/translations
        DESTINATION ${MALTO_DATA_DIR} COMPONENT Development FILES_MATCHING PATTERN "*.ts")
    install(FILES
            ${PROJECT_SOURCE_DIR}/res/CommonWindow.qss
            ${PROJECT_SOURCE_DIR}/res/ConfigurationWindow.qss
        DESTINATION ${MALTO_DATA_DIR}/qss COMPONENT Development)
    install(FILES ${PROJECT_SOURCE_DIR}/companion/iconfont/QuorviIconfont.ttf
        DESTINATION ${MALTO_DATA_DIR}/fonts COMPONENT Development)
    install(FILES ${PROJECT_SOURCE_DIR}/companion/iconfont/outlines/LICENSE
        DESTINATION ${MALTO_DATA_DIR}/licences RENAME QuorviIconfont COMPONENT Development)
    if(MALTO_LICENSE)
        install(FILES ${MALTO_LICENSE_FILE}
            DESTINATION ${MALTO_DATA_DIR}/licences RENAME MaltoConfiguration COMPONENT Development)
    endif()
endfunction()
