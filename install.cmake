# `cmake --install build/release --prefix FOLDER`: the program with everything it reads, in one folder of its own. An
# install over an older one brings the program, its stores, pictures and guide up to date and leaves the practice's files.
if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)
  set(CMAKE_INSTALL_PREFIX $ENV{HOME}/orzaline CACHE PATH "Where the program and its data are laid" FORCE)
endif()

install(TARGETS orzaline DESTINATION .)
# Not from the build's own folder, where the program may have been at work, but from the builder: it never lays a store
# of the practice's over one that is there.
install(CODE "set(COSTRUTTORE \"$<TARGET_FILE:costruttore>\")")
install(CODE "set(SORGENTI \"${CMAKE_SOURCE_DIR}\")")
install(
  CODE [[
  set(CARTELLA "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  execute_process(COMMAND "${COSTRUTTORE}" "${SORGENTI}" "${CARTELLA}" COMMAND_ERROR_IS_FATAL ANY)
  set(ORZALINE_CARTELLA "${CMAKE_INSTALL_PREFIX}")
  configure_file("${SORGENTI}/pictures/orzaline.desktop.in" "${CARTELLA}/orzaline.desktop" @ONLY)
]])
install(
  DIRECTORY ${ORZALINE_CARTELLA}/
  DESTINATION .
  FILES_MATCHING
  PATTERN "*.WMF"
  PATTERN "*.doc"
  PATTERN "spunta.gif"
  PATTERN "orzaline.svg"
  PATTERN "esempi" EXCLUDE
  REGEX "/[0-9]+_[^/.]*$" EXCLUDE)
