# Script mode: one case of the studio's tests, run through xvfb-run (a new X server each time,
# 1280 x 1024 x 24).
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(studio)
    execute_process(
        COMMAND ${XVFB_RUN} -a -s "-screen 0 1280x1024x24" ${STUDIO} ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "studio ${ARGN} failed (${result}):\n${out}\n${err}")
    endif()
endfunction()

if(CASE STREQUAL "project_round_trip")
    file(GLOB records ${SAMPLES}/*.ASC)
    list(SORT records)
    set(imports "")
    foreach(record IN LISTS records)
        list(APPEND imports --import ${record})
    endforeach()
    studio(${imports} --select Records/1 --save-as ${WORK_DIR}/first.spj --quit)
    studio(${WORK_DIR}/first.spj --save-as ${WORK_DIR}/second.spj --quit)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/first.spj
        ${WORK_DIR}/second.spj RESULT_VARIABLE different)
    if(different)
        message(FATAL_ERROR "the reopened project was saved with other bytes")
    endif()
    file(SIZE ${WORK_DIR}/first.spj size)
    list(LENGTH records count)
    if(size LESS 1000 OR count LESS 2)
        message(FATAL_ERROR "the project holds too little: ${size} bytes, ${count} records")
    endif()
elseif(CASE STREQUAL "dialog_through_menu")
    studio(--open-dialog addPoint --dialog-report ${WORK_DIR}/dialog.txt
        --dialog-screenshot ${WORK_DIR}/screen.png --quit)
    file(READ ${WORK_DIR}/dialog.txt report)
    foreach(expected "title: Point coordinates" "QLabel: X" "QLabel: Y" "QPushButton: Cancel")
        string(FIND "${report}" "${expected}" at)
        if(at EQUAL -1)
            message(FATAL_ERROR "the dialog does not show '${expected}':\n${report}")
        endif()
    endforeach()
    # The photograph is the whole screen, and not blank: many colours.
    execute_process(COMMAND identify -format "%w %h %k" ${WORK_DIR}/screen.png
        OUTPUT_VARIABLE identity RESULT_VARIABLE failed)
    if(failed)
        message(FATAL_ERROR "no screenshot: ${WORK_DIR}/screen.png")
    endif()
    separate_arguments(identity)
    list(GET identity 0 width)
    list(GET identity 1 height)
    list(GET identity 2 colours)
    if(NOT width EQUAL 1280 OR NOT height EQUAL 1024 OR colours LESS 16)
        message(FATAL_ERROR "the screenshot is ${width} x ${height} with ${colours} colours")
    endif()
elseif(CASE STREQUAL "polygon_through_menu")
    # The polygon dialog opens on the project's polygon (its first vertex in the fields), and
    # its "Special polygons..." button opens the preset shapes.
    studio(--polygon "5,7 9,7 9,8" --open-dialog polygonInput
        --dialog-report ${WORK_DIR}/polygon.txt --quit)
    studio(--open-dialog polygonInput --dialog-click 14614
        --dialog-report ${WORK_DIR}/special.txt --quit)
    file(READ ${WORK_DIR}/polygon.txt polygon)
    file(READ ${WORK_DIR}/special.txt special)
    foreach(expected "title: Closed polygon input" "QGroupBox: New side" "QLineEdit: 5\n"
            "QLineEdit: 7\n" "QPushButton: Special polygons...")
        string(FIND "${polygon}" "${expected}" at)
        if(at EQUAL -1)
            message(FATAL_ERROR "the polygon dialog does not show '${expected}':\n${polygon}")
        endif()
    endforeach()
    string(FIND "${special}" "title: Special polygons input" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "no preset shapes from the polygon dialog:\n${special}")
    endif()
elseif(CASE STREQUAL "structure_in_both_back_ends")
    # The section is filled in the same colour by the GDI view (left half) and the OpenGL view
    # (right half): as many pixels of it in each, within 2 %.
    studio(--structure-screenshot ${WORK_DIR}/structure.png --quit)
    execute_process(COMMAND convert ${WORK_DIR}/structure.png -crop 50%x100% +repage
        -fill black +opaque "#B0D8F0" -fill white -opaque "#B0D8F0"
        -format "%[fx:round(mean*w*h)] " info:
        OUTPUT_VARIABLE counts RESULT_VARIABLE failed)
    separate_arguments(counts)
    list(LENGTH counts halves)
    if(failed OR NOT halves EQUAL 2)
        message(FATAL_ERROR "no picture of the structure window: ${WORK_DIR}/structure.png")
    endif()
    list(GET counts 0 gdi)
    list(GET counts 1 opengl)
    math(EXPR difference "${gdi} - ${opengl}")
    if(difference LESS 0)
        math(EXPR difference "-${difference}")
    endif()
    math(EXPR allowed "${gdi} / 50")
    if(gdi LESS 1000 OR difference GREATER allowed)
        message(FATAL_ERROR "section pixels: GDI ${gdi}, OpenGL ${opengl}")
    endif()
elseif(CASE STREQUAL "without_display")
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
            --unset=QT_QPA_PLATFORM ${STUDIO}
        RESULT_VARIABLE result ERROR_VARIABLE err)
    string(FIND "${err}" "no display to show the studio on" at)
    if(NOT result EQUAL 1 OR at EQUAL -1)
        message(FATAL_ERROR "without a display: status ${result}, message '${err}'")
    endif()
endif()
