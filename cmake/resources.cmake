# Pictures are drawn as SVG and shipped as PNG; catalogues are written as .ts and shipped as .qm. Both are made
# here and compiled into a target as one resource tree.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# phone_resources(TARGET NAME PREFIX prefix [PICTURES svg...] [CATALOGUES ts...])
#
# NAME names the tree's init function, qInitResources_NAME. PICTURES become `prefix/PATH.png`, where PATH is the
# file's path below the current folder; CATALOGUES become `prefix/NAME.qm`.
function(phone_resources target name)
    cmake_parse_arguments(ARG "" "PREFIX" "PICTURES;CATALOGUES" ${ARGN})
    set(out ${CMAKE_CURRENT_BINARY_DIR}/${name}_resources)
    set(entries "")
    set(files "")

    foreach(svg IN LISTS ARG_PICTURES)
        string(REGEX REPLACE "\\.svg$" ".png" path ${svg})
        get_filename_component(folder ${out}/${path} DIRECTORY)
        add_custom_command(
            OUTPUT ${out}/${path}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND ${RSVG_CONVERT} --output ${out}/${path} ${CMAKE_CURRENT_SOURCE_DIR}/${svg}
            DEPENDS ${svg}
            COMMENT "" VERBATIM)
        string(APPEND entries "    <file>${path}</file>\n")
        list(APPEND files ${out}/${path})
    endforeach()

    foreach(ts IN LISTS ARG_CATALOGUES)
        get_filename_component(base ${ts} NAME_WE)
        add_custom_command(
            OUTPUT ${out}/${base}.qm
            COMMAND Qt5::lrelease -silent ${CMAKE_CURRENT_SOURCE_DIR}/${ts} -qm ${out}/${base}.qm
            DEPENDS ${ts}
            COMMENT "" VERBATIM)
        string(APPEND entries "    <file>${base}.qm</file>\n")
        list(APPEND files ${out}/${base}.qm)
    endforeach()

    file(CONFIGURE OUTPUT ${out}/${name}.qrc CONTENT
        "<RCC><qresource prefix=\"@ARG_PREFIX@\">\n@entries@</qresource></RCC>\n" @ONLY)
    # The phone's loader reads resource trees of format version 1.
    add_custom_command(
        OUTPUT ${out}/qrc_${name}.cpp
        COMMAND Qt5::rcc --name ${name} --format-version 1 --output ${out}/qrc_${name}.cpp ${out}/${name}.qrc
        DEPENDS ${out}/${name}.qrc ${files}
        COMMENT "Resource tree ${name}" VERBATIM)
    set_source_files_properties(${out}/qrc_${name}.cpp PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${out}/qrc_${name}.cpp)
endfunction()

# Brings the catalogues in line with the sources.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
get_target_property(LUPDATE Qt5::lupdate IMPORTED_LOCATION)
set(catalogues_script ${CMAKE_COMMAND} -E env LUPDATE=${LUPDATE} ${Python3_EXECUTABLE}
    ${CMAKE_SOURCE_DIR}/scripts/catalogues.py)
add_custom_target(catalogues COMMAND ${catalogues_script} update COMMENT "Catalogues" VERBATIM)
