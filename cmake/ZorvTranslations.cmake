# The texts of the window in other languages: translations/zorv_LANGUAGE.ts.
#
# The build makes of each the file that the program reads. `cmake --build DIR --target translations`
# brings the .ts files in line with the sources: new texts come in unfinished, old ones go. The
# command line stays English, so its texts are not looked at.

set(ZORV_LANGUAGES de)
set(ZORV_TRANSLATED_FOLDERS src host/family host/operations host/app)

# zorv_add_translations(target)
#
# Puts the translations among the resources of a target, as :/translations/zorv_de.qm.
function(zorv_add_translations target)
    set(sources "")
    set(names "")
    foreach(language IN LISTS ZORV_LANGUAGES)
        list(APPEND sources ${PROJECT_SOURCE_DIR}/translations/zorv_${language}.ts)
        string(APPEND names "    <file>zorv_${language}.qm</file>\n")
    endforeach()
    qt5_add_translation(compiled ${sources})
    set(list ${CMAKE_CURRENT_BINARY_DIR}/translations.qrc)
    file(GENERATE OUTPUT ${list} CONTENT
         "<!DOCTYPE RCC><RCC version=\"1.0\">\n<qresource prefix=\"/translations\">\n${names}</qresource>\n</RCC>\n")
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/qrc_translations.cpp)
    add_custom_command(OUTPUT ${resource}
                       COMMAND Qt5::rcc --name translations --output ${resource} ${list}
                       DEPENDS ${list} ${compiled} VERBATIM)
    set_source_files_properties(${resource} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${resource})
    install(FILES ${compiled} DESTINATION ${CMAKE_INSTALL_DATADIR}/zorv/translations)

    list(TRANSFORM ZORV_TRANSLATED_FOLDERS PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE folders)
    add_custom_target(translations
        COMMAND Qt5::lupdate -locations none -no-obsolete -silent
                -I ${PROJECT_SOURCE_DIR}/src -I ${PROJECT_SOURCE_DIR}/host
                ${folders} -ts ${sources}
        COMMENT "Bringing translations in line with the sources" VERBATIM)
endfunction()
