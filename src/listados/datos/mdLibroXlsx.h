// A workbook in the making: the library writes it into a folder of its own, and what comes of it is
// looked through before it takes the name that was asked for.
#pragma once

#include <xlsxwriter.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "persistencia/disco/mdFicheroSalida.h"

namespace zorbin {

enum class Formato { Texto, Cabeza, Unidad, Titulo, Cumple, NoCumple, SinComprobar, Nota };

/// A folder for what is written meanwhile, beside a file or, where there is little room or no right
/// to write, in the one for temporary files. It goes away with all that is in it.
class CarpetaDeObra {
 public:
  /// @throws ErrorSalida
  explicit CarpetaDeObra(const std::filesystem::path& junto);
  ~CarpetaDeObra();
  CarpetaDeObra(const CarpetaDeObra&) = delete;
  CarpetaDeObra& operator=(const CarpetaDeObra&) = delete;

  const std::filesystem::path& ruta() const { return ruta_; }

 private:
  std::filesystem::path ruta_;
};

/// Cells of a sheet are written row by row, from the top.
class LibroXlsx {
 public:
  /// @throws ErrorSalida
  explicit LibroXlsx(const std::filesystem::path& fichero);
  ~LibroXlsx();
  LibroXlsx(const LibroXlsx&) = delete;
  LibroXlsx& operator=(const LibroXlsx&) = delete;

  /// @param nombre  cut to what the format allows
  lxw_worksheet* NuevaHoja(std::string nombre);
  void Texto(lxw_worksheet* hoja, std::uint32_t fila, std::size_t columna, const std::string& texto,
             Formato formato = Formato::Texto);
  void Numero(lxw_worksheet* hoja, std::uint32_t fila, std::size_t columna, double valor,
              int decimales);
  lxw_format* De(Formato formato);

  /// The file has its name when this returns. @throws ErrorSalida where anything could not be
  /// written
  void Termina();

 private:
  struct Hoja {
    lxw_worksheet* hoja;
    std::uint32_t filas = 0;  // with a cell
    std::int64_t ultima = -1;
  };

  std::filesystem::path fichero_;
  FicheroSalida salida_;
  CarpetaDeObra carpeta_;
  std::string parte_;  // where the library writes
  lxw_workbook* libro_;
  std::vector<Hoja> hojas_;
  std::map<Formato, lxw_format*> formatos_;
  std::map<int, lxw_format*> numeros_;  // by their decimals

  void Exige(bool hecho, int causa) const;
  void Apunta(lxw_worksheet* hoja, std::uint32_t fila);
  void Comprueba(const std::vector<std::uint32_t>& filas) const;
};

}  // namespace zorbin
