// A document handed over to a print server: one that is there, one that is not, one that dies.
#include <cups/cups.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstring>
#include <thread>

#include "persistencia/disco/mdDescriptor.h"
#include "shell/impresion/mdColaImpresion.h"

namespace zorbin::prueba {
namespace {

enum Operacion : int { kCreaTrabajo = 5, kMandaDocumento = 6, kMiraCola = 11 };

// An attribute of IPP.
std::string Atributo(char clase, const std::string& nombre, const std::string& valor) {
  const auto con_largo = [](const std::string& t) {
    return std::string{static_cast<char>(t.size() >> 8), static_cast<char>(t.size() & 0xFF)} + t;
  };
  return clase + con_largo(nombre) + con_largo(valor);
}

// Speaks as much of IPP as one job needs, and leaves in the middle of an operation if it is told.
class Servidor {
 public:
  Servidor(const std::string& ruta, int seVaEn) : ruta_(ruta), seVaEn_(seVaEn) {
    oido_ = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un lugar{};
    lugar.sun_family = AF_UNIX;
    std::strncpy(lugar.sun_path, ruta.c_str(), sizeof(lugar.sun_path) - 1);
    EXPECT_EQ(::bind(oido_, reinterpret_cast<const sockaddr*>(&lugar), sizeof lugar), 0);
    EXPECT_EQ(::listen(oido_, 4), 0);
    hilo_ = std::thread([this] { Atiende(); });
  }
  ~Servidor() {
    if (hilo_.joinable()) Cierra();
  }
  Servidor(const Servidor&) = delete;
  Servidor& operator=(const Servidor&) = delete;

  /// @return all that was sent to it
  const std::string& Cierra() {
    ::shutdown(oido_, SHUT_RDWR);
    hilo_.join();
    ::close(oido_);
    ::unlink(ruta_.c_str());
    return pedido_;
  }

 private:
  std::string pedido_;
  std::string ruta_;
  int seVaEn_;
  int oido_ = -1;
  std::thread hilo_;

  void Atiende() {
    for (int n; (n = ::accept(oido_, nullptr, nullptr)) >= 0; ::close(n)) {
      const timeval paciencia{1, 0};
      ::setsockopt(n, SOL_SOCKET, SO_RCVTIMEO, &paciencia, sizeof paciencia);
      while (UnaPeticion(n)) {
      }
    }
  }

  bool Mas(int n, std::string& bytes) {
    char trozo[4096];
    const auto leidos = ::read(n, trozo, sizeof trozo);
    if (leidos <= 0) return false;
    bytes.append(trozo, static_cast<std::size_t>(leidos));
    pedido_.append(trozo, static_cast<std::size_t>(leidos));
    return true;
  }

  // Reads one request and answers it. @return whether the conversation goes on
  bool UnaPeticion(int n) {
    std::string p;
    while (p.find("\r\n\r\n") == std::string::npos) {
      if (!Mas(n, p)) return false;
    }
    Manda(n, "HTTP/1.1 100 Continue\r\n\r\n");
    const auto cuerpo = p.find("\r\n\r\n") + 4;
    const bool aTrozos = p.find("Transfer-Encoding: chunked") != std::string::npos;
    const auto largo = p.find("Content-Length: ");
    const auto entero = [&] {
      if (aTrozos) return p.size() >= cuerpo + 5 && p.ends_with("0\r\n\r\n");
      return p.size() >= cuerpo + std::stoul(p.substr(largo + 16));
    };
    const auto desde = [&] { return aTrozos ? p.find("\r\n", cuerpo) + 2 : cuerpo; };
    while (p.size() < cuerpo + 16) {
      if (!Mas(n, p)) return false;
    }
    const int operacion = p[desde() + 3];
    if (operacion == seVaEn_) return false;
    while (!entero()) {
      if (!Mas(n, p)) return false;
    }
    Contesta(n, p.substr(desde() + 4, 4), operacion);
    return true;
  }

  static void Manda(int n, const std::string& bytes) {
    EXPECT_EQ(::send(n, bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
  }

  void Contesta(int n, const std::string& numero, int operacion) {
    std::string ipp = std::string("\x02\x00\x00\x00", 4) + numero + '\x01' +
                      Atributo('\x47', "attributes-charset", "utf-8") +
                      Atributo('\x48', "attributes-natural-language", "en");
    if (operacion == kCreaTrabajo || operacion == kMandaDocumento) {
      ipp += '\x02' + Atributo('\x21', "job-id", std::string("\0\0\0\x07", 4));
    } else {
      ipp += '\x04' + Atributo('\x42', "printer-name", "Laser") +
             Atributo('\x45', "printer-uri-supported", "ipp://localhost/printers/Laser");
    }
    ipp += '\x03';
    Manda(n,
          "HTTP/1.1 200 OK\r\nConnection: Keep-Alive\r\nContent-Type: application/ipp\r\n"
          "Content-Length: " +
              std::to_string(ipp.size()) + "\r\n\r\n" + ipp);
  }
};

struct Cola : testing::Test {
  QTemporaryDir carpeta;
  std::string servidor = carpeta.filePath("cups.sock").toStdString();
  TrabajoImpresion trabajo{"Laser", "acequia\nNormal", carpeta.filePath("l.pdf").toStdString(), 3,
                           true};

  void SetUp() override {
    QFile f(carpeta.filePath("l.pdf"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray("%PDF-1.4 ").append(400'000, 'x').append(" lo ultimo"));
    cupsSetServer(servidor.c_str());
  }
  void TearDown() override { cupsSetServer(nullptr); }

  std::string Entrega() const {
    try {
      EntregaACola(trabajo);
      return "";
    } catch (const ErrorImpresora& error) {
      EXPECT_EQ(error.impresora(), "Laser");
      EXPECT_STRNE(error.what(), "");
      return error.what();
    }
  }
};

TEST_F(Cola, LlegaEnteroConSuNombreYSusCopias) {
  Servidor s(servidor, 0);
  EXPECT_EQ(Entrega(), "");
  const auto& pedido = s.Cierra();
  for (const auto& trozo :
       {std::string(" lo ultimo"), Atributo('\x42', "job-name", "acequia Normal"),
        Atributo('\x21', "copies", std::string("\0\0\0\x03", 4))}) {
    EXPECT_NE(pedido.find(trozo), std::string::npos) << trozo;
  }
}

// It is asked for the queue, given a job, and given the document.
TEST_F(Cola, UnServidorQueNoEstaOSeVaEnCualquierMomentoSeDice) {
  EXPECT_NE(Entrega(), "");
  for (const int operacion : {kMiraCola, kCreaTrabajo, kMandaDocumento}) {
    const Servidor s(servidor, operacion);
    const auto causa = Entrega();
    EXPECT_NE(causa, "") << operacion;
    EXPECT_NE(causa, TextoDeCausa(0)) << operacion;
  }
  Servidor s(servidor, 0);
  EXPECT_EQ(Entrega(), "");  // and the next one prints
}

}  // namespace
}  // namespace zorbin::prueba
