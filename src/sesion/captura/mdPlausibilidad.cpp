#include "sesion/captura/mdPlausibilidad.h"

#include <algorithm>
#include <iterator>

#include "base/mdNumeros.h"
#include "base/textos.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

constexpr std::string_view kMascaraAltura = "#####0.00";

// Collects the notices of a set of data.
class Recogida {
 public:
  Recogida(const Catalogo& textos, char separador) : textos_(textos), separador_(separador) {}

  // The steps of a range of heights that miss the last one.
  void Alturas(Ed campo, double primera, double ultima, double paso) {
    const auto fuera = AlturaFueraDe(primera, ultima, paso);
    if (!fuera) return;
    const auto metros = [this](double h) { return Numero(h, kMascaraAltura); };
    std::string texto = textos_.Compone(
        txt::AlturaFinalFuera,
        {metros(fuera->ultima), metros(primera), metros(paso), metros(fuera->alcanzada)});
    avisos_.push_back({campo, std::move(texto), fuera->incremento});
  }

  std::vector<AvisoDeCampo> Avisos() && { return std::move(avisos_); }

 private:
  std::string Numero(double valor, std::string_view mascara) const {
    return FormatoMascara(valor, mascara, separador_);
  }

  const Catalogo& textos_;
  char separador_;
  std::vector<AvisoDeCampo> avisos_;
};

// Whether all the tabs that a field stands on show it.
bool Delante(const Paginas& delante, const Paginas& pagina) {
  const auto cabe = [](int pedida, int puesta) { return pedida < 0 || pedida == puesta; };
  return pagina.TabPrincipal == delante.TabPrincipal &&
         cabe(pagina.TabTipologia, delante.TabTipologia) &&
         cabe(pagina.TabPostesados, delante.TabPostesados) &&
         cabe(pagina.TabDatosColocacion, delante.TabDatosColocacion);
}

}  // namespace

std::vector<AvisoDeCampo> AvisosDeObra(const Obra& obra, const Catalogo& textos, char separador) {
  Recogida recogida(textos, separador);
  recogida.Alturas(Ed::edAlt2, obra.Alt1, obra.Alt2, obra.Alt3);
  return std::move(recogida).Avisos();
}

std::vector<AvisoDeCampo> AvisosDePlausibilidad(const Obra&, const Tramo& tramo,
                                                const Catalogo& textos, char separador) {
  Recogida recogida(textos, separador);
  recogida.Alturas(Ed::edHr0Final, tramo.Hr0Tramo, tramo.Hr0Final, tramo.Hr0Delta);
  return std::move(recogida).Avisos();
}

void RenuevaAvisos(Captura& c) {
  auto& avisos = c.pantalla.avisos;
  avisos = AvisosDeObra(c.e.obra, c.textos, c.SeparadorDecimal);
  if (c.SinTramoEnMano()) return;
  auto delTramo = AvisosDePlausibilidad(c.e.obra, c.e.tramo, c.textos, c.SeparadorDecimal);
  std::ranges::move(delTramo, std::back_inserter(avisos));
}

std::vector<AvisoDeCampo> AvisosDelante(const Modelo& pantalla) {
  std::vector<AvisoDeCampo> avisos;
  std::ranges::copy_if(pantalla.avisos, std::back_inserter(avisos), [&](const AvisoDeCampo& a) {
    return Delante(pantalla.pagina, Fila(a.campo).pagina);
  });
  return avisos;
}

void TomaIncremento(Captura& c, const AvisoDeCampo& aviso) {
  if (!(aviso.incremento > 0)) return;
  const bool deObra = aviso.campo == Ed::edAlt2;
  const Ed campo = deObra ? Ed::edAlt3 : Ed::edHr0Delta;
  Variable(c, campo) = aviso.incremento;
  MuestraVariable(c, campo);
  (deObra ? c.ObraEditada : c.TramoEditado) = true;
  RenuevaAvisos(c);
}

}  // namespace zorbin
