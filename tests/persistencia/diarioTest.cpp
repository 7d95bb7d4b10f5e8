// What an opening makes of a journal found beside a file, and what a save does where it can't go
// on.
#include "persistencia/disco/mdDiario.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <set>

#include "base/textos.h"
#include "comun/grabadoRoto.h"
#include "comun/sinDerechos.h"
#include "persistencia/registros/mdRegistros.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using pruebas::BloqueDe;
using pruebas::Bytes;
using pruebas::DejaAMedias;
using pruebas::PonBytes;
using Estado = DiarioLeido::Estado;
using Modo = FicheroRegistros::Modo;

std::string Texto(const Bloque& b) {
  return {b.data(), b.size()};
}

class ConDiario : public testing::Test {
 protected:
  const pruebas::Carpeta propia;
  const fs::path& carpeta = propia.ruta();
  fs::path ruta = carpeta / "obra.zrb";
  fs::path diario = RutaDiario(ruta);
  // Three records and a piece of a fourth.
  std::string antes = Texto(BloqueDe("uno")) + Texto(BloqueDe("dos")) + Texto(BloqueDe("tres")) +
                      std::string("\3\0cua y lo que sigue", 20);
  const Bloques cambio{{2, BloqueDe("DOS")}, {4, BloqueDe("CUATRO")}, {7, BloqueDe("SIETE")}};

  void SetUp() override { PonBytes(ruta, antes); }

  // Entry of the refusal; 0 when there is none.
  template <class Accion>
  static int Rechazo(Accion accion) {
    try {
      accion();
      return 0;
    } catch (const ErrorFichero& error) {
      return error.mensaje().texto;
    }
  }
  int RechazoDeAbrir(Modo modo = Modo::LecturaEscritura) const {
    return Rechazo([&] { FicheroRegistros(ruta, modo); });
  }
  static int RechazoDeGrabar(FicheroRegistros& f) {
    return Rechazo([&] {
      f.EscribeRegistro(1, "otro");
      f.Vacia();
    });
  }
  std::vector<int> Avisos(Modo modo) const {
    std::vector<int> textos;
    const FicheroRegistros f(ruta, modo);
    for (const auto& aviso : f.avisos()) textos.push_back(aviso.texto);
    return textos;
  }
};

using Numeros = std::vector<int>;

TEST_F(ConDiario, LosBytesSonLosQueDiceSuForma) {
  const Cambios c = CalculaCambios(antes, antes.size(), cambio);
  const std::string bytes = BytesDiario(c);
  EXPECT_EQ(bytes.size(), 64u + 3 * 272);
  EXPECT_EQ(bytes.substr(0, 16), std::string("ZORDIARI\1\0\0\0\3\0\0\0", 16));
  EXPECT_EQ(static_cast<unsigned char>(bytes[16]), (3 * 128 + 20) & 0xff);
  EXPECT_EQ(static_cast<unsigned char>(bytes[17]), (3 * 128 + 20) >> 8);
  EXPECT_EQ(bytes.substr(24, 2), std::string("\x80\x03", 2));  // 7 records
  EXPECT_EQ(bytes[64], 2);
  EXPECT_EQ(bytes.substr(64 + 16, 128), Texto(BloqueDe("dos")));
  EXPECT_EQ(bytes.substr(64 + 16 + 128, 128), Texto(BloqueDe("DOS")));
  const auto leido = InterpretaDiario(bytes + std::string(1000, 'x'));
  ASSERT_EQ(leido.estado, Estado::Completo);
  EXPECT_EQ(leido.cambios.registros.size(), 3u);
  EXPECT_EQ(BytesDiario(leido.cambios), bytes);
}

TEST_F(ConDiario, UnByteCambiadoOUnFinalPerdidoLoHacenInutil) {
  const std::string bytes = BytesDiario(CalculaCambios(antes, antes.size(), cambio));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    EXPECT_NE(InterpretaDiario(bytes.substr(0, i)).estado, Estado::Completo) << i;
    std::string roto = bytes;
    roto[i] = static_cast<char>(roto[i] ^ 0x21);
    EXPECT_NE(InterpretaDiario(roto).estado, Estado::Completo) << i;
  }
  for (std::size_t i = 1; i < 8; ++i) {  // half made, or half void
    EXPECT_EQ(InterpretaDiario(bytes.substr(0, i)).estado, Estado::Nulo);
    EXPECT_EQ(InterpretaDiario(std::string(i, '\0') + bytes.substr(i)).estado, Estado::Nulo);
  }
  EXPECT_EQ(InterpretaDiario("una carta").estado, Estado::Ajeno);
}

TEST_F(ConDiario, LoAMediasSeDeshaceHastaElUltimoByte) {
  for (int escritos = 0; escritos <= 2; ++escritos) {
    PonBytes(ruta, antes);
    DejaAMedias(ruta, cambio, escritos);
    EXPECT_EQ(Avisos(Modo::LecturaEscritura), Numeros{txt::LoAMediasDeshecho}) << escritos;
    EXPECT_EQ(Bytes(ruta), antes) << escritos;
    EXPECT_FALSE(fs::exists(diario));
  }
  DejaAMedias(ruta, cambio, 3);  // it came to its end
  const std::string despues = Bytes(ruta);
  EXPECT_EQ(Avisos(Modo::LecturaEscritura), Numeros{});
  EXPECT_EQ(Bytes(ruta), despues);
  EXPECT_FALSE(fs::exists(diario));
}

TEST_F(ConDiario, QuienSoloLeeVeLoDeAntesYNoTocaNada) {
  DejaAMedias(ruta, cambio, 2);
  const std::string roto = Bytes(ruta);
  const FicheroRegistros f(ruta, Modo::Lectura);
  EXPECT_EQ(f.LeeRegistro(2), "dos");
  EXPECT_EQ(f.LeeRegistro(4), "cua");
  EXPECT_EQ(f.UltimoRegistro(), 4);
  EXPECT_EQ(Avisos(Modo::Lectura), Numeros{txt::LeidoComoAntes});
  EXPECT_EQ(Bytes(ruta), roto);
  EXPECT_TRUE(fs::exists(diario));
  // Whoever saves at this moment has the lock, and nothing has broken off.
  Descriptor otro;
  ASSERT_EQ(AbreFichero(otro, ruta, 2), 0);
  ASSERT_EQ(TomaCerrojo(otro), Cerrojo::Tomado);
  EXPECT_EQ(Avisos(Modo::Lectura), Numeros{});
}

// A copy of security put in the place of the file, or a file that others went on working with.
TEST_F(ConDiario, ElDiarioDeOtroFicheroNoSeAplicaYSeAparta) {
  const std::vector<std::string> otros{
      Texto(BloqueDe("UNO")) + antes.substr(128),  // what stays is not the same
      antes.substr(0, 128) + Texto(BloqueDe("2")) + antes.substr(256),       // nor what changes
      antes.substr(0, 300), antes + std::string(2000, ' '), std::string()};  // nor the length
  for (const auto& otro : otros) {
    PonBytes(ruta, antes);
    DejaAMedias(ruta, cambio, 1);
    const std::string bytes = Bytes(diario);
    PonBytes(ruta, otro);
    EXPECT_EQ(Avisos(Modo::Lectura), Numeros{txt::DiarioAjenoLeido});
    EXPECT_EQ(Avisos(Modo::LecturaEscritura), Numeros{txt::DiarioAjeno});
    EXPECT_EQ(Bytes(ruta), otro);
    EXPECT_FALSE(fs::exists(diario));
    EXPECT_EQ(Bytes(diario.string() + "-1"), bytes);
    fs::remove(diario.string() + "-1");
  }
}

TEST_F(ConDiario, FicheroYDiarioSeMudanJuntos) {
  DejaAMedias(ruta, cambio, 1);
  const auto otra = carpeta / "otra.zrb";
  fs::copy(ruta, otra);
  fs::copy(diario, RutaDiario(otra));
  ruta = otra;
  EXPECT_EQ(Avisos(Modo::LecturaEscritura), Numeros{txt::LoAMediasDeshecho});
  EXPECT_EQ(Bytes(otra), antes);
}

TEST_F(ConDiario, PorUnEnlaceSeLlegaAlMismoDiario) {
  DejaAMedias(ruta, cambio, 1);
  const auto enlace = carpeta / "enlace.zrb";
  fs::create_symlink(ruta, enlace);
  EXPECT_EQ(FicheroRegistros(enlace, Modo::Lectura).LeeRegistro(2), "dos");
  FicheroRegistros f(enlace, Modo::LecturaEscritura);
  EXPECT_EQ(f.avisos().size(), 1u);
  EXPECT_EQ(f.Nombre(), enlace.string());
  EXPECT_EQ(RechazoDeGrabar(f), 0);
  EXPECT_TRUE(fs::exists(diario));  // void, as long as the file is open
  EXPECT_TRUE(fs::is_symlink(enlace));
  EXPECT_EQ(Bytes(ruta).substr(2, 4), "otro");
}

TEST_F(ConDiario, LoQueNoSeEntiendeOImpideLeerloSeRechazaSinTocarlo) {
  DejaAMedias(ruta, cambio, 1);
  const std::string roto = Bytes(ruta);
  std::string nuevo = Bytes(diario);
  nuevo[8] = 2;  // of a later version
  PonBytes(diario, nuevo);
  for (const Modo modo : {Modo::Lectura, Modo::LecturaEscritura}) {
    EXPECT_EQ(RechazoDeAbrir(modo), txt::DiarioMasNuevo);
  }
  fs::rename(ruta, carpeta / "otra.zrb");
  EXPECT_EQ(RechazoDeAbrir(), txt::DiarioMasNuevo);
  EXPECT_FALSE(fs::exists(ruta.string() + "-nuevo"));  // what was begun is gone
  fs::rename(carpeta / "otra.zrb", ruta);
  fs::remove(diario);
  fs::create_symlink("/etc/passwd", diario);
  EXPECT_EQ(RechazoDeAbrir(), txt::DiarioIlegible);
  fs::remove(diario);
  fs::create_directory(diario);
  EXPECT_EQ(RechazoDeAbrir(), txt::DiarioIlegible);
  fs::remove(diario);
  ASSERT_EQ(::mkfifo(diario.c_str(), 0600), 0);
  EXPECT_EQ(RechazoDeAbrir(), txt::DiarioIlegible);  // and it does not wait for a writer
  EXPECT_EQ(Bytes(ruta), roto);
}

// A pipe in the place of a file: one that nobody writes into is at its end, not waited for.
TEST_F(ConDiario, UnaTuberiaSeLeeYSinNadieEnElOtroExtremoNoSeEspera) {
  fs::remove(ruta);
  ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
  EXPECT_EQ(FicheroRegistros(ruta, Modo::Lectura).UltimoRegistro(), 0);
  const Descriptor salida(::open(ruta.c_str(), O_RDWR));
  const pid_t otro = ::fork();
  if (otro == 0) {
    for (const char c : antes) {  // slowly at first, so that the reader has to wait
      if (::write(salida.numero(), &c, 1) != 1) ::_exit(1);
      if (&c == antes.data()) ::usleep(50'000);
    }
    ::_exit(0);
  }
  std::string bytes;
  Descriptor entrada(::open(ruta.c_str(), O_RDONLY | O_NONBLOCK));
  EXPECT_EQ(LeeBytes(entrada, antes.size(), bytes), 0);
  EXPECT_EQ(bytes, antes);
  ::waitpid(otro, nullptr, 0);
}

TEST_F(ConDiario, UnFicheroNuevoTomaSuNombreAlGrabarseYNoUnDiarioViejo) {
  DejaAMedias(ruta, cambio, 1);
  fs::remove(ruta);
  PonBytes(ruta.string() + "-nuevo", std::string(9999, 'x'));  // longer than what comes
  {
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    EXPECT_EQ(f.avisos().at(0).texto, txt::DiarioAjeno);
    EXPECT_FALSE(fs::exists(ruta));
    EXPECT_EQ(RechazoDeAbrir(), txt::OcupadoPor);  // the name is spoken for
    EXPECT_EQ(RechazoDeGrabar(f), 0);
    EXPECT_EQ(Bytes(ruta), Texto(BloqueDe("otro")));
  }
  fs::remove(ruta);
  {
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    PonBytes(ruta, "de otro programa");
    EXPECT_EQ(RechazoDeGrabar(f), txt::NombreYaTomado);
  }
  EXPECT_EQ(Bytes(ruta), "de otro programa");
  fs::remove(ruta);
  { const FicheroRegistros f(ruta, Modo::LecturaEscritura); }
  fs::remove(diario.string() + "-1");
  EXPECT_TRUE(fs::is_empty(carpeta));
}

TEST_F(ConDiario, NoSeEscribeSobreLoQueOtroHaCambiado) {
  FicheroRegistros f(ruta, Modo::LecturaEscritura);
  PonBytes(ruta, antes + "x");
  EXPECT_EQ(RechazoDeGrabar(f), txt::CambiadoPorOtro);
  PonBytes(ruta, antes);
  EXPECT_EQ(RechazoDeGrabar(f), 0);
  const std::string grabado = Bytes(ruta);
  fs::rename(ruta, carpeta / "movida");
  EXPECT_EQ(RechazoDeGrabar(f), txt::YaNoEsta);
  PonBytes(ruta, grabado);  // another file of the same name
  EXPECT_EQ(RechazoDeGrabar(f), txt::YaNoEsta);
  fs::rename(carpeta / "movida", ruta);
  EXPECT_EQ(RechazoDeGrabar(f), 0);
}

// Whatever is put in the place of the journal while the file is open, the next save makes it anew;
// what may be of somebody's is set aside.
TEST_F(ConDiario, ElDiarioQueYaNoEstaSeHaceDeNuevo) {
  const fs::path aparte = diario.string() + "-1";
  struct Caso {
    const char* nombre;
    std::function<void()> pone;
    bool seAparta;
  };
  for (const auto& [nombre, pone, seAparta] : std::vector<Caso>{
           {"nothing", [] {}, false},
           {"a copy of itself", [&] { fs::copy_file(carpeta / "guardado", diario); }, false},
           {"of another", [&] { PonBytes(diario, "de otro"); }, true},
           {"of a save", [&] { PonBytes(diario, BytesDiario(CalculaCambios(antes, 404, cambio))); },
            true},
           {"a link", [&] { fs::create_symlink(ruta, diario); }, true},
           {"a folder", [&] { fs::create_directory(diario); }, true}}) {
    SCOPED_TRACE(nombre);
    PonBytes(ruta, antes);
    fs::permissions(ruta, static_cast<fs::perms>(0600));
    {
      FicheroRegistros f(ruta, Modo::LecturaEscritura);
      f.EscribeRegistro(3, "tercero");
      f.Vacia();
      fs::rename(diario, carpeta / "guardado");
      pone();
      EXPECT_EQ(RechazoDeGrabar(f), 0);
      EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(diario)));
      EXPECT_EQ(fs::status(diario).permissions(), fs::status(ruta).permissions());
      f.EscribeRegistro(3, "cuarto");
      EXPECT_EQ(Rechazo([&] { f.Vacia(); }), 0);
    }
    EXPECT_EQ(fs::exists(fs::symlink_status(aparte)), seAparta);
    EXPECT_FALSE(fs::exists(diario));
    EXPECT_EQ(FicheroRegistros(ruta, Modo::Lectura).LeeRegistro(3), "cuarto");
    fs::remove(aparte);
    fs::remove(carpeta / "guardado");
  }
}

// Programs that were killed before the first save of a new file, and one that is about to do it.
TEST_F(ConDiario, LoQueDejaUnGrabadoQueNoFueSeRecogeAlAbrirOtroFichero) {
  const auto deja = [this](const fs::path& fichero) {
    const pid_t hijo = ::fork();
    if (hijo == 0) {
      const FicheroRegistros f(fichero, Modo::LecturaEscritura);
      ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(hijo, nullptr, 0);
    EXPECT_TRUE(fs::exists(fichero.string() + "-nuevo"));
  };
  deja(carpeta / "muerta.zrb");
  PonBytes(carpeta / "carta-nuevo", "de otro");
  const FicheroRegistros viva(carpeta / "viva.zrb", Modo::LecturaEscritura);
  { const FicheroRegistros f(ruta, Modo::LecturaEscritura); }
  std::set<std::string> quedan;
  for (const auto& f : fs::directory_iterator(carpeta)) quedan.insert(f.path().filename().string());
  EXPECT_EQ(quedan,
            (std::set<std::string>{"carta-nuevo", "obra.zrb", "viva.zrb-nuevo", "viva.zrb-uso"}));
}

TEST_F(ConDiario, SoloEnFicherosCorrientes) {
  EXPECT_EQ(Rechazo([] { FicheroRegistros("/dev/null", Modo::LecturaEscritura); }),
            txt::NoEsCorriente);
  fs::remove(ruta);
  ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
  EXPECT_EQ(RechazoDeAbrir(), txt::NoEsCorriente);
  EXPECT_EQ(Rechazo([&] { FicheroRegistros(carpeta, Modo::LecturaEscritura); }), txt::NoSeAbre);
}

TEST_F(ConDiario, UnaTransaccionSinConfirmarNoDejaNadaYUnaDentroDeOtraVaConElla) {
  FicheroRegistros f(ruta, Modo::LecturaEscritura);
  {
    Transaccion fuera(f);
    f.EscribeRegistro(1, "fuera");
    {
      Transaccion dentro(f);
      f.EscribeRegistro(2, "dentro");
      f.EscribeRegistro(9, "lejos");
      EXPECT_EQ(f.LeeRegistro(2), "dentro");
      EXPECT_EQ(f.UltimoRegistro(), 9);
    }
    EXPECT_EQ(f.LeeRegistro(2), "dos");
    {
      Transaccion dentro(f);
      f.EscribeRegistro(3, "confirmado");
      dentro.Confirma();
      f.Vacia();
    }
    EXPECT_EQ(Bytes(ruta), antes);
  }
  EXPECT_EQ(f.LeeRegistro(1), "uno");
  EXPECT_EQ(f.LeeRegistro(3), "tres");
  EXPECT_EQ(f.UltimoRegistro(), 4);
  f.Vacia();
  EXPECT_EQ(Bytes(ruta), antes);
  EXPECT_FALSE(fs::exists(diario));  // nothing to write, nothing to protect
  f.EscribeRegistro(2, "dos");
  f.Vacia();
  EXPECT_FALSE(fs::exists(diario));
}

TEST_F(ConDiario, SinPermisosSeDiceYNoSeTocaNada) {
  fs::permissions(ruta, static_cast<fs::perms>(0666));
  fs::permissions(carpeta, static_cast<fs::perms>(0555));
  {
    const pruebas::SinDerechos sinDerechos;
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    ASSERT_EQ(f.avisos().size(), 1u);
    EXPECT_EQ(f.avisos()[0].texto, txt::CarpetaCerrada);
    EXPECT_EQ(RechazoDeGrabar(f), txt::SinDiario);
  }
  fs::permissions(carpeta, static_cast<fs::perms>(0777));
  {
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    fs::permissions(ruta, static_cast<fs::perms>(0444));  // meanwhile
    const pruebas::SinDerechos sinDerechos;
    EXPECT_EQ(RechazoDeGrabar(f), txt::NadaGrabado);
  }
  const pruebas::SinDerechos sinDerechos;
  EXPECT_EQ(RechazoDeAbrir(), txt::SinPermiso);
  EXPECT_EQ(FicheroRegistros(ruta, Modo::Lectura).LeeRegistro(1), "uno");
  EXPECT_EQ(Bytes(ruta), antes);
}

// A program that reads while another saves without pause sees whole saves.
TEST_F(ConDiario, QuienLeeMientrasOtroGrabaVeGrabadosEnteros) {
  const auto graba = [&](FicheroRegistros& f, int vez) {
    for (int r = 1; r <= 60; r += 3) f.EscribeRegistro(r, std::to_string(vez % 10));
    f.Vacia();
  };
  {
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    graba(f, 0);
  }
  const pid_t hijo = ::fork();
  if (hijo == 0) {
    Rechazo([&] {
      FicheroRegistros f(ruta, Modo::LecturaEscritura);
      for (int vez = 0;; ++vez) graba(f, vez);
    });
    ::_exit(1);
  }
  int grabados = 0, rotos = 0, avisos = 0;
  std::string anterior;
  const int rechazo = Rechazo([&] {
    for (int i = 0; i < 20000 && grabados < 20; ++i) {
      const FicheroRegistros f(ruta, Modo::Lectura);
      const std::string texto = f.LeeRegistro(1);
      for (int r = 1; r <= 60; r += 3) rotos += f.LeeRegistro(r) != texto;
      avisos += static_cast<int>(f.avisos().size());
      grabados += texto != anterior;
      anterior = texto;
    }
  });
  ::kill(hijo, SIGKILL);
  ::waitpid(hijo, nullptr, 0);
  EXPECT_EQ(rechazo, 0);
  EXPECT_EQ(grabados, 20);
  EXPECT_EQ(rotos, 0);
  EXPECT_EQ(avisos, 0);
}

}  // namespace
}  // namespace zorbin
