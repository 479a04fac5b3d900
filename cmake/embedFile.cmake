# Writes a C++ source that holds the bytes of a file as an array, with a second variable for their number:
#   cmake -DINPUT=file -DOUTPUT=source -DHEADER=omtReader/standardMim.h -DARRAY=name -P embedFile.cmake
# The header declares both as extern.
file(READ ${INPUT} bytes HEX)
string(LENGTH "${bytes}" length)
math(EXPR length "${length} / 2")
string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
file(WRITE ${OUTPUT} "#include \"${HEADER}\"

const unsigned char ${ARRAY}[] = {
${bytes}0x00};
const unsigned int ${ARRAY}_len = ${length};
")
