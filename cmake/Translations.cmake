# The translations of the library's own texts, with the name of the maker's site where a text has it.
# Hosts find them in WRENVALE_TRANSLATIONS_DIR, here as after find_package().
set(WRENVALE_TRANSLATIONS_DIR "${PROJECT_BINARY_DIR}/translations")
foreach(language "" _ar _de _fr _ja)
  configure_file("resources/translations/wrenvale${language}.ts"
    "${WRENVALE_TRANSLATIONS_DIR}/wrenvale${language}.ts" @ONLY)
endforeach()
