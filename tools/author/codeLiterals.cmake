# Writes every text in double quotes of the game's sources below ROOT, one C++ string a line, to OUT.
file(GLOB_RECURSE sources "${ROOT}/znappcore/*.cpp" "${ROOT}/znappcore/*.h" "${ROOT}/znhogcore/*.cpp"
     "${ROOT}/znhogcore/*.h" "${ROOT}/src/*.cpp" "${ROOT}/src/*.h")
set(found "")
foreach(source ${sources})
    file(READ "${source}" text)
    # What CMake would take apart, and what no name holds.
    string(REGEX REPLACE "#include[^\n]*" "" text "${text}")
    string(REGEX REPLACE "[][;\\]" "?" text "${text}")
    string(REGEX MATCHALL "\"[A-Za-z0-9_./+>-]+\"" literals "${text}")
    list(APPEND found ${literals})
endforeach()
list(REMOVE_DUPLICATES found)
list(SORT found)
list(JOIN found ",\n" joined)
file(WRITE "${OUT}" "${joined},\n")
