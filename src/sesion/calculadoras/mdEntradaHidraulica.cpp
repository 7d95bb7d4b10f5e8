#include "sesion/calculadoras/mdEntradaHidraulica.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/mdNumeros.h"
#include "base/textos.h"

namespace zorbin {

namespace {

constexpr double kMinimo = 0.0001;
constexpr std::string_view kMascara = "######0.000";
constexpr std::string_view kMascaraCwh = "###0.00";
constexpr int kDecimalesDefecto = 3;

struct MetodoConRugosidad {
  int etiqueta;
  double defecto;  // [mm]; 0 for the rule of Hazen
};

// By rdTipoCalculo.
constexpr std::array<MetodoConRugosidad, 3> kMetodos{{
    {txt::RugosidadAbsolutaKs, 0.06},
    {txt::RugosidadArenaKa, 0.05},
    {txt::CoeficienteCwh, 0.0},
}};

const MetodoConRugosidad& MetodoDe(const EntradaHidraulica& e) {
  return kMetodos[static_cast<std::size_t>(e.rdTipoCalculo)];
}

bool EsHazen(const EntradaHidraulica& e) {
  return e.rdTipoCalculo == MetodoHidraulico::HazenWilliams;
}

std::string DefectoConMarca(const EntradaHidraulica& e) {
  return TextoDecimal(MetodoDe(e).defecto, kDecimalesDefecto, e.SeparadorDecimal);
}

CampoNumero& Campo(EntradaHidraulica& e, CampoHidraulico cual) {
  return cual == CampoHidraulico::DatoOrigen ? e.txDatoOrigen : e.txRugosidad;
}

AvisoCampo ErrorCon(std::vector<int> texto) {
  return {std::move(texto), txt::TituloError};
}

// Refusal of a value that is not above 0.
std::optional<AvisoCampo> ExigePositivo(double valor, int etiqueta) {
  if (valor == 0.0) return ErrorCon({txt::DebeCapturarUnValor, etiqueta});
  if (!(valor > 0.0)) return ErrorCon({txt::ElValorDe, etiqueta, txt::DebeSerMayorQueCero});
  return std::nullopt;
}

AvisoCampo AvisoDe(const EntradaHidraulica& e, FaltaHidraulica falta) {
  switch (falta) {
    case FaltaHidraulica::RugosidadNegativa:
      return ErrorCon({txt::ElValorDe, EtiquetaRugosidad(e), txt::DebeSerMayorQueCero});
    case FaltaHidraulica::RugosidadExcesiva:
      return ErrorCon({txt::ElValorDe, EtiquetaRugosidad(e), txt::DemasiadoGrande});
    case FaltaHidraulica::DatoInsuficiente:
      break;
  }
  return ErrorCon({txt::ElValorDe, EtiquetaDato(e), txt::DemasiadoPequeno});
}

}  // namespace

EntradaHidraulica CargaCalculoHidraulico(char SeparadorDecimal) {
  EntradaHidraulica e;
  e.SeparadorDecimal = SeparadorDecimal;
  PonRugosidad(e);
  PonDatoOrigen(e);
  PoneBotones(e, false);
  return e;
}

int EtiquetaDato(const EntradaHidraulica& e) {
  switch (e.rdTipoDato) {
    case DatoHidraulico::Pendiente:
      return txt::PendienteMPorM;
    case DatoHidraulico::Caudal:
      return txt::CaudalM3PorSeg;
    case DatoHidraulico::Ninguno:
      break;
  }
  return txt::DatoSinTipo;
}

int EtiquetaRugosidad(const EntradaHidraulica& e) {
  return MetodoDe(e).etiqueta;
}

std::string NotaRugosidad(const EntradaHidraulica& e, const Catalogo& catalogo) {
  return EsHazen(e) ? catalogo.Texto(txt::ReglaCwh) : "(" + DefectoConMarca(e) + ")";
}

std::string TextoAyuda(const EntradaHidraulica& e, const Catalogo& catalogo) {
  if (EsHazen(e)) return catalogo.Texto(txt::AyudaHazen);
  return catalogo.Texto(txt::AyudaRugosidad) + "\n\n" + catalogo.Texto(txt::AyudaRugosidadDoble);
}

void PonRugosidad(EntradaHidraulica& e) {
  Escribe(e.txRugosidad, MetodoDe(e).defecto, EsHazen(e) ? "0" : DefectoConMarca(e));
}

void PonDatoOrigen(EntradaHidraulica& e) {
  Escribe(e.txDatoOrigen, 0.0, {});
}

void PoneBotones(EntradaHidraulica& e, bool Hay) {
  if (!Hay) e.resultado.reset();
  e.imprimible = Hay;
}

void CambiaMetodo(EntradaHidraulica& e, MetodoHidraulico metodo) {
  if (e.rdTipoCalculo == metodo) return;
  e.rdTipoCalculo = metodo;
  e.imprimible = false;
  PonRugosidad(e);
}

void CambiaTipoDato(EntradaHidraulica& e, DatoHidraulico tipo) {
  if (e.rdTipoDato == tipo) return;
  e.rdTipoDato = tipo;
  e.imprimible = false;
  PonDatoOrigen(e);
}

void Entra(EntradaHidraulica& e, CampoHidraulico cual) {
  if (cual == CampoHidraulico::Rugosidad && e.txRugosidad.texto.empty()) PonRugosidad(e);
  Campo(e, cual).seleccionado = true;
}

void Cambia(EntradaHidraulica& e, CampoHidraulico cual, std::string texto) {
  if (Campo(e, cual).texto != texto) e.imprimible = false;
  Cambia(Campo(e, cual), std::move(texto));
}

std::optional<AvisoCampo> Sale(EntradaHidraulica& e, CampoHidraulico cual) {
  CampoNumero& campo = Campo(e, cual);
  campo.seleccionado = false;
  if (!PorLeer(campo)) return std::nullopt;
  const bool esDato = cual == CampoHidraulico::DatoOrigen;
  const bool esCwh = !esDato && EsHazen(e);
  double valor = 0;
  auto aviso = ValidaNumero(esCwh ? 0.0 : kMinimo, campo.texto, e.SeparadorDecimal, valor,
                            esDato ? EtiquetaDato(e) : EtiquetaRugosidad(e));
  if (!aviso) {
    Escribe(campo, valor,
            FormatoMascara(valor, esCwh ? kMascaraCwh : kMascara, e.SeparadorDecimal));
    return std::nullopt;
  }
  if (esDato) {
    PonDatoOrigen(e);
  } else {
    PonRugosidad(e);
  }
  campo.seleccionado = true;
  return aviso;
}

std::optional<AvisoCampo> ValidaDatosHidraulicos(const EntradaHidraulica& e) {
  if (auto aviso = ExigePositivo(e.txDatoOrigen.valor, EtiquetaDato(e))) return aviso;
  const double Rugosidad = e.txRugosidad.valor;
  if (!EsHazen(e)) return ExigePositivo(Rugosidad, EtiquetaRugosidad(e));
  if (!(Rugosidad >= 0.0)) return AvisoDe(e, FaltaHidraulica::RugosidadNegativa);
  return std::nullopt;
}

std::optional<AvisoCampo> Calcula(EntradaHidraulica& e) {
  for (const auto cual : {CampoHidraulico::DatoOrigen, CampoHidraulico::Rugosidad}) {
    if (auto aviso = Sale(e, cual)) return aviso;
  }
  if (auto aviso = ValidaDatosHidraulicos(e)) return aviso;
  if (e.rdTipoDato == DatoHidraulico::Ninguno) {
    return ErrorCon({txt::DebeCapturarUnValor, EtiquetaDato(e)});
  }
  try {
    e.resultado =
        CalculaHidraulica(e.rdTipoCalculo, e.rdTipoDato, e.txDatoOrigen.valor, e.txRugosidad.valor);
  } catch (const ErrorHidraulico& falta) {
    return AvisoDe(e, falta.falta());
  } catch (const ErrorEjecucion& error) {
    const bool cero = error.causa() == CausaError::DivisionPorCero;
    return AvisoCampo{{cero ? txt::DivisionPorCero : txt::Desbordamiento}, txt::ErrorEnEjecucion};
  }
  PoneBotones(e, true);
  return std::nullopt;
}

}  // namespace zorbin
