// An Obra and a hostile journal beside it.
//
// The bytes: what to do (1), the length of the Obra (2), the Obra,
// the journal. On demand the checksums of the journal are put right first, as told in mdDiario.h,
// so that what lies behind them is reached.
#include <algorithm>
#include <optional>

#include "fuzz/comun.h"
#include "persistencia/disco/mdFicheroSeguro.h"
#include "persistencia/disco/mdRecupera.h"

namespace zorbin::hostil {

namespace {

namespace fs = std::filesystem;

constexpr unsigned kSoloLee = 1;
constexpr unsigned kCuadraSumas = 2;
constexpr unsigned kCuadraResto = 4;
constexpr unsigned kSinObra = 8;

constexpr std::size_t kCabecera = 64;
constexpr std::size_t kRegistro = 272;

// ---- The journal by its description, apart from the code that it is to hold to it

std::uint64_t Numero(std::string_view b, std::size_t lugar, std::size_t bytes) {
  std::uint64_t n = 0;
  for (std::size_t i = bytes; i-- > 0;) n = n << 8 | static_cast<unsigned char>(b[lugar + i]);
  return n;
}

void PonNumero(std::string& b, std::size_t lugar, std::uint64_t n) {
  for (std::size_t i = 0; i < 8; ++i) b[lugar + i] = static_cast<char>(n >> 8 * i & 0xff);
}

std::uint64_t Suma(std::string_view b) {
  std::uint64_t h = 0xcbf29ce484222325;
  const auto mezcla = [&h](std::uint64_t palabra) {
    h = (h ^ palabra) * 0x100000001b3;
    h ^= h >> 32;
  };
  for (; b.size() >= 8; b.remove_prefix(8)) mezcla(Numero(b, 0, 8));
  for (const char c : b) mezcla(static_cast<unsigned char>(c));
  return h;
}

std::size_t Cuenta(std::string_view diario) {
  if (diario.size() < kCabecera) return 0;
  return std::min<std::size_t>(Numero(diario, 12, 4), (diario.size() - kCabecera) / kRegistro);
}

std::uint64_t SumaTotal(std::string_view diario) {
  std::string b(diario.substr(0, kCabecera + Cuenta(diario) * kRegistro));
  PonNumero(b, 40, 0);
  return Suma(b);
}

bool Cuadra(std::string_view d) {
  if (!d.starts_with("ZORDIARI") || d.size() < kCabecera || Cuenta(d) != Numero(d, 12, 4)) {
    return false;
  }
  for (std::size_t i = 0; i < Cuenta(d); ++i) {
    const auto r = d.substr(kCabecera + i * kRegistro, kRegistro);
    if (Numero(r, 8, 8) != Suma(r.substr(16))) return false;
  }
  return Numero(d, 40, 8) == SumaTotal(d);
}

// Sum of the checksums of the records of the Obra that the journal does not name.
std::uint64_t Resto(std::string_view obra, std::string_view diario) {
  std::uint64_t suma = 0;
  for (std::size_t r = 1; (r - 1) * kBytesRegistro < obra.size(); ++r) {
    std::string b(8, '\0');
    PonNumero(b, 0, r);
    b += obra.substr((r - 1) * kBytesRegistro, kBytesRegistro);
    b.resize(8 + kBytesRegistro);
    bool cambia = false;
    for (std::size_t i = 0; i < Cuenta(diario); ++i) {
      cambia = cambia || Numero(diario, kCabecera + i * kRegistro, 4) == r;
    }
    if (!cambia) suma += Suma(b);
  }
  return suma;
}

void CuadraSumas(std::string& d, std::string_view obra, bool resto) {
  if (d.size() < kCabecera) return;
  for (std::size_t i = 0; i < Cuenta(d); ++i) {
    const auto lugar = kCabecera + i * kRegistro;
    PonNumero(d, lugar + 8, Suma(std::string_view(d).substr(lugar + 16, kRegistro - 16)));
  }
  const auto antes = Numero(d, 16, 8);
  if (resto) PonNumero(d, 32, Resto(obra.substr(0, std::min(antes, obra.size())), d));
  PonNumero(d, 40, SumaTotal(d));
}

// ---- What is promised

struct Escena {
  std::string obra;
  std::string diario;
  fs::path rutaObra = Carpeta() / "obra.zrb";
  fs::path rutaDiario = Carpeta() / "obra.zrb-diario";
  fs::path rutaApartado = Carpeta() / "obra.zrb-diario-1";
};

// Each byte is that of the file or the one that the journal says was there before, and the length
// one of the two.
void ExigeDeUnLado(const Escena& x, const std::string& ahora) {
  Exige(ahora.size() == x.obra.size() || ahora.size() == Numero(x.diario, 16, 8),
        "the length is that of before or after");
  std::string antes = x.obra;
  for (std::size_t i = 0; i < Cuenta(x.diario); ++i) {
    const auto r = std::string_view(x.diario).substr(kCabecera + i * kRegistro, kRegistro);
    const auto lugar = (Numero(r, 0, 4) - 1) * kBytesRegistro;
    if (lugar >= antes.size()) continue;
    antes.replace(lugar, kBytesRegistro, r.substr(16, kBytesRegistro));
  }
  antes.resize(ahora.size());
  Exige(ahora == x.obra || ahora == antes, "the file is that of before or after the save");
}

void ExigeObra(const Escena& x, const std::string& ahora) {
  if (!Cuadra(x.diario)) {
    Exige(ahora == x.obra, "a journal that is not whole changes nothing");
  } else if (ahora != x.obra) {
    ExigeDeUnLado(x, ahora);
  }
}

void ExigeNadaTocado(const Escena& x) {
  Exige(Bytes(x.rutaObra) == x.obra && Bytes(x.rutaDiario) == x.diario, "nothing is touched");
  Exige(NombresEnCarpeta().size() == (fs::exists(x.rutaObra) ? 2 : 1), "nothing is added");
}

void ExigeAvisosClaros(const std::vector<Mensaje>& avisos, const fs::path& ruta) {
  for (const auto& aviso : avisos) ExigeClaro(aviso, ruta);
}

void Lee(const Escena& x) {
  try {
    const auto leido = LeeSinEscribir(x.rutaObra);
    ExigeAvisosClaros(leido.avisos, x.rutaObra);
    ExigeObra(x, leido.bytes);
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), x.rutaObra);
  }
  ExigeNadaTocado(x);
}

// Opened once more, and saved: there is nothing left to say or to undo.
void Repite(const Escena& x, const std::string& bytes) {
  Bloque bloque{};
  bloque[0] = 'x';
  {
    FicheroSeguro f(x.rutaObra);
    Exige(f.avisos().empty() && f.contenido() == bytes, "a second opening finds all done");
    f.Graba({{1, bloque}});
  }
  std::string espera = bytes;
  espera.resize(std::max<std::size_t>(espera.size(), kBytesRegistro));
  espera.replace(0, bloque.size(), bloque.data(), bloque.size());
  Exige(Bytes(x.rutaObra) == espera, "it saves");
}

void Abre(const Escena& x) {
  const bool hayObra = fs::exists(x.rutaObra);
  try {
    std::string contenido;
    {
      FicheroSeguro f(x.rutaObra);
      ExigeAvisosClaros(f.avisos(), x.rutaObra);
      contenido = f.contenido();
    }
    ExigeObra(x, contenido);
    Exige(Bytes(x.rutaObra) == contenido, "what is read is what the file holds");
    Exige(!fs::exists(x.rutaDiario), "the journal is out of the way");
    const bool apartado = fs::exists(x.rutaApartado);
    Exige(!apartado || Bytes(x.rutaApartado) == x.diario, "a journal set aside is whole");
    Exige(NombresEnCarpeta().size() == (hayObra ? 1u : 0u) + (apartado ? 1u : 0u),
          "nothing is added");
    Repite(x, contenido);
  } catch (const ErrorFichero& error) {
    ExigeClaro(error.mensaje(), x.rutaObra);
    ExigeNadaTocado(x);
  }
}

}  // namespace

void Prueba(std::string_view datos) {
  if (datos.size() < 3) return;
  const auto modo = static_cast<unsigned char>(datos[0]);
  const std::size_t pedido = Numero(datos, 1, 2);
  datos.remove_prefix(3);
  const std::size_t largo = std::min(pedido, datos.size());
  Escena x{std::string(datos.substr(0, largo)), std::string(datos.substr(largo))};
  if (modo & kSinObra) x.obra.clear();
  if (modo & kCuadraSumas) CuadraSumas(x.diario, x.obra, (modo & kCuadraResto) != 0);
  VaciaCarpeta();
  if (!(modo & kSinObra)) Pon(x.rutaObra, x.obra);
  Pon(x.rutaDiario, x.diario);
  return (modo & kSoloLee) && !(modo & kSinObra) ? Lee(x) : Abre(x);
}

}  // namespace zorbin::hostil
