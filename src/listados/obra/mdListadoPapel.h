// What the listings on paper share: the state of the page, its heads, and the data that more than
// one of them prints.
#pragma once

#include <string>

#include "base/mdCatalogo.h"
#include "listados/obra/mdFlujo.h"
#include "listados/papel/mdFormato.h"
#include "listados/papel/mdPapel.h"

namespace zorbin {

/// Date and time on the page heads; the listing never looks at a clock.
struct Fecha {
  std::string dia;
  std::string hora;
};

/// Date and time of the machine.
Fecha Ahora();

/// What a listing on paper needs from outside.
struct MediosPapel {
  Papel& papel;
  const Catalogo& textos;
  EstiloNumeros estilo;
  Fecha fecha;
};

inline constexpr int kLineasPagina = 72;   // of a portrait page
inline constexpr int kLineasTabular = 50;  // of a landscape page

class ListadoPapel : public OyenteObra {
 public:
  explicit ListadoPapel(const MediosPapel& medios)
      : papel_(medios.papel),
        textos_(medios.textos),
        estilo_(medios.estilo),
        fecha_(medios.fecha) {}

  void EmpiezaTramo(const EstadoCalculo&, int, const std::string& numero) override {
    numeroEnLista_ = numero;
  }
  /// Says where and why a Tramo broke off, and that its hand adjustments could not be read: nobody
  /// takes the pages before it for the whole.
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override { Cierre(e, fallo); }

 protected:
  Papel& papel_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  Fecha fecha_;
  std::string numeroEnLista_;  // of the Tramo in hand
  int Pagina = 0;              // 0 before the first page

  const std::string& Texto(int n) const { return textos_.Texto(n); }
  std::string Numero(double valor, int ancho, int decimales, std::string_view conversion = {},
                     bool conUnidad = false) const {
    return estilo_.FormatoNumero(valor, ancho, decimales, conversion, conUnidad);
  }
  /// A number without the blanks around it.
  std::string NumeroSolo(double valor, int ancho, int decimales, std::string_view conversion,
                         bool conUnidad) const;

  void Linea(int margen, std::string_view texto) { papel_.Linea(margen, texto); }
  void EnNegrita(int margen, std::string_view texto);
  void EnBlanco(int n) { papel_.LineasEnBlanco(n); }

  /// Obra, client, date and time, with the rule under them. @return lines of the description
  int BloqueObra(const Obra& obra);

  /// What AcabaTramo says. @return lines printed
  int Cierre(const EstadoCalculo& e, const ErrorCorrida* fallo);

  /// "CASO NUMERO: n/Tramo : description".
  std::string RotuloCaso(const EstadoCalculo& e) const;

  std::string TextoTipologia(std::int16_t Tipologia) const;
  std::string TextoCuna(std::int16_t TipoCuna) const;  // value of the run
  std::string TextoColocacionCabecera(std::int16_t TipoApoyo) const;

 private:
  int Advierte(const std::string& texto);
};

}  // namespace zorbin
