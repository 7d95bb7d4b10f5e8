#define _GNU_SOURCE
#include "fallos.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

static char carpeta[PATH_MAX];
static int armado;
static int objetivo;
static enum fallos_tipo tipo_pedido;
static int para_siempre;
static int cuenta;
static int puestos;
static int en_consultas;
static int por_clase[SUCESO_CLASES];
static int disco_lleno;
static fallos_oyente oyente;
static void* de_quien;

#define VERDADERA(nombre) \
  __typeof__(&nombre) verdadera = (__typeof__(&nombre))dlsym(RTLD_NEXT, #nombre)

void fallos_arma(const char* ruta, int n, enum fallos_tipo tipo, int siempre) {
  snprintf(carpeta, sizeof carpeta, "%s", ruta);
  objetivo = n;
  tipo_pedido = tipo;
  para_siempre = siempre;
  cuenta = 0;
  puestos = 0;
  memset(por_clase, 0, sizeof por_clase);
  disco_lleno = 0;
  armado = 1;
}

void fallos_desarma(void) {
  armado = 0;
  en_consultas = 0;
}

int fallos_cuenta(int clase) {
  return clase < 0 ? cuenta : por_clase[clase];
}

int fallos_puestos(void) {
  return puestos;
}

void fallos_en_consultas(int si) {
  en_consultas = si;
}

void fallos_escucha(fallos_oyente nuevo, void* quien) {
  oyente = nuevo;
  de_quien = quien;
}

__attribute__((constructor)) static void del_entorno(void) {
  static const struct {
    const char* nombre;
    enum fallos_tipo tipo;
  } tipos[] = {{"eio", FALLO_EIO},
               {"enospc", FALLO_ENOSPC},
               {"erofs", FALLO_EROFS},
               {"eintr", FALLO_EINTR},
               {"corto", FALLO_CORTO},
               {"muere", FALLO_MUERE},
               {"hace_y_muere", FALLO_HACE_Y_MUERE}};
  const char* donde = getenv("FALLOS_CARPETA");
  const char* n = getenv("FALLOS_N");
  const char* cual = getenv("FALLOS_TIPO");
  if (!donde || !n || !cual) return;
  fallos_en_consultas(getenv("FALLOS_CONSULTAS") != NULL);
  for (size_t i = 0; i < sizeof tipos / sizeof *tipos; ++i) {
    if (strcmp(cual, tipos[i].nombre) == 0) fallos_arma(donde, atoi(n), tipos[i].tipo, 0);
  }
}

/* ---- What the system says, uncounted */

static int mira(int d, struct stat* datos) {
  VERDADERA(fstat);
  return verdadera(d, datos);
}

static int existe(const char* ruta) {
  VERDADERA(lstat);
  struct stat datos;
  return verdadera(ruta, &datos) == 0;
}

/* ---- What is counted */

static int en_carpeta(const char* ruta) {
  const size_t largo = strlen(carpeta);
  return armado && strncmp(ruta, carpeta, largo) == 0 &&
         (ruta[largo] == '/' || ruta[largo] == '\0' || ruta[largo] == ' ');
}

static int descriptor_en_carpeta(int d) {
  char enlace[64], ruta[PATH_MAX];
  if (!armado) return 0;
  snprintf(enlace, sizeof enlace, "/proc/self/fd/%d", d);
  const ssize_t n = readlink(enlace, ruta, sizeof ruta - 1);
  if (n < 0) return 0;
  ruta[n] = '\0';
  return en_carpeta(ruta);
}

static void muere(void) {
  kill(getpid(), SIGKILL);
  pause();
}

static int errno_de(enum fallos_tipo tipo) {
  switch (tipo) {
    case FALLO_EIO:
      return EIO;
    case FALLO_ENOSPC:
      return ENOSPC;
    case FALLO_EROFS:
      return EROFS;
    case FALLO_EINTR:
      return EINTR;
    default:
      return 0;
  }
}

static int puede_sufrirlo(enum fallos_clase clase) {
  if ((clase >= SUCESO_CONSULTA) != en_consultas) return 0;
  if (clase == SUCESO_CONSULTA) return tipo_pedido != FALLO_EINTR && tipo_pedido != FALLO_CORTO;
  return clase != SUCESO_CERROJO || tipo_pedido != FALLO_CORTO;
}

/* Counts a call. What it is to suffer; one that fails has errno set. */
static enum fallos_tipo toca(enum fallos_clase clase) {
  ++por_clase[clase];
  if (!puede_sufrirlo(clase)) return FALLO_NINGUNO;
  ++cuenta;
  if (cuenta != objetivo && !(para_siempre && cuenta > objetivo)) return FALLO_NINGUNO;
  ++puestos;
  if (tipo_pedido == FALLO_MUERE) muere();
  if (errno_de(tipo_pedido)) errno = errno_de(tipo_pedido);
  return tipo_pedido;
}

/* A full disk still takes what lies over something. */
static int no_cabe(int d, size_t n, off_t desde) {
  struct stat datos;
  if (!disco_lleno || mira(d, &datos) != 0 || desde + (off_t)n <= datos.st_size) return 0;
  errno = ENOSPC;
  return 1;
}

static int impide(enum fallos_tipo tipo) {
  return errno_de(tipo) != 0;
}

/* ---- What is told */

static void cuenta_suceso(struct fallos_suceso s) {
  if (oyente) oyente(&s, de_quien);
}

static ino_t nodo_de(int d) {
  struct stat datos;
  return mira(d, &datos) == 0 ? datos.st_ino : 0;
}

static void cuenta_escritura(int d, const void* bytes, size_t cuantos, off_t desde) {
  const struct fallos_suceso s = {.clase = SUCESO_ESCRIBE,
                                  .nodo = nodo_de(d),
                                  .desde = desde,
                                  .bytes = bytes,
                                  .cuantos = cuantos};
  cuenta_suceso(s);
}

static void acaba(enum fallos_tipo tipo) {
  const int causa = errno;
  if (tipo == FALLO_HACE_Y_MUERE || tipo == FALLO_CORTO_Y_MUERE) muere();
  errno = causa;
}

static size_t parte(enum fallos_tipo tipo, size_t n) {
  const int corta =
      tipo == FALLO_CORTO || tipo == FALLO_CORTO_Y_ENOSPC || tipo == FALLO_CORTO_Y_MUERE;
  if (tipo == FALLO_CORTO_Y_ENOSPC) disco_lleno = 1;
  return corta && n > 1 ? n / 2 : n;
}

/* ---- The calls */

ssize_t pwrite(int d, const void* bytes, size_t n, off_t desde) {
  VERDADERA(pwrite);
  if (!descriptor_en_carpeta(d)) return verdadera(d, bytes, n, desde);
  const enum fallos_tipo tipo = toca(SUCESO_ESCRIBE);
  if (impide(tipo) || no_cabe(d, n, desde)) return -1;
  const ssize_t hechos = verdadera(d, bytes, parte(tipo, n), desde);
  if (hechos > 0) cuenta_escritura(d, bytes, (size_t)hechos, desde);
  acaba(tipo);
  return hechos;
}

ssize_t pwrite64(int d, const void* bytes, size_t n, off64_t desde) {
  return pwrite(d, bytes, n, desde);
}

ssize_t write(int d, const void* bytes, size_t n) {
  VERDADERA(write);
  if (!descriptor_en_carpeta(d)) return verdadera(d, bytes, n);
  const enum fallos_tipo tipo = toca(SUCESO_ESCRIBE);
  const off_t desde = lseek(d, 0, SEEK_CUR);
  if (impide(tipo) || no_cabe(d, n, desde)) return -1;
  const ssize_t hechos = verdadera(d, bytes, parte(tipo, n));
  if (hechos > 0) cuenta_escritura(d, bytes, (size_t)hechos, desde);
  acaba(tipo);
  return hechos;
}

/* One piece at a time is a short write too. */
ssize_t writev(int d, const struct iovec* trozos, int n) {
  VERDADERA(writev);
  if (!descriptor_en_carpeta(d)) return verdadera(d, trozos, n);
  return n > 0 ? write(d, trozos[0].iov_base, trozos[0].iov_len) : 0;
}

ssize_t pwritev(int d, const struct iovec* trozos, int n, off_t desde) {
  VERDADERA(pwritev);
  if (!descriptor_en_carpeta(d)) return verdadera(d, trozos, n, desde);
  return n > 0 ? pwrite(d, trozos[0].iov_base, trozos[0].iov_len, desde) : 0;
}

static int sincroniza(int d) {
  struct stat datos = {0};
  const int es_carpeta = mira(d, &datos) == 0 && S_ISDIR(datos.st_mode);
  const enum fallos_clase clase = es_carpeta ? SUCESO_SINCRONIZA_CARPETA : SUCESO_SINCRONIZA;
  const enum fallos_tipo tipo = toca(clase);
  if (impide(tipo)) return -1;
  const struct fallos_suceso s = {.clase = clase, .nodo = datos.st_ino};
  cuenta_suceso(s);
  acaba(tipo);
  return 0;
}

int fsync(int d) {
  VERDADERA(fsync);
  return descriptor_en_carpeta(d) ? sincroniza(d) : verdadera(d);
}

int fdatasync(int d) {
  VERDADERA(fdatasync);
  return descriptor_en_carpeta(d) ? sincroniza(d) : verdadera(d);
}

int ftruncate(int d, off_t largo) {
  VERDADERA(ftruncate);
  if (!descriptor_en_carpeta(d)) return verdadera(d, largo);
  const enum fallos_tipo tipo = toca(SUCESO_TRUNCA);
  if (impide(tipo)) return -1;
  const int r = verdadera(d, largo);
  const struct fallos_suceso s = {.clase = SUCESO_TRUNCA, .nodo = nodo_de(d), .desde = largo};
  if (r == 0) cuenta_suceso(s);
  acaba(tipo);
  return r;
}

int ftruncate64(int d, off64_t largo) {
  return ftruncate(d, largo);
}

int unlink(const char* ruta) {
  VERDADERA(unlink);
  if (!en_carpeta(ruta)) return verdadera(ruta);
  const enum fallos_tipo tipo = toca(SUCESO_BORRA);
  if (impide(tipo)) return -1;
  const int r = verdadera(ruta);
  const struct fallos_suceso s = {.clase = SUCESO_BORRA, .ruta = ruta};
  if (r == 0) cuenta_suceso(s);
  acaba(tipo);
  return r;
}

static void cuenta_nombre(int r, const char* de, const char* a) {
  const struct fallos_suceso s = {.clase = SUCESO_RENOMBRA, .ruta = de, .destino = a};
  if (r == 0) cuenta_suceso(s);
}

int rename(const char* de, const char* a) {
  VERDADERA(rename);
  if (!en_carpeta(a)) return verdadera(de, a);
  const enum fallos_tipo tipo = toca(SUCESO_RENOMBRA);
  if (impide(tipo)) return -1;
  const int r = verdadera(de, a);
  cuenta_nombre(r, de, a);
  acaba(tipo);
  return r;
}

int renameat2(int cd, const char* de, int ca, const char* a, unsigned banderas) {
  VERDADERA(renameat2);
  if (!en_carpeta(a)) return verdadera(cd, de, ca, a, banderas);
  const enum fallos_tipo tipo = toca(SUCESO_RENOMBRA);
  if (impide(tipo)) return -1;
  const int r = verdadera(cd, de, ca, a, banderas);
  cuenta_nombre(r, de, a);
  acaba(tipo);
  return r;
}

int open(const char* ruta, int banderas, ...) {
  VERDADERA(open);
  mode_t permisos = 0;
  if (banderas & (O_CREAT | __O_TMPFILE)) {
    va_list resto;
    va_start(resto, banderas);
    permisos = va_arg(resto, mode_t);
    va_end(resto);
  }
  if (!(banderas & O_CREAT) || !en_carpeta(ruta)) return verdadera(ruta, banderas, permisos);
  const enum fallos_tipo tipo = toca(SUCESO_CREA);
  if (impide(tipo)) return -1;
  const int existia = existe(ruta);
  const int d = verdadera(ruta, banderas, permisos);
  const struct fallos_suceso s = {.clase = SUCESO_CREA, .ruta = ruta, .nodo = nodo_de(d)};
  if (d >= 0 && !existia) cuenta_suceso(s);
  acaba(tipo);
  return d;
}

int open64(const char* ruta, int banderas, ...) {
  mode_t permisos = 0;
  if (banderas & O_CREAT) {
    va_list resto;
    va_start(resto, banderas);
    permisos = va_arg(resto, mode_t);
    va_end(resto);
  }
  return open(ruta, banderas, permisos);
}

/* ---- The calls that ask */

#define CONSULTA(nombre, clase_de_ruta, en, registro)           \
  int nombre(clase_de_ruta que, struct registro* datos) {       \
    VERDADERA(nombre);                                          \
    if (!armado || !en(que)) return verdadera(que, datos);      \
    const enum fallos_tipo tipo = toca(SUCESO_CONSULTA);        \
    if (impide(tipo)) return -1;                                \
    const int r = verdadera(que, datos);                        \
    acaba(tipo);                                                \
    return r;                                                   \
  }
CONSULTA(stat, const char*, en_carpeta, stat)
CONSULTA(stat64, const char*, en_carpeta, stat64)
CONSULTA(lstat, const char*, en_carpeta, stat)
CONSULTA(lstat64, const char*, en_carpeta, stat64)
CONSULTA(fstat, int, descriptor_en_carpeta, stat)
CONSULTA(fstat64, int, descriptor_en_carpeta, stat64)

ssize_t pread(int d, void* bytes, size_t n, off_t desde) {
  VERDADERA(pread);
  if (!descriptor_en_carpeta(d)) return verdadera(d, bytes, n, desde);
  const enum fallos_tipo tipo = toca(SUCESO_LEE);
  if (impide(tipo)) return -1;
  const ssize_t leidos = verdadera(d, bytes, parte(tipo, n), desde);
  acaba(tipo);
  return leidos;
}

ssize_t pread64(int d, void* bytes, size_t n, off64_t desde) {
  return pread(d, bytes, n, desde);
}

int flock(int d, int operacion) {
  VERDADERA(flock);
  if (!descriptor_en_carpeta(d)) return verdadera(d, operacion);
  const enum fallos_tipo tipo = toca(SUCESO_CERROJO);
  if (impide(tipo)) return -1;
  const int r = verdadera(d, operacion);
  acaba(tipo);
  return r;
}
