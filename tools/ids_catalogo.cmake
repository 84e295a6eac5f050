# Writes the catalogue's ids by name from the table of src/catalogo/CatalogoFilas.cpp, whose
# rows begin `/* n */ {kIdNombre,` in the order of their ids:
#   cmake -DTABLA=CatalogoFilas.cpp -DIDS=IdsCatalogo.h -DNOMBRES=NombresIdsCatalogo.h -P ids_catalogo.cmake
# IDS gets `inline constexpr int kIdNombre = n;` for every row; NOMBRES the list of names and
# ids, for the checks that read them at run time. A row without a name, a name that is no
# kId identifier or that repeats, or a row out of order stops the build with the row's number.
# A file whose text would not change is left as it is, so that nothing recompiles for nothing.
cmake_minimum_required(VERSION 3.22)

foreach(v TABLA IDS NOMBRES)
  if(NOT DEFINED ${v})
    message(FATAL_ERROR "ids_catalogo.cmake: falta -D${v}=...")
  endif()
endforeach()

# Only the first line of each row: its number and, when there is one, its name.
file(STRINGS "${TABLA}" filas REGEX "^[ \t]*/\\*[ \t]*[0-9]+[ \t]*\\*/")
set(esperado 1)
set(vistos)
set(constantes)
set(lista)
foreach(fila IN LISTS filas)
  if(NOT fila MATCHES "^[ \t]*/\\*[ \t]*([0-9]+)[ \t]*\\*/[ \t]*{[ \t]*([A-Za-z0-9_]*)")
    continue()
  endif()
  set(id ${CMAKE_MATCH_1})
  set(nombre "${CMAKE_MATCH_2}")
  if(NOT id EQUAL esperado)
    message(FATAL_ERROR "${TABLA}: la fila ${id} está donde debería estar la ${esperado}")
  endif()
  if(nombre STREQUAL "")
    message(FATAL_ERROR "${TABLA}: la fila ${id} no tiene nombre (kId...)")
  endif()
  if(NOT nombre MATCHES "^kId[A-Z][A-Za-z0-9]*$")
    message(FATAL_ERROR "${TABLA}: el nombre ${nombre} de la fila ${id} no es kId seguido de palabras")
  endif()
  if(nombre IN_LIST vistos)
    message(FATAL_ERROR "${TABLA}: el nombre ${nombre} de la fila ${id} ya nombra otra fila")
  endif()
  list(APPEND vistos ${nombre})
  string(APPEND constantes "inline constexpr int ${nombre} = ${id};\n")
  string(APPEND lista "    {\"${nombre}\", ${nombre}},\n")
  math(EXPR esperado "${esperado} + 1")
endforeach()
if(esperado EQUAL 1)
  message(FATAL_ERROR "${TABLA}: no hay filas")
endif()

set(aviso "// Written at build time by tools/ids_catalogo.cmake from src/catalogo/CatalogoFilas.cpp:\n// edit the table, not this file.\n")
set(texto_ids "#pragma once\n${aviso}// The catalogue's base ids by name, for Texto(kIdNombre) and every other use of an id.\n${constantes}")
set(texto_nombres "#pragma once\n${aviso}// Every name of catalogo/IdsCatalogo.h with its constant, in the order of the table.\n#include \"catalogo/IdsCatalogo.h\"\n\nnamespace Catalogo {\nstruct NombreId {\n    const char* nombre;\n    int id;\n};\ninline constexpr NombreId kNombresIds[] = {\n${lista}};\n}\n")

function(escribir_si_cambia fichero texto)
  if(EXISTS "${fichero}")
    file(READ "${fichero}" actual)
    if(actual STREQUAL texto)
      return()
    endif()
  endif()
  file(WRITE "${fichero}" "${texto}")
endfunction()
escribir_si_cambia("${IDS}" "${texto_ids}")
escribir_si_cambia("${NOMBRES}" "${texto_nombres}")
