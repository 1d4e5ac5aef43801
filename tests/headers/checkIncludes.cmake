# Fails if a file includes a header of a higher folder:
#   store <- manage <- widgets <- manage/MtConfManageDeclare*.cpp <- inputs <- window
# A companion includes nothing but the private headers in MaltoFiles/.

set(forbidden_store "MaltoConfiguration/(manage|widgets|inputs|window)/|OrvUtils/|QIconfont/|<Q(Widget|Application|Label)>")
set(forbidden_manage "MaltoConfiguration/(widgets|inputs|window)/")
set(forbidden_widgets "MaltoConfiguration/(manage/MtConfManage|inputs|window)")
set(forbidden_inputs "MaltoConfiguration/window/")
set(forbidden_window "")
set(forbidden_companion "MaltoConfiguration/")

set(failed FALSE)
foreach(folder store manage widgets inputs window companion)
    file(GLOB_RECURSE files ${SOURCE_DIR}/${folder}/*.h ${SOURCE_DIR}/${folder}/*.cpp
         ${SOURCE_DIR}/${folder}/*.mm)
    foreach(file IN LISTS files)
        get_filename_component(name ${file} NAME)
        # The only exceptions: declarations create the default editor of each type.
        if(name MATCHES "^MtConfManageDeclare(Types)?.cpp$")
            continue()
        endif()
        file(STRINGS ${file} includes REGEX "^ *# *include")
        foreach(include IN LISTS includes)
            if((NOT forbidden_${folder} STREQUAL "" AND include MATCHES "${forbidden_${folder}}")
               OR include MATCHES "[<\"/](demo|tests|benchmarks|[.][.])/")
                message(SEND_ERROR "${file}: ${include}")
                set(failed TRUE)
            endif()
        endforeach()
    endforeach()
endforeach()
if(failed)
    message(FATAL_ERROR "a lower layer includes a higher one")
endif()
