#include "shell/principal/mdLetrasMenu.h"

#include <QAction>

#include "base/textos.h"
#include "shell/piezas/mdQt.h"

namespace zorbin {

QString LetrasDePestanas(const Catalogo& textos) {
  QString letras;
  for (const int entrada :
       {txt::PaginasObra[0], txt::PaginasObra[1], txt::PaginasObra[2], txt::PagArmado,
        txt::PagPostesado, txt::PagModulos, txt::PagResistencias, txt::PagTensiones,
        txt::PagCoeficientes, txt::PagDimensiones, txt::PagRelleno, txt::PagCargas}) {
    const QString texto = Q(textos.Texto(entrada));
    const auto marca = texto.indexOf(QLatin1Char('&'));
    if (marca >= 0 && marca + 1 < texto.size()) letras += texto[marca + 1].toUpper();
  }
  return letras;
}

void ReparteLetras(const std::vector<std::pair<QAction*, QString>>& entradas, QString usadas) {
  for (const auto& [accion, texto] : entradas) {
    const auto marca = texto.indexOf(QLatin1Char('&'));
    if (marca >= 0 && marca + 1 < texto.size()) usadas += texto[marca + 1].toUpper();
  }
  for (const auto& [accion, texto] : entradas) {
    QString con = texto;
    if (!texto.contains(QLatin1Char('&'))) {
      for (qsizetype i = 0; i < texto.size(); ++i) {
        if (!texto[i].isLetter() || usadas.contains(texto[i].toUpper())) continue;
        usadas += texto[i].toUpper();
        con.insert(i, QLatin1Char('&'));
        break;
      }
    }
    accion->setText(con);
  }
}

}  // namespace zorbin
