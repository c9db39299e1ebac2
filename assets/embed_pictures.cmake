# Run by the build with -DPICTURES, -DFOLDER and -DOUTPUT: a string literal for each picture, in pieces
# that no compiler finds too long.
set(most 8000)

# append_literal(TEXT): appends TEXT to `source` as literals that the compiler joins.
function(append_literal text)
  string(LENGTH "${text}" length)
  set(start 0)
  while(start LESS length)
    string(SUBSTRING "${text}" ${start} ${most} piece)
    # Behind the end of a line, so that no character is cut in two.
    string(FIND "${piece}" "\n" last REVERSE)
    if(last EQUAL -1)
      message(FATAL_ERROR "A line of a picture is too long to be embedded")
    endif()
    math(EXPR size "${last} + 1")
    string(SUBSTRING "${text}" ${start} ${size} piece)
    string(APPEND source "\n        R\"svg(${piece})svg\"")
    math(EXPR start "${start} + ${size}")
  endwhile()
  set(source "${source}" PARENT_SCOPE)
endfunction()

set(source "#include \"reporter/pictures.h\"\n\nnamespace halvane {\n\n")
string(APPEND source "std::string_view PictureSvg(std::string_view assetName) {\n")
foreach(picture IN LISTS PICTURES)
  file(READ ${FOLDER}/${picture}.svg svg)
  string(APPEND source "  if (assetName == \"${picture}\") {\n    return")
  append_literal("${svg}")
  string(APPEND source ";\n  }\n")
endforeach()
string(APPEND source "  return {};\n}\n\n}  // namespace halvane\n")
file(WRITE ${OUTPUT} "${source}")
