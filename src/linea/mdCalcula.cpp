#include "linea/mdCalcula.h"

#include <iostream>
#include <memory>

#include "core/mdNumeros.h"
#include "core/mdTextos.h"
#include "linea/mdPalabras.h"
#include "linea/mdSalida.h"
#include "listados/mdAvisos.h"
#include "listados/mdFlujo.h"
#include "listados/mdJson.h"
#include "listados/mdPantalla.h"
#include "listados/mdResumen.h"
#include "persistencia/mdLog.h"
#include "recursos/textos.h"

namespace zorbin {

namespace {

void Queja(const std::string& texto) {
  std::cerr << "zorbin-calc: " << texto << '\n';
}

// Writes the summary of an Obra.
class SalidaResumen : public OyenteObra {
 public:
  SalidaResumen(std::ostream& flujo, const Catalogo& textos, EstiloNumeros estilo)
      : pantalla_(flujo), resumen_(pantalla_, textos, estilo) {}
  void EmpiezaTramo(const EstadoCalculo&, int, const std::string&) override {}
  void AcabaTramo(const EstadoCalculo&, const ErrorCorrida*) override {}
  void Progreso(const EstadoCalculo& e) override { resumen_.Progreso(e); }
  void Caso(const EstadoCalculo& e) override { resumen_.Caso(e); }

 private:
  Pantalla pantalla_;
  Resumen resumen_;
};

// Tells the failures on standard error and hands everything on.
class Vigia : public OyenteObra {
 public:
  Vigia(OyenteObra& salida, std::string fichero, const Catalogo& textos, EstiloNumeros estilo)
      : salida_(salida), fichero_(std::move(fichero)), textos_(textos), estilo_(estilo) {}

  bool hayFallo() const { return hayFallo_; }

  void EmpiezaTramo(const EstadoCalculo& e, int posicion, const std::string& numero) override {
    salida_.EmpiezaTramo(e, posicion, numero);
  }
  void Progreso(const EstadoCalculo& e) override { salida_.Progreso(e); }
  void Cabecera(const EstadoCalculo& e) override { salida_.Cabecera(e); }
  void Caso(const EstadoCalculo& e) override { salida_.Caso(e); }
  void FinAltura(const EstadoCalculo& e) override { salida_.FinAltura(e); }
  void FinCorrida(const EstadoCalculo& e) override {
    if (e.corrida.CuentaCasos == 0) {
      Queja(textos_.Compone(txt::TramoSinCasos, {fichero_, TextoEntero(e.tramo.NumeroTramo)}));
    }
    salida_.FinCorrida(e);
  }
  void AcabaTramo(const EstadoCalculo& e, const ErrorCorrida* fallo) override {
    if (fallo != nullptr) {
      hayFallo_ = true;
      Queja(TextoFallo(*fallo, fichero_, textos_, estilo_));
    }
    salida_.AcabaTramo(e, fallo);
  }

 private:
  OyenteObra& salida_;
  std::string fichero_;
  const Catalogo& textos_;
  EstiloNumeros estilo_;
  bool hayFallo_ = false;
};

std::string NumerosDe(const ListaTramos& lista) {
  std::string numeros;
  for (const auto& n : lista) {
    if (!n.empty()) numeros += (numeros.empty() ? "" : ", ") + n;
  }
  return numeros.empty() ? "-" : numeros;
}

// @return whether every number of the request is in the list
bool BuscaTramos(const OpcionesCalcula& opciones, const ObraEnFichero& obra, const Catalogo& textos,
                 PeticionCalculo& peticion) {
  for (const int numero : opciones.tramos) {
    const int posicion = PosicionDe(obra.lista, numero);
    if (posicion == 0) {
      Queja(textos.Compone(txt::TramoQueNoEsta,
                           {TextoEntero(numero), opciones.obra.string(), NumerosDe(obra.lista)}));
      return false;
    }
    peticion.posiciones.push_back(posicion);
  }
  return true;
}

int CalculaAbierta(EstadoCalculo& e, const ObraEnFichero& obra, const OpcionesCalcula& opciones,
                   const PeticionCalculo& peticion, const Catalogo& textos) {
  const char separador = opciones.separador.empty()     ? SeparadorDeLaMaquina()
                         : opciones.separador == "coma" ? ','
                                                        : '.';
  const EstiloNumeros estilo{e.obra.EsSI(), separador};
  const std::string fichero = opciones.obra.string();
  Salida salida(opciones.salida);
  bool fallo = false;
  if (opciones.formato == "json") {
    ListadoJson json(salida.flujo(), fichero, textos, estilo);
    Vigia vigia(json, fichero, textos, estilo);
    json.EmpiezaObra(e);
    CalculaObra(e, obra, peticion, vigia);
    json.AcabaObra();
    fallo = vigia.hayFallo();
  } else {
    SalidaResumen resumen(salida.flujo(), textos, estilo);
    Vigia vigia(resumen, fichero, textos, estilo);
    CalculaObra(e, obra, peticion, vigia);
    fallo = vigia.hayFallo();
  }
  salida.Cierra();
  return fallo ? kFalloDeCorrida : kHecho;
}

}  // namespace

int Calcula(const OpcionesCalcula& opciones, Catalogo& textos) try {
  EstadoCalculo e;
  const ObraEnFichero obra = AbreObra(e, opciones.obra);
  if (textos.PonIdioma(e.obra.Idioma) != e.obra.Idioma) Queja(textos.Texto(txt::IdiomaSinInstalar));
  for (const auto& aviso : obra.avisos) Queja(textos.Compone(aviso));
  PeticionCalculo peticion{{},
                           opciones.registros.empty() ? CarpetaRegistros() : opciones.registros};
  if (!BuscaTramos(opciones, obra, textos, peticion)) return kPalabrasMalas;
  return CalculaAbierta(e, obra, opciones, peticion, textos);
} catch (const ErrorFichero& error) {
  Queja(textos.Compone(error.mensaje()));
  return kFicheroRechazado;
} catch (const ErrorSalida& error) {
  Queja(textos.Compone(txt::SalidaNoSeEscribe, {error.nombre(), error.what()}));
  return kSalidaImposible;
}

}  // namespace zorbin
