#!/usr/bin/env bash
# Whether programs are built as Debian builds its own: what overruns a buffer, or jumps to where
# nothing begins, ends them.
#
#   endurecido.sh PROGRAM...
set -euo pipefail
export LC_ALL=C

mal=0
exige() { # program, what is wanted, text, pattern
  # shellcheck disable=SC2053
  [[ $3 == $4 ]] || { echo "$1: falta $2" >&2; mal=1; }
}
for p in "$@"; do
  segmentos=$(readelf -lW "$p")
  simbolos=$(readelf --dyn-syms -W "$p")
  exige "$p" "PIE" "$(readelf -hW "$p")" '*Type:*DYN (Position-Independent Executable*'
  exige "$p" "-z relro" "$segmentos" '*GNU_RELRO*'
  exige "$p" "una pila que no se ejecute" "$segmentos" '*GNU_STACK*[[:space:]]RW[[:space:]]*'
  exige "$p" "-z now" "$(readelf -dW "$p")" '*BIND_NOW*'
  exige "$p" "-fstack-protector-strong" "$simbolos" '*__stack_chk_fail@*'
  exige "$p" "_FORTIFY_SOURCE" "$simbolos" '*__[a-z]*_chk@*'
  case $(uname -m) in
    x86_64)
      codigo=$(objdump -d --no-show-raw-insn "$p")
      exige "$p" "-fstack-clash-protection" "$codigo" '*orq*$0x0,[(]%rsp[)]*'
      # The mark of the whole program needs that of the system's own start files.
      exige "$p" "-fcf-protection" "$codigo" '*endbr64*endbr64*endbr64*'
      ;;
  esac
done
exit $mal
