#include "persistencia/documentos/mdRtf.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "comun/carpeta.h"

namespace zorbin {
namespace {

std::string Cuerpo(const std::string& cuerpo) {
  return "{\\rtf1\\ansi\\deff0" + cuerpo + "}";
}

DocumentoRtf Lee(const std::string& cuerpo) {
  return InterpretaRtf(Cuerpo(cuerpo), "prueba");
}

// All paragraphs, each ended by "|".
std::string Texto(const DocumentoRtf& d) {
  std::string texto;
  for (const auto& p : d.parrafos) {
    for (const auto& t : p.trozos) texto += t.texto;
    texto += "|";
  }
  return texto;
}

std::string Texto(const std::string& cuerpo) {
  return Texto(Lee(cuerpo));
}

TEST(Rtf, CaracteresPorByteUnicodeYNombre) {
  EXPECT_EQ(Texto("Instrucci\\'f3n \\'80\\'D1"), "Instrucción €Ñ|");
  EXPECT_EQ(Texto("\xf1\xe9 crudo"), "ñé crudo|");
  EXPECT_EQ(Texto("\\u8364?x\\u8804 \\'3cy"), "€x≤y|");
  EXPECT_EQ(Texto("\\uc0\\u960x{\\uc2\\u960 ab}\\u960c"), "πxππc|");
  EXPECT_EQ(Texto("\\u960\\endash x"), "πx|");  // a word counts as one character
  EXPECT_EQ(Texto("\\u960{x}"), "πx|");         // a brace ends the characters that stand for it
  EXPECT_EQ(Texto("\\u-10179?\\u-8704?"), "\xf0\x9f\x98\x80|");
  EXPECT_EQ(Texto("a\\u-10179?b"), "a\ufffdb|");
  EXPECT_EQ(Texto("\\u-10179?\\par"), "\ufffd|");
  EXPECT_EQ(Texto("\\u-8704?\\'81"), "\ufffd\ufffd|");
  EXPECT_EQ(Texto("\\bullet\\endash\\emdash\\lquote\\rquote\\ldblquote\\rdblquote"), "•–—‘’“”|");
  EXPECT_EQ(Texto("a\\~b\\-c\\_d\\{\\}\\\\"), "a\u00a0b\u00adc\u2011d{}\\|");
  EXPECT_EQ(Texto("a\\tab b\\line\nc"), "a\tb\nc|");
  EXPECT_EQ(Texto("a\\u0?\\u7?\\'00\\'07\\'7f\\'9cb"), "aœb|");
}

TEST(Rtf, ParrafosYSuCaja) {
  const auto d =
      Lee("\\qc uno\\par\\pard dos\n\\par\\par{\\qr tres\\par}\\qj\\li720\\fi-360\\sb40\\sa60 a");
  EXPECT_EQ(Texto(d), "uno|dos||tres|a|");
  ASSERT_EQ(d.parrafos.size(), 5u);
  EXPECT_EQ(d.parrafos[0].caja.alineacion, AlineacionRtf::Centro);
  EXPECT_EQ(d.parrafos[1].caja.alineacion, AlineacionRtf::Izquierda);
  EXPECT_EQ(d.parrafos[3].caja.alineacion, AlineacionRtf::Derecha);
  const auto& caja = d.parrafos[4].caja;
  EXPECT_EQ(caja.alineacion, AlineacionRtf::Justificada);
  EXPECT_EQ(caja.sangria, 36);
  EXPECT_EQ(caja.primeraLinea, -18);
  EXPECT_EQ(caja.antes, 2);
  EXPECT_EQ(caja.despues, 3);
  EXPECT_TRUE(d.entero);
  EXPECT_EQ(Texto("a\\\nb\\cell c\\row d"), "a|b\tc|d|");
}

TEST(Rtf, LaLetraVaConSuGrupo) {
  const auto d =
      Lee("a{\\b\\fs40 b\\i c}d\\ul e\\ulnone f\\b g\\b0\\i0 h\\b\\i\\ul\\fs50\\plain i");
  ASSERT_EQ(d.parrafos.size(), 1u);
  const auto& t = d.parrafos[0].trozos;
  const std::vector<std::pair<LetraRtf, std::string>> espera{
      {{}, "a"},
      {{.negrita = true, .cuerpo = 20}, "b"},
      {{.negrita = true, .cursiva = true, .cuerpo = 20}, "c"},
      {{}, "d"},
      {{.subrayado = true}, "e"},
      {{}, "f"},
      {{.negrita = true}, "g"},
      {{}, "hi"}};
  ASSERT_EQ(t.size(), espera.size());
  for (std::size_t i = 0; i < t.size(); ++i) {
    EXPECT_EQ(t[i].letra, espera[i].first) << i;
    EXPECT_EQ(t[i].texto, espera[i].second) << i;
  }
}

TEST(Rtf, SoloElTextoDelDocumento) {
  EXPECT_EQ(
      Texto("{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}}{\\colortbl;\\red0;}{\\stylesheet{Normal;}}"
            "{\\info{\\title no}}{\\*\\generator x{y};}{\\header cabeza\\par}{\\pict 00ff}"
            "{\\object{\\*\\objdata 01}{\\result{\\pict 00}}}s\\'ed"),
      "sí|");
  EXPECT_EQ(Texto("ve {\\field{\\*\\fldinst HYPERLINK \"http://x\"}{\\fldrslt aqu\\'ed}}"),
            "ve aquí|");
  EXPECT_EQ(Texto("a{\\v secreto\\par}b"), "ab|");
  EXPECT_EQ(Texto("{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'b7}}uno\\par"
                  "{\\listtext\\u-3913 ?\\tab}dos\\par{\\listtext 3.\\tab}tres \\'b7"),
            "•\tuno|•\tdos|3.\ttres ·|");
  EXPECT_EQ(Texto("a\\bin5 }}}{{b{\\pict\\bin3 }}}}c\\bin0 d\\bin-4 e"), "abcde|");
}

TEST(Rtf, LoQueSeLeyoAntesDeUnCorteSeConserva) {
  const std::string todo =
      Cuerpo("{\\fonttbl{\\f0 A;}}{\\b uno}\\par dos \\'e1\\u960?\\par\\bin3 abc tres");
  const auto entero = InterpretaRtf(todo, "prueba");
  EXPECT_TRUE(entero.entero);
  EXPECT_EQ(Texto(entero), "uno|dos áπ| tres|");
  std::size_t antes = 0;
  for (std::size_t n = 5; n < todo.size(); ++n) {
    const auto d = InterpretaRtf(todo.substr(0, n), "prueba");
    EXPECT_FALSE(d.entero) << n;
    std::string texto = Texto(d);
    if (!texto.empty()) texto.pop_back();
    EXPECT_TRUE(Texto(entero).starts_with(texto)) << texto;
    EXPECT_GE(texto.size(), antes) << n;
    antes = texto.size();
  }
  EXPECT_EQ(Texto(InterpretaRtf("{\\rtf1 uno}}} dos}", "prueba")), "uno|");
  for (const char* fin :
       {"\\bin99999999999 abc", "\\bin3 a", "\\'", "\\'e", "\\", "{{{", "\\b", "\\fs9"}) {
    const auto d = InterpretaRtf("{\\rtf1 uno\\par dos" + std::string(fin), "prueba");
    EXPECT_EQ(Texto(d), "uno|dos|") << fin;
    EXPECT_FALSE(d.entero) << fin;
  }
}

TEST(Rtf, LosNumerosDesmedidosSeAcotan) {
  const auto d =
      Lee("\\li99999999999999999999\\fi-99999999999999999999\\sa-5\\fs0\\u99999999999?a"
          "\\fs99999999999999999999 b\\uc99999999999\\par c\\u960 d");
  ASSERT_EQ(d.parrafos.size(), 2u);
  const auto& caja = d.parrafos[0].caja;
  EXPECT_LE(caja.sangria, 400);
  EXPECT_GE(caja.primeraLinea, -caja.sangria);
  EXPECT_EQ(caja.despues, 0);
  EXPECT_EQ(Texto(d), "\ufffdab|cπ|");
  EXPECT_GE(d.parrafos[0].trozos[0].letra.cuerpo, 4);
  EXPECT_LE(d.parrafos[0].trozos[1].letra.cuerpo, 96);
  EXPECT_EQ(Texto("\\fi-200 x"), "x|");
  EXPECT_EQ(Lee("\\fi-200 x").parrafos[0].caja.primeraLinea, 0);
}

TEST(Rtf, CienMilGruposUnoDentroDeOtro) {
  const std::string abre(100000, '{'), cierra(100000, '}');
  EXPECT_EQ(Texto("uno " + abre + "hondo\\par" + cierra + "dos"), "uno dos|");
  EXPECT_EQ(Texto(InterpretaRtf("{\\rtf1 uno" + abre, "prueba")), "uno|");
  const std::string justo(kMaxGruposRtf - 1, '{');
  EXPECT_EQ(Texto(justo + "hondo" + std::string(kMaxGruposRtf - 1, '}')), "hondo|");
}

TEST(Rtf, LosFicherosGrandesNiCrecenNiSeEternizan) {
  const auto antes = std::chrono::steady_clock::now();
  const auto repetido = [](const std::string& pieza) {
    std::string bytes = "{\\rtf1 ";
    while (bytes.size() + pieza.size() <= kMaxBytesRtf) bytes += pieza;
    return InterpretaRtf(bytes, "prueba");
  };
  for (const char* pieza :
       {"\\par\n", "a\\b b\\b0 ", "\\u960?", "{\\i x}", "&", "\\zzz", "\\'e1"}) {
    const auto d = repetido(pieza);
    std::size_t trozos = 0;
    for (const auto& p : d.parrafos) trozos += p.trozos.size();
    EXPECT_LE(trozos, kMaxTrozosRtf) << pieza;
    EXPECT_LE(d.parrafos.size(), kMaxParrafosRtf + 1) << pieza;
    EXPECT_LE(HtmlDeRtf(d).size(), 8 * kMaxBytesRtf) << pieza;
    EXPECT_FALSE(d.entero) << pieza;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - antes, std::chrono::seconds(60));
}

std::string Rechazo(const std::function<void()>& hace) {
  try {
    hace();
  } catch (const ErrorRtf& error) {
    return std::to_string(error.mensaje().texto) + "|" + error.mensaje().datos.at(0);
  }
  return "";
}

TEST(Rtf, LoQueNoEsUnDocumentoSeRechaza) {
  for (const char* bytes : {"", "{", "{\\rt", "hola", " {\\rtf1 x}", "{\\RTF1 x}", "%PDF-1.4"}) {
    EXPECT_EQ(Rechazo([&] { InterpretaRtf(bytes, "a.rtf"); }), "1400|a.rtf") << bytes;
  }
  const pruebas::Carpeta carpeta;
  const auto ruta = carpeta / "grande.rtf";
  EXPECT_EQ(Rechazo([&] { LeeRtf(ruta); }), "1150|" + ruta.string());
  EXPECT_EQ(Rechazo([&] { LeeRtf(carpeta.ruta()); }), "1150|" + carpeta.ruta().string());
  EXPECT_EQ(Rechazo([&] { LeeRtf("/dev/zero"); }), "1150|/dev/zero");
  pruebas::PonBytes(ruta, Cuerpo(std::string(10 * 1024 * 1024, 'a')));
  EXPECT_EQ(Rechazo([&] { LeeRtf(ruta); }), "1401|" + ruta.string());
  const auto tope = Cuerpo("").size();
  pruebas::PonBytes(ruta, Cuerpo(std::string(kMaxBytesRtf - tope, ' ')));
  EXPECT_TRUE(LeeRtf(ruta).entero);
}

TEST(Rtf, HtmlEscapadoConSuLetra) {
  const auto html = HtmlDeRtf(Lee("\\qc\\sa120{\\b\\i\\ul\\fs21 <b>&\"}\\line\\'e1\\par\\par"));
  EXPECT_NE(html.find("<p align=\"center\" style=\"margin:0px 0px 8px 0px;text-indent:0px;"
                      "white-space:pre-wrap\">"
                      "<span style=\"font-size:10.5pt;font-weight:bold;font-style:italic;"
                      "text-decoration:underline\">&lt;b&gt;&amp;&quot;</span>"
                      "<span style=\"font-size:12pt\"><br/>á</span></p>"),
            std::string::npos)
      << html;
  EXPECT_NE(html.find("\u00a0</span></p>\n</body>"), std::string::npos) << html;  // the empty line
}

TEST(Rtf, LosPuntosDeUnaListaCuelganEnHtml) {
  const auto html = HtmlDeRtf(Lee("\\li720\\fi-360\\bullet\\tab{\\b a}\\tab b"));
  const std::string celda =
      "<td style=\"padding:0px 0px 0px 0px\" width=\"24\"><p align=\"left\" "
      "style=\"margin:0px 0px 0px 0px;text-indent:0px;white-space:pre-wrap\">";
  EXPECT_NE(html.find("<tr>" + celda + "</p></td>" + celda +
                      "<span style=\"font-size:12pt\">•</span></p></td><td"),
            std::string::npos)
      << html;
  EXPECT_NE(html.find("bold\">a</span><span style=\"font-size:12pt\">\tb</span></p></td></tr>"),
            std::string::npos)
      << html;
  const auto alMargen = HtmlDeRtf(Lee("\\li360\\fi-360 1.\\tab a"));
  EXPECT_NE(alMargen.find("<tr>" + celda + "<span"), std::string::npos) << alMargen;
  for (const char* otro :
       {"\\li720\\fi-360 no es una marca\\tab a", "x\\tab y", "\\li720\\fi360\\bullet\\tab a",
        "\\li720\\fi-360 a\\line b\\tab c", "\\li720\\fi-360 a"}) {
    EXPECT_EQ(HtmlDeRtf(Lee(otro)).find("<table"), std::string::npos) << otro;
  }
}

}  // namespace
}  // namespace zorbin
