# Tells when a picture of a page of the lesson or the manual was forgotten, or no longer belongs to
# its sources: cmake -D RESOURCES=<folder> -P sources.cmake

file(GLOB pages RELATIVE ${RESOURCES} ${RESOURCES}/lesson/*.* ${RESOURCES}/manual/*_[0-9][0-9].*)
list(TRANSFORM pages REPLACE "\\.[a-z]+$" "")
list(REMOVE_DUPLICATES pages)
list(LENGTH pages count)
if(count LESS 92)
  message(SEND_ERROR "Only ${count} pages are left.")
endif()

foreach(page IN LISTS pages)
  set(file ${RESOURCES}/${page})
  foreach(extension typ svg txt)
    file(SIZE ${file}.${extension} size)  # an error where the file is missing
    if(size LESS 50)
      message(SEND_ERROR "${page}.${extension} is empty: scripts/pages makes pictures and texts.")
    endif()
  endforeach()

  # The picture says in a comment what it was made from, the page itself first, and with what print.
  file(STRINGS ${file}.svg origin REGEX "^<!-- Typeset from .* -->$" LIMIT_COUNT 1)
  string(REGEX REPLACE "^<!-- Typeset from (.*) ([0-9a-f]+) -->$" "\\1;\\2" origin "${origin}")
  list(POP_BACK origin print)
  separate_arguments(sources UNIX_COMMAND "${origin}")
  list(GET sources 0 first)
  set(hashes "")
  foreach(source IN LISTS sources)
    file(SHA256 ${RESOURCES}/${source} hash)
    string(APPEND hashes ${hash})
  endforeach()
  string(SHA256 expected "${hashes}")
  if(NOT first STREQUAL "${page}.typ" OR NOT print STREQUAL expected)
    message(SEND_ERROR "${page}.svg does not belong to its sources: scripts/pages makes it anew.")
  endif()

  # The renderer of the desktop leaves these out and gives no error.
  file(STRINGS ${file}.svg undrawn REGEX "<symbol|<style|<text|<foreignObject| href=")
  if(undrawn)
    message(SEND_ERROR "${page}.svg holds elements that are not drawn.")
  endif()
endforeach()
