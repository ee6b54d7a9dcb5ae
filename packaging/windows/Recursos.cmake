# What Windows shows of the program in its folders and asks it at its start: icon, version and manifest.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
set(folder "${CMAKE_CURRENT_BINARY_DIR}/windows")
set(NUMORA_ICON "${folder}/numora.ico")
set(NUMORA_MANIFEST "${CMAKE_CURRENT_LIST_DIR}/numora.manifest")
set(svg "${CMAKE_SOURCE_DIR}/resources/imagenes/NUMORA.svg")
file(MAKE_DIRECTORY "${folder}")
set(sizes 16 24 32 48 64 256)
set(drawing)
set(pictures)
foreach(size ${sizes})
    list(APPEND drawing COMMAND "${RSVG_CONVERT}" -w ${size} -h ${size} "${svg}" -o "${folder}/${size}.png")
    list(APPEND pictures "${folder}/${size}.png")
endforeach()
add_custom_command(OUTPUT "${NUMORA_ICON}" ${drawing}
    COMMAND "${ICOTOOL}" -c -o "${NUMORA_ICON}" ${pictures}
    DEPENDS "${svg}" VERBATIM)
add_custom_target(numora_icon DEPENDS "${NUMORA_ICON}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/numora.rc.in" "${folder}/numora.rc" @ONLY)
set_property(SOURCE "${folder}/numora.rc" TARGET_DIRECTORY numora PROPERTY
    OBJECT_DEPENDS "${NUMORA_ICON};${NUMORA_MANIFEST}")
target_sources(numora PRIVATE "${folder}/numora.rc")
add_dependencies(numora numora_icon)
# No black window behind the program's.
set_target_properties(numora PROPERTIES WIN32_EXECUTABLE ON)
