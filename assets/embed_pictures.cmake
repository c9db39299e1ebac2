# Run by the build with -DPICTURES, -DFOLDER and -DOUTPUT: one string literal a picture.
set(source "#include \"reporter/pictures.h\"\n\nnamespace halvane {\n\n")
string(APPEND source "std::string_view PictureSvg(std::string_view assetName) {\n")
foreach(picture IN LISTS PICTURES)
  file(READ ${FOLDER}/${picture}.svg svg)
  string(APPEND source "  if (assetName == \"${picture}\") {\n    return R\"svg(${svg})svg\";\n  }\n")
endforeach()
string(APPEND source "  return {};\n}\n\n}  // namespace halvane\n")
file(WRITE ${OUTPUT} "${source}")
