#include "sesion/captura/mdVersion.h"

#include <algorithm>
#include <cmath>

#include "base/aritmetica.h"
#include "base/mdNumeros.h"
#include "calculo/corrida/mdCalculaTramo.h"
#include "core/mdUnidades.h"

namespace zorbin {

namespace {

bool Igual(const TramoFijo& a, const TramoFijo& b) {
  return a == b || *a == *b;
}

// What a Caso is calculated from, but for the heights and pressures that choose it.
DatosTramo DatosDeUnCaso(const Obra& obra, Tramo tramo) {
  tramo.NumeroTramo = 0;
  tramo.DescriTramo.clear();
  tramo.GamaY = tramo.GamaF = 0;  // nobody's: the rules set them
  DatosTramo datos;
  datos.obra = ObraEnCalculo(obra);
  datos.tramo = TramoEnCalculo(tramo, obra.EsSI());
  return datos;
}

// A change of units there and back leaves the last digits of a number otherwise.
bool Iguales(double a, double b) {
  constexpr double kUltimasCifras = 1e-9;
  return std::fabs(a - b) <= kUltimasCifras * std::max(std::fabs(a), std::fabs(b));
}

bool MismasPresiones(const Rango& a, const Rango& b) {
  return Iguales(a.DPIni, b.DPIni) && Iguales(a.DPFin, b.DPFin) && Iguales(a.MDPIni, b.MDPIni) &&
         Iguales(a.MDPFin, b.MDPFin);
}

// Numbers that differ in their last digits only become the same.
void Acerca(const Tramo& a, Tramo& b) {
  RecorreNumeros<Tramo>([&](const Ficha&, double Tramo::*campo) {
    if (Iguales(a.*campo, b.*campo)) b.*campo = a.*campo;
  });
}

template <class Bloque>
void Convierte(Bloque& b, bool aSI) {
  RecorreNumeros<Bloque>([&](const Ficha& ficha, double Bloque::*campo) {
    if (!ficha.Escala()) return;
    const auto par = Pareja(b.*campo, !aSI, ficha.magnitud);
    b.*campo = aSI ? par.si : par.mks;
  });
}

}  // namespace

bool Version::operator==(const Version& otra) const {
  return obra == otra.obra && pendientes == otra.pendientes && extras == otra.extras &&
         ajustesSueltos == otra.ajustesSueltos && std::ranges::equal(tramos, otra.tramos, Igual);
}

std::optional<std::size_t> LugarDe(const Version& v, int id) {
  const auto f = std::ranges::find(v.tramos, id, [](const TramoFijo& t) { return t->id; });
  if (f == v.tramos.end()) return std::nullopt;
  return static_cast<std::size_t>(f - v.tramos.begin());
}

std::optional<std::size_t> LugarDeNumero(const Version& v, int numero) {
  for (auto i = v.tramos.size(); i > 0; --i) {
    const auto& texto = v.tramos[i - 1]->numero;
    if (!texto.empty() && NumeroDe(texto) == numero) return i - 1;
  }
  return std::nullopt;
}

const TramoEnObra* Busca(const Version& v, int id) {
  const auto lugar = LugarDe(v, id);
  return lugar ? v.tramos[*lugar].get() : nullptr;
}

ListaTramos ListaDe(const Version& v) {
  ListaTramos lista;
  for (const auto& t : v.tramos) lista.push_back(t->numero);
  return lista;
}

int NumeroDe(const std::string& texto) {
  const auto valor = NumeroTexto(texto);
  return valor && *valor >= 0 && *valor <= kMayorNumeroDeTramo ? static_cast<int>(*valor + 0.5) : 0;
}

int NumeroLibre(const Version& v) {
  int mayor = 0;
  for (const auto& t : v.tramos) mayor = std::max(mayor, NumeroDe(t->numero));
  return mayor + 1;
}

bool Caben(const Version& v, std::size_t cuantos) {
  return v.tramos.size() + cuantos <= kMaxTramos &&
         NumeroLibre(v) + static_cast<int>(cuantos) - 1 <= kMayorNumeroDeTramo;
}

bool MismosDatos(const TramoEnObra& a, const TramoEnObra& b) {
  TramoEnObra como = b;
  como.id = a.id;
  como.numero = a.numero;
  como.datos.NumeroTramo = a.datos.NumeroTramo;
  return a == como;
}

Obra SinSesion(Obra obra) {
  const Obra nada;
  obra.RutaApp = nada.RutaApp;
  obra.NombreFichero = nada.NombreFichero;
  obra.ObraAbierta = nada.ObraAbierta;
  return obra;
}

bool CalculaDistinto(const Obra& obraA, const Tramo& a, const Obra& obraB, const Tramo& b) {
  auto x = DatosDeUnCaso(obraA, a);
  auto y = DatosDeUnCaso(obraB, b);
  if (x.obra.GolpeCalculado != y.obra.GolpeCalculado || !MismasPresiones(RangoDe(x), RangoDe(y))) {
    return true;
  }
  for (auto* t : {&x.tramo, &y.tramo}) {
    t->Hr0Tramo = t->Hr0Final = t->Hr0Delta = 0;
    t->Prs1Tram = t->Prs2Tram = t->Prs3Tram = t->PrsM1Tram = t->PrsM2Tram = 0;
  }
  Acerca(x.tramo, y.tramo);
  return x.tramo != y.tramo;
}

void PonAjustes(TramoEnObra& t, const Obra& obra, std::vector<EntradaAjuste> ajustes) {
  t.ajustes = std::move(ajustes);
  t.base.datos.reset();
  if (!t.ajustes.empty()) {
    t.base.datos = std::make_shared<const EstadoCalculo>(EstadoCalculo{SinSesion(obra), t.datos});
  }
}

AjustesAnulados SinAjustesVanos(Version nueva) {
  AjustesAnulados r;
  for (auto& t : nueva.tramos) {
    const auto& de = t->base.datos;
    if (t->ajustes.empty() || !de || !CalculaDistinto(de->obra, de->tramo, nueva.obra, t->datos)) {
      continue;
    }
    r.anulados.emplace_back(t->numero, static_cast<int>(t->ajustes.size()));
    auto sinEllos = std::make_shared<TramoEnObra>(*t);
    PonAjustes(*sinEllos, nueva.obra, {});
    t = std::move(sinEllos);
  }
  r.version = std::move(nueva);
  return r;
}

void CambiaUnidades(Version& v, bool aSI) {
  if (v.obra.EsSI() == aSI) return;
  Convierte(v.obra, aSI);
  v.obra.SisUnid = aSI ? "SI" : "MKS";
  for (auto& t : v.tramos) {
    auto otro = std::make_shared<TramoEnObra>(*t);
    Convierte(otro->datos, aSI);
    otro->datos.Fct = FctEnSistema(otro->datos.Fck, aSI);
    t = std::move(otro);
  }
}

}  // namespace zorbin
