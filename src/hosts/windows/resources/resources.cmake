# What lies in the executable beside its code: the drawings as PNG, the icon, the manifest and the version. The drawings
# are those of the desktop program; how many pixels high each is made leaves enough for screens of high resolution.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)

set(drawings "${CMAKE_SOURCE_DIR}/src/hosts/desktop/artwork")
set(made "${CMAKE_CURRENT_BINARY_DIR}/artwork")
file(MAKE_DIRECTORY "${made}")

# veldoria_png(RESULT DRAWING HEIGHT): the PNG of a drawing, of that many pixels.
function(veldoria_png result drawing height)
  set(png "${made}/${drawing}-${height}.png")
  add_custom_command(OUTPUT "${png}"
    COMMAND "${RSVG_CONVERT}" --height ${height} --keep-aspect-ratio --output "${png}" "${drawings}/${drawing}.svg"
    DEPENDS "${drawings}/${drawing}.svg" VERBATIM)
  set(${result} "${png}" PARENT_SCOPE)
endfunction()

set(pictures arrastrar ayuda desplazamiento etiquetado exportar imprimir informacion leyenda mapa-completo medir selector
  ver-tabla zoom-mas zoom-menos)
set(files "")
set(script "")
foreach(picture IN LISTS pictures ITEMS escudo encabezado portada)
  set(height 96)
  if(picture STREQUAL "portada")
    set(height 960)
  elseif(picture STREQUAL "escudo")
    set(height 160)
  endif()
  veldoria_png(file ${picture} ${height})
  list(APPEND files "${file}")
  string(TOUPPER "${picture}" name)
  string(REPLACE "-" "_" name "${name}")
  string(APPEND script "${name} RCDATA \"${file}\"\n")
endforeach()
file(GENERATE OUTPUT "${made}/artwork.rc" CONTENT "${script}")

set(icons "")
foreach(height IN ITEMS 16 20 24 32 40 48 64)
  veldoria_png(file escudo ${height})
  list(APPEND icons "${file}")
endforeach()
veldoria_png(large escudo 256)
add_custom_command(OUTPUT "${made}/veldoria.ico"
  COMMAND "${ICOTOOL}" --create --output "${made}/veldoria.ico" ${icons} --raw "${large}"
  DEPENDS ${icons} "${large}" VERBATIM)

# An object that every program of this host is linked with.
add_library(veldoria_windows_resources OBJECT resources/veldoria.rc)
target_include_directories(veldoria_windows_resources PRIVATE "${made}" resources)
set_source_files_properties(resources/veldoria.rc PROPERTIES OBJECT_DEPENDS
  "${files};${made}/veldoria.ico;${CMAKE_CURRENT_SOURCE_DIR}/resources/veldoria.manifest;${CMAKE_CURRENT_SOURCE_DIR}/resources/resource_ids.h")
target_sources(veldoria_windows INTERFACE $<TARGET_OBJECTS:veldoria_windows_resources>)
add_dependencies(veldoria_windows veldoria_windows_resources)
