# The catalogues (selfsame_<language>.ts), built into the engine as resources so that both
# programs find them wherever they are installed. Included from the engine's CMakeLists.txt:
# the rules that make the .qm files must live in the directory of the target that embeds them.
file(GLOB SELFSAME_CATALOGUES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/selfsame_*.ts)
# The texts of all three parts; "cmake --build BUILD --target update_translations" brings the
# catalogues up to date with the sources.
file(GLOB_RECURSE SELFSAME_TRANSLATED_SOURCES CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/src/*.cpp ${CMAKE_SOURCE_DIR}/src/*.h)

qt_add_translations(selfsame-engine
    TS_FILES ${SELFSAME_CATALOGUES}
    SOURCES ${SELFSAME_TRANSLATED_SOURCES}
    INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR}/src/engine ${CMAKE_SOURCE_DIR}/src/app ${CMAKE_SOURCE_DIR}/src/cli
    # Line numbers would change the catalogues with every edit of the sources.
    LUPDATE_OPTIONS -no-obsolete -locations none
    RESOURCE_PREFIX /selfsame/translations)
