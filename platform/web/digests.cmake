# Writes offline.js with the digests of the files that it keeps: cmake -Dinput= -Dpage= -Dfiles= -P digests.cmake
set(DIGESTS "")
foreach(file IN LISTS files)
  file(SHA256 ${page}/${file} digest)
  string(REPLACE index.html ./ file ${file}) # the address it is asked for by
  string(APPEND DIGESTS "\n  '${file}': '${digest}',")
endforeach()
string(SHA256 VERSION "${DIGESTS}")
configure_file(${input} ${page}/offline.js @ONLY)
