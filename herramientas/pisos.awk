# Whether every include of src points down: to the file's own folder, or to one that its CMake file
# names under USA, which itself stands on a lower floor, or on the same floor under the same roof.
# Reads the CMake files of src first and its sources after them; prints what points elsewhere.
BEGIN {
  n = split("base core calculo persistencia listados sesion shell programas", nombres, " ")
  split("1 2 3 3 4 5 6 7", pisos, " ")
  for (i = 1; i <= n; ++i) piso[nombres[i]] = pisos[i]
}

function carpeta(ruta) { sub(/^src\//, "", ruta); sub(/\/?[^\/]*$/, "", ruta); return ruta }
function techo(c) { sub(/\/.*/, "", c); return c }
function queja(texto) { printf "%s:%d: %s\n", FILENAME, FNR, texto; ++faltas }

function mira_uso(a, b) {
  if (!(techo(b) in piso)) queja("no floor is called \"" techo(b) "\"")
  else if (piso[techo(b)] > piso[techo(a)]) queja(a " uses " b ", which lies above it")
  else if (piso[techo(b)] == piso[techo(a)] && techo(b) != techo(a))
    queja(a " uses " b ", which stands beside it")
  else usa[a, b] = 1
}

FNR == 1 { en_usa = 0; aqui = carpeta(FILENAME) }

FILENAME ~ /CMakeLists\.txt$/ {
  linea = $0
  while (match(linea, /[A-Za-z_:\/.0-9-]+/)) {
    palabra = substr(linea, RSTART, RLENGTH)
    linea = substr(linea, RSTART + RLENGTH)
    if (palabra == "USA") en_usa = 1
    else if (palabra == "CON" || palabra == "FUENTES") en_usa = 0
    else if (en_usa) mira_uso(aqui, palabra)
  }
  if ($0 ~ /\)/) en_usa = 0
  next
}

/^#include "/ {
  split($0, partes, "\"")
  otra = carpeta(partes[2])
  ++vistos
  if (otra == aqui) next
  if (!(techo(otra) in piso)) queja("\"" partes[2] "\" is not written from src")
  else if (techo(aqui) == "programas") {
    if (otra ~ /^programas\// ) queja(aqui " looks into another program")
  } else if (!((aqui, otra) in usa)) queja(aqui " includes " otra ", which its CMake file does not use")
}

END {
  if (vistos == 0) { print "no includes were read"; exit 1 }
  printf "%d includes, %d against the floors\n", vistos, faltas
  exit faltas > 0
}
