#include "shell/impresion/mdColaImpresion.h"

#include <cups/cups.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "persistencia/disco/mdDescriptor.h"

namespace zorbin {

namespace {

constexpr int kEspera = 30;              // without a word of the server [s]
constexpr std::size_t kMaxTitulo = 255;  // bytes of the name of a job
constexpr char kFormato[] = "application/pdf";

struct CierraConexion {
  void operator()(http_t* c) const { httpClose(c); }
};
using Conexion = std::unique_ptr<http_t, CierraConexion>;

struct SueltaDestino {
  void operator()(cups_dest_t* d) const { cupsFreeDests(1, d); }
};
using Destino = std::unique_ptr<cups_dest_t, SueltaDestino>;

// The options of a job, those of its queue to begin with.
class Opciones {
 public:
  explicit Opciones(const cups_dest_t& destino) {
    for (int i = 0; i < destino.num_options; ++i) {
      Pon(destino.options[i].name, destino.options[i].value);
    }
  }
  ~Opciones() { cupsFreeOptions(cuantas_, lista_); }
  Opciones(const Opciones&) = delete;
  Opciones& operator=(const Opciones&) = delete;

  void Pon(const char* nombre, const char* valor) {
    cuantas_ = cupsAddOption(nombre, valor, cuantas_, &lista_);
  }
  int cuantas() const { return cuantas_; }
  cups_option_t* lista() const { return lista_; }

 private:
  int cuantas_ = 0;
  cups_option_t* lista_ = nullptr;
};

Conexion Conecta() {
  Conexion conexion(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 kEspera * 1000, nullptr));
  if (conexion) {
    httpSetTimeout(
        conexion.get(), kEspera, [](http_t*, void*) { return 0; }, nullptr);
  }
  return conexion;
}

// No control codes, and not cut within a letter.
std::string Titulo(std::string titulo) {
  std::replace_if(
      titulo.begin(), titulo.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
  if (titulo.size() <= kMaxTitulo) return titulo;
  std::size_t fin = kMaxTitulo;
  while (fin > 0 && (static_cast<unsigned char>(titulo[fin]) & 0xC0) == 0x80) --fin;
  titulo.resize(fin);
  return titulo;
}

Destino Busca(http_t* conexion, const std::string& impresora) {
  const auto barra = impresora.find('/');
  const std::string cola = impresora.substr(0, barra);
  const std::string instancia =
      barra == std::string::npos ? std::string() : impresora.substr(barra + 1);
  return Destino(
      cupsGetNamedDest(conexion, cola.c_str(), instancia.empty() ? nullptr : instancia.c_str()));
}

// A server that hangs up leaves no error behind.
std::string UltimaCausa() {
  const std::string causa = cupsLastErrorString();
  return causa.empty() || causa == TextoDeCausa(0) ? TextoDeCausa(ECONNRESET) : causa;
}

}  // namespace

void EntregaACola(const TrabajoImpresion& trabajo) {
  const auto falla = [&trabajo] { throw ErrorImpresora(trabajo.impresora, UltimaCausa()); };
  const Conexion conexion = Conecta();
  if (!conexion) falla();
  const Destino destino = Busca(conexion.get(), trabajo.impresora);
  if (!destino) falla();
  Opciones opciones(*destino);
  opciones.Pon("copies", std::to_string(trabajo.copias).c_str());
  // On a smaller paper the whole sheet is made smaller, so that no line is lost.
  opciones.Pon("print-scaling", "auto-fit");
  if (trabajo.enA4) opciones.Pon("media", "iso_a4_210x297mm");
  opciones.Pon("document-format", kFormato);
  const int numero =
      cupsPrintFile2(conexion.get(), destino->name, trabajo.fichero.c_str(),
                     Titulo(trabajo.titulo).c_str(), opciones.cuantas(), opciones.lista());
  if (numero <= 0) falla();
}

}  // namespace zorbin
