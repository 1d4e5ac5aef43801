# Compiles typeWithoutForm.cpp. With a form every use compiles; without one the only error of
# each use is the sentence of the library.
#   cmake -DCOMPILER=<c++> -DINCLUDES=<folder>... -DSOURCE=<file> -P checkTypeWithoutForm.cmake
cmake_minimum_required(VERSION 3.16)

set(sentence "a setting of this type needs a MtConf::JsonForm with toJson and fromJson")
list(REMOVE_ITEM INCLUDES "" /usr/include)
list(REMOVE_DUPLICATES INCLUDES)
list(TRANSFORM INCLUDES PREPEND -I)
set(ENV{LC_ALL} C)

function(compile use result output)
    execute_process(
        COMMAND ${COMPILER} -std=c++17 -fPIC -fsyntax-only ${INCLUDES} -DMALTO_USE=${use} ${SOURCE}
        RESULT_VARIABLE failed OUTPUT_VARIABLE text ERROR_VARIABLE text)
    set(${result} ${failed} PARENT_SCOPE)
    set(${output} "${text}" PARENT_SCOPE)
endfunction()

compile(0 failed output)
if(failed)
    message(FATAL_ERROR "a type with a form does not compile:\n${output}")
endif()
foreach(use RANGE 1 6)
    compile(${use} failed output)
    if(NOT failed)
        message(FATAL_ERROR "use ${use} of a type without a form compiles")
    endif()
    string(REGEX MATCHALL "error:[^\n]*" errors "${output}")
    list(LENGTH errors count)
    string(FIND "${errors}" "${sentence}" found)
    if(NOT count EQUAL 1 OR found EQUAL -1)
        message(FATAL_ERROR "use ${use} of a type without a form has ${count} errors:\n${output}")
    endif()
endforeach()
