# The user's manual: docs/manual.md and the pictures beside it become rich text for the data directory and HTML for the
# desktop's own window. Both depend on nothing but these files, so a build gives the same bytes as the one before it.
find_program(PANDOC_PROGRAM pandoc)
mark_as_advanced(PANDOC_PROGRAM)

set(manualText "${PROJECT_SOURCE_DIR}/docs/manual.md")
file(GLOB manualPictures RELATIVE "${PROJECT_SOURCE_DIR}/docs" CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/docs/screens/*.png")
list(TRANSFORM manualPictures PREPEND "${PROJECT_SOURCE_DIR}/docs/" OUTPUT_VARIABLE manualPicturePaths)
set(manualRtf "${CMAKE_CURRENT_BINARY_DIR}/manual/VERAGUIDE.doc")
set(manualHtml "${CMAKE_CURRENT_BINARY_DIR}/manual/manual.html")

# "-smart": straight quotes, which every font and every code page has.
set(pandoc "${PANDOC_PROGRAM}" --fail-if-warnings --from markdown-smart --standalone
    "--resource-path=${PROJECT_SOURCE_DIR}/docs" "--metadata=title:Veraqua User's Manual")
set(manualPages "${CMAKE_CURRENT_SOURCE_DIR}/manual")
if(PANDOC_PROGRAM)
    add_custom_command(OUTPUT "${manualRtf}"
        COMMAND ${pandoc} --to rtf "--template=${manualPages}/page.rtf" "--lua-filter=${manualPages}/rtf.lua"
            --output "${manualRtf}" "${manualText}"
        DEPENDS "${manualText}" "${manualPages}/page.rtf" "${manualPages}/rtf.lua" ${manualPicturePaths}
        COMMENT "Making the user's manual as rich text" VERBATIM)
    add_custom_command(OUTPUT "${manualHtml}"
        COMMAND ${pandoc} --to html4 "--template=${manualPages}/page.html" --output "${manualHtml}" "${manualText}"
        DEPENDS "${manualText}" "${manualPages}/page.html"
        COMMENT "Making the user's manual as HTML" VERBATIM)
else()
    message(WARNING "pandoc is missing (tools/install brings it): the manual goes into the programs as plain text.")
    file(READ "${manualText}" plain)
    file(CONFIGURE OUTPUT "${manualRtf}" CONTENT "@plain@" @ONLY)
    file(CONFIGURE OUTPUT "${manualHtml}" CONTENT "<pre>@plain@</pre>" @ONLY)
endif()
add_custom_target(veraqua_manual DEPENDS "${manualRtf}" "${manualHtml}")

# The collection of the Qt resource /manual; the desktop's CMakeLists.txt has it made. Its dependencies beside it.
set(manualFiles "        <file alias=\"manual.html\">${manualHtml}</file>\n")
foreach(picture IN LISTS manualPictures)
    string(APPEND manualFiles "        <file alias=\"${picture}\">${PROJECT_SOURCE_DIR}/docs/${picture}</file>\n")
endforeach()
file(CONFIGURE OUTPUT manual/manual.qrc @ONLY CONTENT
"<!DOCTYPE RCC>
<RCC version=\"1.0\">
    <qresource prefix=\"/manual\">
@manualFiles@    </qresource>
</RCC>
")
set_property(GLOBAL PROPERTY VERAQUA_MANUAL_QRC "${CMAKE_CURRENT_BINARY_DIR}/manual/manual.qrc")
set_property(GLOBAL PROPERTY VERAQUA_MANUAL_FILES "${manualHtml}" ${manualPicturePaths})
