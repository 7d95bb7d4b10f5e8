// What the listings on paper share: the state of the page, its heads, and the data that more than
// one of them prints.
#pragma once

#include <string>

#include "base/mdCatalogo.h"
#include "listados/obra/mdListado.h"
#include "listados/obra/mdVeredictoCaso.h"
#include "listados/papel/mdFormato.h"
#include "listados/papel/mdPapel.h"
#include "listados/papel/mdPie.h"

namespace zorbin {

/// What a listing on paper needs from outside.
struct MediosPapel {
  Papel& papel;
  const Catalogo& textos;
  EstiloNumeros estilo;
  Fecha fecha;
};

inline constexpr int kLineasPagina = 72;   // of a portrait page
inline constexpr int kLineasTabular = 49;  // of a landscape page

class ListadoPapel : public Listado {
 public:
  explicit ListadoPapel(const MediosPapel& medios,
                        NombresHipotesis nombres = NombresHipotesis::Resumen)
      : papel_(medios.papel),
        textos_(medios.textos),
        estilo_(medios.estilo),
        fecha_(medios.fecha),
        palabras_(medios.textos, medios.estilo, nombres) {}

  /// Behind its Casos a Tramo says where and why it broke off, and that its hand adjustments could
  /// not be read: nobody takes the pages before it for the whole.
  bool Tramo(const ResultadoTramo& resultado, int posicion, const std::string& numero,
             const SigueListado& sigue) final;

 protected:
  virtual void Caso(const VistaCaso& v) = 0;
  /// A Caso had begun when the run broke off; its pressures stand, and no more.
  virtual void CasoSinAcabar(const ResultadoTramo&, const FalloCorrida&) {}
  /// The end of the Tramo took some lines of the page.
  virtual void Ocupa(int) {}

  Papel& papel_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  Fecha fecha_;
  PalabrasCaso palabras_;
  int Pagina = 0;  // 0 before the first page

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

  /// What closes a Caso: what is to be built of it, and its verdict.
  std::vector<LineaCaso> CierreDe(const VistaCaso& v) const;
  void EscribeCierre(int margen, const std::vector<LineaCaso>& lineas);

  /// "CASO NUMERO: n/Tramo : description".
  std::string RotuloCaso(int NumCaso, const zorbin::Tramo& t) const;

  std::string TextoTipologia(std::int16_t Tipologia) const;
  std::string TextoCuna(std::int16_t TipoCuna) const;  // value of the run
  std::string TextoColocacionCabecera(std::int16_t TipoApoyo) const;

 private:
  int Cierre(const ResultadoTramo& resultado, const std::string& numero);
  int Advierte(const std::string& texto);
};

}  // namespace zorbin
