/* A library that stands before the system's in a program under test: it counts the calls that
 * change a folder and makes one of them fail, fall short, or be the last. Linked before the C
 * library, or preloaded: FALLOS_CARPETA=/real/folder FALLOS_N=7 FALLOS_TIPO=muere LD_PRELOAD=...
 *
 * Counted: write, pwrite, writev, pwritev, fsync, fdatasync, ftruncate, rename, renameat2, unlink,
 * and open that may create; or, apart from them, stat, lstat, fstat, pread and flock. */
#ifndef ZORBIN_FALLOS_H
#define ZORBIN_FALLOS_H

#include <stddef.h>
#include <sys/types.h>

#ifdef __cplusplus
extern "C" {
#endif

enum fallos_tipo {
  FALLO_NINGUNO,
  FALLO_EIO,
  FALLO_ENOSPC,
  FALLO_EROFS,
  FALLO_EINTR,
  FALLO_CORTO,          /* a write does half of its bytes; what is no write passes */
  FALLO_CORTO_Y_ENOSPC, /* half, and the next write finds the disk full */
  FALLO_CORTO_Y_MUERE,  /* half, and then SIGKILL */
  FALLO_MUERE,          /* SIGKILL before the call */
  FALLO_HACE_Y_MUERE    /* SIGKILL after it */
};

/* From now on, the n-th call (from 1) on something in the folder fails; with `siempre` those after
 * it too. The folder is its real path. Nothing in it is synced for real. */
void fallos_arma(const char* carpeta, int n, enum fallos_tipo tipo, int siempre);
/* Nothing fails from now on. Nothing is counted either, or kept from the disk. */
void fallos_desarma(void);

/* What is counted and fails from now on: calls that change the folder, as at first, or those that
 * ask for something. Those of them that cannot suffer the fault are not counted: only pread and
 * flock are interrupted, only pread falls short. */
void fallos_en_consultas(int si);

/* Calls counted since it was armed, those of `clase` or all (-1). */
int fallos_cuenta(int clase);
/* Calls that suffered the fault since it was armed. */
int fallos_puestos(void);

enum fallos_clase {
  SUCESO_CREA,
  SUCESO_ESCRIBE,
  SUCESO_TRUNCA,
  SUCESO_SINCRONIZA,
  SUCESO_SINCRONIZA_CARPETA,
  SUCESO_RENOMBRA,
  SUCESO_BORRA,
  SUCESO_CONSULTA, /* stat, lstat, fstat */
  SUCESO_LEE,
  SUCESO_CERROJO,
  SUCESO_CLASES
};

/* A call that the system carried out. */
struct fallos_suceso {
  enum fallos_clase clase;
  const char* ruta;    /* CREA, RENOMBRA and BORRA */
  const char* destino; /* RENOMBRA */
  ino_t nodo;          /* CREA, ESCRIBE, TRUNCA and SINCRONIZA */
  off_t desde;         /* ESCRIBE; TRUNCA: the length */
  const void* bytes;   /* ESCRIBE */
  size_t cuantos;
};
typedef void (*fallos_oyente)(const struct fallos_suceso*, void* de_quien);
void fallos_escucha(fallos_oyente oyente, void* de_quien);

#ifdef __cplusplus
}
#endif

#endif
