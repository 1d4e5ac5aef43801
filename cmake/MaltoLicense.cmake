# Sets what the packages say about the licence, from MALTO_LICENSE and LICENSE.
set(MALTO_LICENSE_FILE ${PROJECT_SOURCE_DIR}/LICENSE)

# For the copyright file of the Debian packages.
set(MALTO_LICENSE_NAME not-chosen-yet)
set(MALTO_LICENSE_TEXT " No licence has been chosen yet. Until then all rights are reserved.")
# For the pkg-config files: one line, or empty.
set(PC_LICENSE)

if(MALTO_LICENSE AND NOT EXISTS ${MALTO_LICENSE_FILE})
    message(FATAL_ERROR
        "MALTO_LICENSE is ${MALTO_LICENSE}, but the file LICENSE with its text is missing.")
elseif(EXISTS ${MALTO_LICENSE_FILE} AND NOT MALTO_LICENSE)
    message(FATAL_ERROR
        "There is a file LICENSE: set MALTO_LICENSE in CMakeLists.txt to its SPDX name.")
elseif(MALTO_LICENSE)
    set(MALTO_LICENSE_NAME ${MALTO_LICENSE})
    file(READ ${MALTO_LICENSE_FILE} MALTO_LICENSE_TEXT)
    # In Debian's format each line begins with a space, and an empty line is a full stop.
    string(STRIP "${MALTO_LICENSE_TEXT}" MALTO_LICENSE_TEXT)
    string(REGEX REPLACE "[ \t\r]*\n" "\n " MALTO_LICENSE_TEXT " ${MALTO_LICENSE_TEXT}")
    string(REGEX REPLACE "\n (\n|$)" "\n .\\1" MALTO_LICENSE_TEXT "${MALTO_LICENSE_TEXT}")
    string(REGEX REPLACE "\n (\n|$)" "\n .\\1" MALTO_LICENSE_TEXT "${MALTO_LICENSE_TEXT}")
    set(PC_LICENSE "License: ${MALTO_LICENSE}")
    set(CPACK_RESOURCE_FILE_LICENSE ${MALTO_LICENSE_FILE})
endif()
