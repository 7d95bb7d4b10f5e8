// Two programs and one file.
#include "persistencia/disco/mdCerrojo.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "base/textos.h"
#include "comun/grabadoRoto.h"
#include "persistencia/registros/mdRegistros.h"

namespace zorbin {
namespace {

namespace fs = std::filesystem;
using Modo = FicheroRegistros::Modo;

int SinCerrojos(int, int) {
  errno = ENOLCK;
  return -1;
}

class ConCerrojos : public testing::Test {
 protected:
  fs::path carpeta =
      fs::canonical(fs::temp_directory_path()) / ("zorbin-cerrojo-" + std::to_string(::getpid()));
  fs::path ruta = carpeta / "obra.zrb";
  Catalogo textos = Catalogo::Lee(ZORBIN_FUENTES "recursos/textos");

  void SetUp() override {
    fs::create_directories(carpeta);
    FicheroRegistros f(ruta, Modo::LecturaEscritura);
    f.EscribeRegistro(1, "uno");
    f.Vacia();
  }
  void TearDown() override { fs::remove_all(carpeta); }

  // Another program with the file open, until it is killed.
  pid_t OtroPrograma(PideCerrojo pide = CerrojoDelSistema) const {
    std::array<int, 2> tubo{};
    EXPECT_EQ(::pipe(tubo.data()), 0);
    const pid_t hijo = ::fork();
    if (hijo == 0) {
      const FicheroRegistros f(ruta, Modo::LecturaEscritura, pide);
      if (::write(tubo[1], "x", 1) == 1) ::pause();
      ::_exit(0);
    }
    char letra = 0;
    EXPECT_EQ(::read(tubo[0], &letra, 1), 1);
    ::close(tubo[0]);
    ::close(tubo[1]);
    return hijo;
  }
  static void Mata(pid_t hijo) {
    ::kill(hijo, SIGKILL);
    ::waitpid(hijo, nullptr, 0);
  }

  std::optional<SoloParaLeer> Negativa(PideCerrojo pide = CerrojoDelSistema) const {
    try {
      const FicheroRegistros f(ruta, Modo::LecturaEscritura, pide);
      return std::nullopt;
    } catch (const SoloParaLeer& error) {
      return error;
    }
  }
};

TEST_F(ConCerrojos, AlSegundoSeLeDiceQuienLoTieneYPuedeLeer) {
  const pid_t otro = OtroPrograma();
  const auto no = Negativa();
  ASSERT_TRUE(no);
  EXPECT_EQ(no->motivo(), SoloParaLeer::Motivo::Ocupado);
  ASSERT_TRUE(no->titular());
  EXPECT_EQ(no->titular()->proceso, otro);
  for (std::int16_t idioma = 1; idioma <= 5; ++idioma) {
    textos.PonIdioma(idioma);
    const std::string texto = textos.Compone(no->mensaje());
    for (const std::string& dato : {ruta.string(), no->titular()->usuario, no->titular()->equipo,
                                    std::to_string(otro), no->titular()->desde}) {
      EXPECT_NE(texto.find(dato), std::string::npos) << texto;
    }
  }
  FicheroRegistros f(ruta, Modo::Lectura);
  EXPECT_TRUE(f.SoloLectura());
  EXPECT_EQ(f.LeeRegistro(1), "uno");
  EXPECT_THROW(f.EscribeRegistro(1, "dos"), ErrorFichero);
  Mata(otro);
  EXPECT_FALSE(Negativa());  // what a dead process had is nobody's
  fs::remove(ruta);
  EXPECT_TRUE(fs::is_empty(carpeta));
}

TEST_F(ConCerrojos, SinCerrojosSeDiceYLaMarcaHaceLoQuePuede) {
  {
    const FicheroRegistros f(ruta, Modo::LecturaEscritura, SinCerrojos);
    EXPECT_FALSE(f.ConCerrojo());
    ASSERT_EQ(f.avisos().size(), 1u);
    EXPECT_EQ(f.avisos()[0].texto, txt::SinCerrojos);
  }
  const pid_t otro = OtroPrograma(SinCerrojos);
  const auto no = Negativa(SinCerrojos);
  ASSERT_TRUE(no && no->titular());
  EXPECT_EQ(no->titular()->proceso, otro);
  Mata(otro);
  EXPECT_TRUE(LeeMarca(ruta));  // it stays behind
  EXPECT_FALSE(Negativa(SinCerrojos));
  pruebas::PonBytes(RutaMarca(ruta), TextoMarca({"ana", "otra-maquina", "1/2/2026 9:30", 7, 8}));
  const FicheroRegistros f(ruta, Modo::LecturaEscritura, SinCerrojos);
  ASSERT_EQ(f.avisos().size(), 1u);
  EXPECT_EQ(f.avisos()[0].texto, txt::SinCerrojosYMarca);
  EXPECT_NE(textos.Compone(f.avisos()[0]).find("ana"), std::string::npos);
}

// The lock says that somebody has it, and the mark is not theirs.
TEST_F(ConCerrojos, UnaMarcaViejaNoDaUnNombreFalso) {
  const pid_t otro = OtroPrograma();
  auto titular = EsteTitular();
  titular.arranque += 1;  // the number of a process that was another one
  for (const std::string& marca : {TextoMarca(titular), std::string("una carta"), std::string()}) {
    pruebas::PonBytes(RutaMarca(ruta), marca);
    const auto no = Negativa();
    ASSERT_TRUE(no);
    EXPECT_FALSE(no->titular());
    EXPECT_EQ(no->mensaje().texto, txt::OcupadoPorAlguien);
  }
  Mata(otro);
}

TEST_F(ConCerrojos, LaMarcaSeLeeConDesconfianza) {
  const Titular t{"ana\nlucía", "equipo\x1b[2J", "21/11/2026 09:30", 1234, 5678};
  const auto leido = LeeTextoMarca(TextoMarca(t));
  ASSERT_TRUE(leido);
  EXPECT_EQ(leido->usuario, "ana lucía");
  EXPECT_EQ(leido->equipo, "equipo [2J");
  EXPECT_EQ(leido->arranque, 5678u);
  const auto roto =
      LeeTextoMarca("ZORBIN 1\nana\xff\xc2\x9b\n" + std::string(200, '\xe9') + "\n\n1\n5\n");
  ASSERT_TRUE(roto);
  EXPECT_EQ(roto->usuario, "ana\ufffd\\x9B");
  EXPECT_EQ(roto->equipo.size(), 126u);  // whole characters only
  EXPECT_EQ(LeeTextoMarca(TextoMarca(*roto))->equipo, roto->equipo);
  for (const char* malo : {"ZORBIN 1\na\nb\nc\n12\n", "ZORBIN 1\na\nb\nc\n-1\n5\n",
                           "ZORBIN 1\na\nb\nc\n1x\n5\n", "ZORBIN 2\na\nb\nc\n1\n5\n"}) {
    EXPECT_FALSE(LeeTextoMarca(malo)) << malo;
  }
  fs::create_symlink("/etc/passwd", RutaMarca(ruta));
  EXPECT_FALSE(LeeMarca(ruta));
  EXPECT_FALSE(Negativa());  // no mark can be made: the file opens all the same
  EXPECT_TRUE(fs::is_symlink(RutaMarca(ruta)));
  EXPECT_TRUE(SigueVivo(EsteTitular()));

  // One that is gone, and of which its parent has not yet taken notice.
  std::array<int, 2> tubo{};
  ASSERT_EQ(::pipe(tubo.data()), 0);
  const pid_t hijo = ::fork();
  if (hijo == 0) {
    const std::string texto = TextoMarca(EsteTitular());
    ::_exit(::write(tubo[1], texto.data(), texto.size()) > 0 ? 0 : 1);
  }
  ::close(tubo[1]);
  std::array<char, 512> bytes{};
  const auto n = ::read(tubo[0], bytes.data(), bytes.size());
  siginfo_t fin{};
  ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(hijo), &fin, WEXITED | WNOWAIT), 0);
  const auto muerto = LeeTextoMarca({bytes.data(), static_cast<std::size_t>(n)});
  ASSERT_TRUE(muerto.has_value());
  EXPECT_FALSE(SigueVivo(*muerto));
  ::waitpid(hijo, nullptr, 0);
  ::close(tubo[0]);
}

}  // namespace
}  // namespace zorbin
