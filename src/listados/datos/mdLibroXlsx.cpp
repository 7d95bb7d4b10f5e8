#include "listados/datos/mdLibroXlsx.h"

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <utility>

#include "base/mdTextos.h"
#include "persistencia/entrada/mdCuadro.h"
#include "persistencia/entrada/mdZip.h"

namespace zorbin {

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kBastante = std::uint64_t{1} << 30;  // bytes
constexpr std::size_t kLetrasHoja = 31;
constexpr std::size_t kBloque = 1 << 20;  // bytes
constexpr int kMaxCausas = 200;

std::uint64_t Sitio(const fs::path& carpeta) {
  struct statvfs datos {};
  if (::statvfs(carpeta.c_str(), &datos) != 0 || ::access(carpeta.c_str(), W_OK) != 0) return 0;
  return std::uint64_t{datos.f_bavail} * datos.f_frsize;
}

// Beside the file, unless there is little room there and more elsewhere.
fs::path DondeCabe(const fs::path& junto) {
  std::error_code error;
  fs::path otra = fs::temp_directory_path(error);
  if (error) otra = "/tmp";
  const auto aqui = Sitio(junto);
  return aqui >= kBastante || aqui >= Sitio(otra) ? junto : otra;
}

}  // namespace

CarpetaDeObra::CarpetaDeObra(const fs::path& junto) {
  const fs::path madre = DondeCabe(junto.empty() ? fs::path(".") : junto);
  std::string nombre = (madre / ".zorbin-XXXXXX").string();
  if (::mkdtemp(nombre.data()) == nullptr) throw ErrorSalida(nombre, TextoDeCausa(errno));
  ruta_ = nombre;
}

CarpetaDeObra::~CarpetaDeObra() {
  std::error_code error;
  fs::remove_all(ruta_, error);
}

LibroXlsx::LibroXlsx(const fs::path& fichero)
    : fichero_(fichero),
      salida_(fichero),
      carpeta_(fichero.parent_path()),
      parte_((carpeta_.ruta() / "libro.xlsx").string()) {
  std::string temporal = carpeta_.ruta().string();
  lxw_workbook_options opciones{};
  opciones.constant_memory = LXW_TRUE;
  opciones.tmpdir = temporal.data();  // the library copies it
  opciones.use_zip64 = LXW_TRUE;
  libro_ = workbook_new_opt(parte_.c_str(), &opciones);
  Exige(libro_ != nullptr, ENOMEM);
}

LibroXlsx::~LibroXlsx() {
  if (libro_ != nullptr) lxw_workbook_free(libro_);
}

void LibroXlsx::Exige(bool hecho, int causa) const {
  if (!hecho) throw ErrorSalida(fichero_.string(), TextoDeCausa(causa));
}

lxw_worksheet* LibroXlsx::NuevaHoja(std::string nombre) {
  std::ranges::replace_if(
      nombre,
      [](char c) { return std::string_view("[]:*?/\\'").find(c) != std::string_view::npos; }, ' ');
  auto* hoja = workbook_add_worksheet(libro_, std::string(Primeros(nombre, kLetrasHoja)).c_str());
  Exige(hoja != nullptr, errno != 0 ? errno : EIO);
  hojas_.push_back({hoja});
  return hoja;
}

lxw_format* LibroXlsx::De(Formato formato) {
  auto& f = formatos_[formato];
  if (f != nullptr || formato == Formato::Texto) return f;
  f = workbook_add_format(libro_);
  switch (formato) {
    case Formato::Titulo:
    case Formato::Cabeza:
      format_set_bold(f);
      if (formato == Formato::Cabeza) {
        format_set_bottom(f, LXW_BORDER_THIN);
        format_set_bg_color(f, 0xE4EAF0);
      }
      break;
    case Formato::Unidad:
    case Formato::Nota:
      format_set_italic(f);
      format_set_font_color(f, 0x606060);
      break;
    case Formato::Cumple:
      format_set_bg_color(f, 0xD3EDD8);
      format_set_font_color(f, 0x14532D);
      break;
    case Formato::NoCumple:
      format_set_bg_color(f, 0xF8D4D4);
      format_set_font_color(f, 0x7F1D1D);
      break;
    case Formato::SinComprobar:
      format_set_bg_color(f, 0xFBEBC8);
      format_set_font_color(f, 0x78450B);
      break;
    case Formato::Texto:
      break;
  }
  return f;
}

void LibroXlsx::Apunta(lxw_worksheet* hoja, std::uint32_t fila) {
  const auto h = std::ranges::find(hojas_, hoja, &Hoja::hoja);
  if (h->ultima == fila) return;
  h->ultima = fila;
  ++h->filas;
}

void LibroXlsx::Texto(lxw_worksheet* hoja, std::uint32_t fila, std::size_t columna,
                      const std::string& texto, Formato formato) {
  if (texto.empty() && De(formato) == nullptr) return;
  Apunta(hoja, fila);
  const auto c = static_cast<lxw_col_t>(columna);
  if (texto.empty()) {
    worksheet_write_blank(hoja, fila, c, De(formato));
  } else {
    worksheet_write_string(hoja, fila, c, texto.c_str(), De(formato));
  }
}

void LibroXlsx::Numero(lxw_worksheet* hoja, std::uint32_t fila, std::size_t columna, double valor,
                       int decimales) {
  if (std::isnan(valor)) return;
  if (!std::isfinite(valor)) return Texto(hoja, fila, columna, "∞");
  Apunta(hoja, fila);
  auto& f = numeros_[decimales];
  if (f == nullptr) {
    f = workbook_add_format(libro_);
    const std::string forma =
        decimales > 0 ? "0." + std::string(static_cast<std::size_t>(decimales), '0') : "0";
    format_set_num_format(f, forma.c_str());
  }
  worksheet_write_number(hoja, fila, static_cast<lxw_col_t>(columna), valor, f);
}

// The library does not look at what becomes of its rows: a disk that fills up leaves a workbook
// without some of them. Each row begins with a mark of its own, and they are counted.
void LibroXlsx::Comprueba(const std::vector<std::uint32_t>& filas) const {
  constexpr std::string_view kFila = "<row ";
  constexpr std::string_view kFin = "</worksheet>";
  for (std::size_t i = 0; i < filas.size(); ++i) {
    std::uint32_t vistas = 0;
    std::string cola;
    LeeParte(parte_, "xl/worksheets/sheet" + std::to_string(i + 1) + ".xml",
             [&](std::string_view bytes) {
               cola += bytes;
               std::size_t desde = 0;
               for (auto p = cola.find(kFila); p != std::string::npos;
                    p = cola.find(kFila, desde)) {
                 ++vistas;
                 desde = p + kFila.size();
               }
               const auto queda = std::min(cola.size() - desde, 2 * kFin.size());
               cola.erase(0, cola.size() - queda);
             });
    Exige(vistas == filas[i] && cola.find(kFin) != std::string::npos, ENOSPC);
  }
}

void LibroXlsx::Termina() {
  std::vector<std::uint32_t> filas;
  bool bien = true;
  for (const auto& h : hojas_) {
    filas.push_back(h.filas);
    auto* f = h.hoja->optimize_tmpfile;
    if (f != nullptr) bien = std::fflush(f) == 0 && std::ferror(f) == 0 && bien;
  }
  Exige(bien, errno != 0 ? errno : ENOSPC);
  errno = 0;
  const auto error = workbook_close(std::exchange(libro_, nullptr));
  Exige(error == LXW_NO_ERROR, errno > 0 && errno < kMaxCausas ? errno : EIO);
  try {
    Comprueba(filas);
  } catch (const ErrorEntrada&) {
    Exige(false, EIO);
  }
  std::ifstream hecho(parte_, std::ios::binary);
  std::string bloque(kBloque, '\0');
  while (hecho) {
    hecho.read(bloque.data(), static_cast<std::streamsize>(bloque.size()));
    salida_.Escribe({bloque.data(), static_cast<std::size_t>(hecho.gcount())});
  }
  Exige(hecho.eof(), EIO);
  salida_.Termina();
}

}  // namespace zorbin
