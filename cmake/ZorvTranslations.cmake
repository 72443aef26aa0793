# The texts of the program in other languages: translations/zorv_LANGUAGE.ts.
#
# The build makes of each the file that the program reads. `cmake --build DIR --target translations`
# brings the .ts files in line with the sources: new texts come in unfinished, old ones go.
#
# The texts in the sources are English, but for two things. zorv_en.ts has those with a number, in
# one and in many. zorv_en_words.ts is kept by hand: what the library says in words of its own, as
# the program says it. The command line stays English, so its own texts are not looked at.

set(ZORV_LANGUAGES de)
set(ZORV_TRANSLATED_FOLDERS src host/family host/operations host/app player)

# zorv_add_translations(target NAME file...)
#
# Puts files of translations among the resources NAME of a target: zorv_de becomes :/NAME/zorv_de.qm.
function(zorv_add_translations target name)
    set(sources "")
    set(entries "")
    foreach(file IN LISTS ARGN)
        list(APPEND sources ${PROJECT_SOURCE_DIR}/translations/${file}.ts)
        string(APPEND entries "    <file>${file}.qm</file>\n")
    endforeach()
    qt5_add_translation(compiled ${sources})
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
    file(GENERATE OUTPUT ${list} CONTENT
         "<!DOCTYPE RCC><RCC version=\"1.0\">\n<qresource prefix=\"/${name}\">\n${entries}</qresource>\n</RCC>\n")
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp)
    add_custom_command(OUTPUT ${resource}
                       COMMAND Qt5::rcc --name ${name} --output ${resource} ${list}
                       DEPENDS ${list} ${compiled} VERBATIM)
    set_source_files_properties(${resource} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${resource})
    install(FILES ${compiled} DESTINATION ${CMAKE_INSTALL_DATADIR}/zorv/translations)
endfunction()

list(TRANSFORM ZORV_LANGUAGES PREPEND zorv_ OUTPUT_VARIABLE ZORV_LANGUAGE_FILES)

list(TRANSFORM ZORV_LANGUAGE_FILES PREPEND ${PROJECT_SOURCE_DIR}/translations/
     OUTPUT_VARIABLE translated_files)
list(TRANSFORM translated_files APPEND .ts)
list(TRANSFORM ZORV_TRANSLATED_FOLDERS PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE translated)
set(lupdate Qt5::lupdate -locations none -no-obsolete -silent
            -I ${PROJECT_SOURCE_DIR}/src -I ${PROJECT_SOURCE_DIR}/host
            -I ${PROJECT_SOURCE_DIR}/player)
add_custom_target(translations
    COMMAND ${lupdate} ${translated} -ts ${translated_files}
    COMMAND ${lupdate} -pluralonly ${translated} -ts ${PROJECT_SOURCE_DIR}/translations/zorv_en.ts
    COMMENT "Bringing translations in line with the sources" VERBATIM)
