# Fails unless the fenced block after the line "<!-- ${EXAMPLE} -->" of README.md holds the very bytes
# of that file.

file(READ ${SOURCE_DIR}/README.md readme)
file(READ ${SOURCE_DIR}/${EXAMPLE} example)

set(opening "<!-- ${EXAMPLE} -->\n```cpp\n")
string(FIND "${readme}" "${opening}" start)
if(start EQUAL -1)
    message(FATAL_ERROR "README.md has no cpp block right after <!-- ${EXAMPLE} -->")
endif()
string(LENGTH "${opening}" length)
math(EXPR start "${start} + ${length}")
string(SUBSTRING "${readme}" ${start} -1 block)
string(FIND "${block}" "\n```\n" end)
if(end EQUAL -1)
    message(FATAL_ERROR "the block of ${EXAMPLE} in README.md has no end")
endif()
math(EXPR end "${end} + 1")
string(SUBSTRING "${block}" 0 ${end} block)
if(NOT block STREQUAL example)
    message(FATAL_ERROR "README.md prints another program than ${EXAMPLE}")
endif()
