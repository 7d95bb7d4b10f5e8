#!/usr/bin/env bash
# Installs the package on a clean Debian, uses it as a person would, and removes it again.
#
#   prueba-paquete.sh PACKAGE.deb FOLDER
#
# FOLDER keeps the base system and the packages fetched, for the next time. Needs root and Debian's
# packages; ESPEJO=URL takes them from another mirror. Everything runs in namespaces of its own, so
# that no mount and no process outlives it, however it ends.
set -Eeuo pipefail
trap 'echo "FALLA: línea $LINENO" >&2' ERR

paquete=$(realpath "$1")
mkdir -p "$2"
taller=$(realpath "$2")
aqui=$(realpath "$(dirname "$0")")
if [ "$(id -u)" -ne 0 ]; then exec sudo ESPEJO="${ESPEJO:-}" "$0" "$@"; fi
if [ "${ZORBIN_APARTE:-}" != si ]; then
  exec env ZORBIN_APARTE=si unshare --mount --pid --fork --kill-child --mount-proc "$0" "$@"
fi

espejo=${ESPEJO:-http://deb.debian.org/debian}
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
base=$taller/base-$suite.tar
muestra=/usr/share/zorbin/muestras/acequia.zrb
persona=ingeniera

raiz=
xvfb=
limpia() {
  if [ -n "$xvfb" ]; then
    kill "$xvfb" 2>/dev/null || true
    wait "$xvfb" 2>/dev/null || true
  fi
  [ -n "$raiz" ] || return 0
  umount --recursive "$raiz" 2>/dev/null || umount --recursive --lazy "$raiz"
  rm -rf --one-file-system "$raiz"
}
trap limpia EXIT
trap 'exit 130' INT TERM HUP

falla() {
  echo "FALLA: $*" >&2
  exit 1
}
bien() { echo "  bien: $*"; }
# Whether the whole output of a command has a text; a pipe to grep -q would cut the command off.
dice() { # text command...
  local texto=$1 salida
  shift
  salida=$("$@") && [[ $salida == *"$texto"* ]]
}

dentro() { LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$raiz" "$@"; }
# As a person without rights, in their home; the process is the program itself.
como_persona() {
  exec env -i PATH=/usr/sbin:/usr/bin HOME=/home/$persona LC_ALL=C.UTF-8 DISPLAY="${DISPLAY:-}" \
    XDG_RUNTIME_DIR=/run/user/$persona \
    chroot --userspec=$persona:$persona "$raiz" "$@"
}
con_persona() { (como_persona "$@"); }

comprueba_fichero() {
  echo "El paquete, sin instalar"
  lintian --allow-root --fail-on error,warning --tag-display-limit 0 "$paquete" || falla "lintian"
  bien "lintian"
  rm -rf "$taller/abierto"
  dpkg-deb -x "$paquete" "$taller/abierto"
  "$aqui/endurecido.sh" "$taller"/abierto/usr/bin/zorbin{,-calc} || falla "las protecciones"
  rm -rf "$taller/abierto"
  bien "sus programas llevan las protecciones de Debian"
}

prepara_raiz() {
  if [ ! -s "$base" ]; then
    echo "Un Debian $suite limpio (solo la primera vez)"
    rm -rf --one-file-system "$taller/base"
    debootstrap --variant=minbase "$suite" "$taller/base" "$espejo" >"$taller/debootstrap.log" ||
      { tail -5 "$taller/debootstrap.log" >&2; falla "debootstrap"; }
    rm -f "$taller"/base/var/cache/apt/archives/*.deb
    tar -C "$taller/base" -cf "$base.parte" .
    mv "$base.parte" "$base"
    rm -rf --one-file-system "$taller/base"
  fi
  rm -rf --one-file-system "$taller"/raiz.*
  raiz=$(mktemp -d "$taller/raiz.XXXXXX")
  chmod 755 "$raiz"
  mount --bind "$raiz" "$raiz" # so that everything mounted in it goes with it
  tar -C "$raiz" -xf "$base"
  mkdir -p "$taller/archivos/partial" "$raiz/tmp/.X11-unix"
  mount -t proc proc "$raiz/proc"
  mount --bind "$taller/archivos" "$raiz/var/cache/apt/archives"
  cp /etc/resolv.conf "$raiz/etc/resolv.conf"
  printf '#!/bin/sh\nexit 101\n' >"$raiz/usr/sbin/policy-rc.d"
  chmod 755 "$raiz/usr/sbin/policy-rc.d"
  dentro apt-get update -qq
  dentro useradd --create-home $persona
  dentro install -d -o $persona -g $persona -m 700 /run/user /run/user/$persona
}

instala() { # package...
  dentro apt-get install -y -qq --no-install-recommends -o Dpkg::Use-Pty=0 "$@" \
    >"$taller/apt.log" 2>&1 || { tail -20 "$taller/apt.log" >&2; falla "apt-get install $*"; }
}

comprueba_instalacion() {
  echo "La instalación"
  cp "$paquete" "$raiz/tmp/zorbin.deb"
  instala /tmp/zorbin.deb
  rm "$raiz/tmp/zorbin.deb"
  dentro dpkg --verify zorbin
  bien "$(dentro dpkg-query -W -f='${Package} ${Version}, ${Installed-Size} KiB' zorbin)"
}

comprueba_linea() {
  echo "zorbin-calc"
  con_persona zorbin-calc calcula $muestra --separador coma >"$taller/resumen.txt" ||
    falla "zorbin-calc calcula"
  cmp "$taller/resumen.txt" "$aqui/../datos/acequia-resumen.txt" || falla "el resumen es otro"
  bien "el resumen de la muestra"
  con_persona zorbin-calc calcula $muestra --listado normal \
    --pdf /home/$persona/acequia.pdf >"$taller/listado.log" 2>&1 ||
    falla "el listado en PDF"
  local pdf=$raiz/home/$persona/acequia.pdf
  dice LiberationMono pdffonts "$pdf" || falla "el PDF no lleva su letra"
  dice image pdfimages -l 3 -list "$pdf" || falla "el PDF no lleva figuras"
  bien "su listado en PDF, con letra y figuras"
}

comprueba_ventana() {
  echo "zorbin"
  local codigo=0
  DISPLAY='' con_persona zorbin >"$taller/zorbin.log" 2>&1 || codigo=$?
  [ $codigo -eq 1 ] && dice "necesita una pantalla" cat "$taller/zorbin.log" ||
    falla "sin pantalla: código $codigo, $(cat "$taller/zorbin.log")"
  bien "sin pantalla lo dice en una frase"
  # The language, as an administrator would set it: no question at the first start.
  mkdir -p "$raiz/etc/xdg/ZORBIN"
  printf '[General]\nIdioma=1\n' >"$raiz/etc/xdg/ZORBIN/ZORBIN.ini"
  mkdir -p /tmp/.X11-unix
  rm -f "$taller/pantalla"
  mkfifo "$taller/pantalla"
  exec 7<>"$taller/pantalla"
  rm "$taller/pantalla"
  Xvfb -displayfd 7 -screen 0 1366x768x24 -nolisten tcp -ac 2>"$taller/xvfb.log" &
  xvfb=$!
  local numero
  read -r -t 20 numero <&7 || falla "Xvfb no empieza: $(cat "$taller/xvfb.log")"
  export DISPLAY=:$numero
  mount --bind /tmp/.X11-unix "$raiz/tmp/.X11-unix"
  como_persona zorbin $muestra 2>"$taller/zorbin.log" &
  local programa=$!
  local ventana=
  for _ in $(seq 100); do
    kill -0 $programa 2>/dev/null || falla "zorbin acabó: $(cat "$taller/zorbin.log")"
    ventana=$(xwininfo -root -tree | sed -n 's/ *\(0x[0-9a-f]*\) "acequia\.zrb.*ZORBIN".*/\1/p')
    [ -n "$ventana" ] && break
    sleep 0.2
  done
  [ -n "$ventana" ] || falla "ninguna ventana tiene la muestra: $(xwininfo -root -tree)"
  bien "una ventana con la muestra"
  sleep 4 # longer than the warning box of the start takes to come up
  kill -0 $programa 2>/dev/null || falla "zorbin no se sostiene: $(cat "$taller/zorbin.log")"
  bien "que sigue abierta"
  local clase
  clase=$(sed -n 's/^StartupWMClass=//p' "$raiz/usr/share/applications/zorbin.desktop")
  dice "\"$clase\"" xprop -id "$ventana" WM_CLASS || falla "WM_CLASS no es $clase"
  dice "=" xprop -id "$ventana" 32c _NET_WM_ICON || falla "la ventana no tiene icono"
  bien "con su icono y su clase"
  [ ! -s "$taller/zorbin.log" ] || { cat "$taller/zorbin.log" >&2; falla "zorbin se queja"; }
  kill -TERM $programa
  for _ in $(seq 50); do
    kill -0 $programa 2>/dev/null || break
    sleep 0.1
  done
  kill -0 $programa 2>/dev/null && falla "zorbin no acaba con SIGTERM"
  wait $programa || true
  bien "y acaba con SIGTERM"
  umount "$raiz/tmp/.X11-unix"
}

tipo() { con_persona gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'; }

comprueba_escritorio() {
  echo "El escritorio"
  instala desktop-file-utils shared-mime-info libglib2.0-bin appstream
  dentro desktop-file-validate /usr/share/applications/zorbin.desktop || falla "zorbin.desktop"
  dentro appstreamcli validate --no-net /usr/share/metainfo/org.zorbin.zorbin.metainfo.xml \
    >"$taller/appstream.log" || { cat "$taller/appstream.log" >&2; falla "los metadatos"; }
  bien "la entrada del menú y los metadatos"
  con_persona cp $muestra /home/$persona/sin-apellido
  [ "$(tipo $muestra)" = application/x-zorbin-obra ] || falla "el tipo de .zrb es $(tipo $muestra)"
  [ "$(tipo /home/$persona/sin-apellido)" = application/x-zorbin-obra ] || falla "la firma de .zrb"
  bien "el tipo de una Obra, por su nombre y por lo que lleva dentro"
  dice ': zorbin.desktop' con_persona gio mime application/x-zorbin-obra ||
    falla "una Obra no se abre con zorbin"
  bien "una Obra se abre con zorbin"
}

comprueba_retirada() {
  echo "La retirada"
  dentro apt-get purge -y -qq -o Dpkg::Use-Pty=0 zorbin >"$taller/apt.log" 2>&1 ||
    { tail -20 "$taller/apt.log" >&2; falla "apt-get purge"; }
  local restos
  restos=$(dentro find / \( -path /proc -o -path /sys -o -path /tmp -o -path /home \
    -o -path /var/cache/apt/archives \) -prune -o -iname '*zorbin*' -print)
  [ -z "$restos" ] || falla "queda: $restos"
  restos=$(grep -rl zorbin "$raiz/usr/share/mime" "$raiz/usr/share/applications" || true)
  [ -z "$restos" ] || falla "queda en: $restos"
  bien "no queda nada"
}

exec 9>"$taller/cerrojo"
flock --nonblock 9 || falla "otra prueba trabaja en $taller"
comprueba_fichero
prepara_raiz
comprueba_instalacion
comprueba_linea
comprueba_ventana
comprueba_escritorio
comprueba_retirada
echo "El paquete se instala, funciona y se retira."
