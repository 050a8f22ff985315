# Installs into an empty folder, lets the practice write there, installs again: everything is laid, nothing is lost.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${CARTELLA})

function(installa)
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${COSTRUITO} --prefix ${CARTELLA} OUTPUT_QUIET
                  COMMAND_ERROR_IS_FATAL ANY)
endfunction()

installa()
foreach(file orzaline 0_1.chk studio.jed fc.jed matrix.jed sa_diario.jed Durnin.jed spunta.gif Judo.WMF Norme.doc
             help/00_Guida_Premessa.doc esempi/1300_bianchi.orzaline orzaline.desktop orzaline.svg)
  if(NOT EXISTS ${CARTELLA}/${file})
    message(FATAL_ERROR "${file} was not laid")
  endif()
endforeach()
file(STRINGS ${CARTELLA}/orzaline.desktop avvio REGEX "^Exec=.*${CARTELLA}/orzaline")
if(NOT avvio)
  message(FATAL_ERROR "the menu entry does not name the folder")
endif()

file(WRITE ${CARTELLA}/rubrica.jed "of the practice")
file(WRITE ${CARTELLA}/12_ROSSI/12_ROSSI.orzaline "a client")
file(WRITE ${CARTELLA}/matrix.jed "worn")
installa()
file(READ ${CARTELLA}/rubrica.jed rubrica)
file(READ ${CARTELLA}/12_ROSSI/12_ROSSI.orzaline cliente)
file(SIZE ${CARTELLA}/matrix.jed matrice)
if(NOT rubrica STREQUAL "of the practice" OR NOT cliente STREQUAL "a client" OR matrice LESS 1000)
  message(FATAL_ERROR "the second install did not keep the practice's files or did not renew the program's")
endif()
