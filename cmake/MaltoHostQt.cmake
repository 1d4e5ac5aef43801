# Determines the Qt of a project that adds MaltoConfiguration to its tree or finds its package.

# malto_qt_of_host(<major> <problem>): sets <major> to the Qt that the project has chosen, 5 or 6, or
# to nothing if it has chosen none yet. If it has not made a clear choice, <problem> is a sentence
# about it, otherwise nothing.
function(malto_qt_of_host major_result problem_result)
    set(major ${MALTO_QT_MAJOR})
    set(problem)
    if(NOT "${MALTO_QT_MAJOR}" MATCHES "^[56]?$")
        set(problem
            "MALTO_QT_MAJOR is \"${MALTO_QT_MAJOR}\", but MaltoConfiguration is built with Qt 5 or 6.")
    elseif(MALTO_QT_MAJOR)
        malto_check_qt_of_host(problem ${MALTO_QT_MAJOR}
            "but MALTO_QT_MAJOR chooses Qt ${MALTO_QT_MAJOR} for MaltoConfiguration")
    elseif(TARGET Qt5::Core AND TARGET Qt6::Core)
        set(problem "This project has found both Qt 5 and Qt 6: set MALTO_QT_MAJOR to the one that MaltoConfiguration is to use.")
    elseif(TARGET Qt5::Core)
        set(major 5)
    elseif(TARGET Qt6::Core)
        set(major 6)
    elseif(QT_VERSION_MAJOR MATCHES "^[56]$")
        set(major ${QT_VERSION_MAJOR})
    endif()
    set(${major_result} "${major}" PARENT_SCOPE)
    set(${problem_result} "${problem}" PARENT_SCOPE)
endfunction()

# malto_check_qt_of_host(<problem> <major> <objection>): sets <problem> to a sentence if the project
# has found the other Qt but not this one.
function(malto_check_qt_of_host problem_result major objection)
    math(EXPR other "11 - ${major}")
    if(TARGET Qt${other}::Core AND NOT TARGET Qt${major}::Core)
        set(${problem_result}
            "This project has found Qt ${other}, ${objection}: set MALTO_QT_MAJOR to ${other}."
            PARENT_SCOPE)
    endif()
endfunction()
