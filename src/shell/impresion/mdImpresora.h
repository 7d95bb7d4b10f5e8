// The printer of the program: one of the machine's, or a PDF file. Which one, and in how many
// copies, is remembered in the settings; the screen Impresoras chooses it.
#pragma once

#include <QPageSize>
#include <QString>
#include <QStringList>
#include <functional>

#include "base/mdCatalogo.h"
#include "shell/impresion/mdColaImpresion.h"
#include "shell/piezas/mdImpresion.h"
#include "shell/piezas/mdPreferencias.h"

namespace zorbin {

/// Name under which the settings remember the PDF file; no printer can have it.
inline const QString kImpresoraPdf = QStringLiteral("/pdf");

/// The printers of the machine, as the program sees them.
struct Impresoras {
  std::function<QStringList()> nombres;
  std::function<QString()> predeterminada;  // empty: none
  std::function<QPageSize(const QString& nombre)> papel;
  std::function<void(const TrabajoImpresion&)> entrega;  // throws ErrorImpresora

  static Impresoras DeLaMaquina();
};

class Impresora : public ServicioImpresion {
 public:
  Impresora(const Catalogo& textos, Preferencias& preferencias,
            Impresoras impresoras = Impresoras::DeLaMaquina());

  bool Imprime(QWidget* padre, const QString& nombre, const Documento& documento) override;
  void VistaPrevia(QWidget* padre, const QString& nombre, const Documento& documento) override;

  const Impresoras& DelSistema() const { return impresoras_; }

  /// The printer in force: the one chosen, else the machine's default one, else kImpresoraPdf. One
  /// that was chosen and is gone is still named.
  QString EnUso() const;

  /// How a screen of printing opens the manual at an anchor.
  void PonAyuda(std::function<void(const QString&)> ayuda) { ayuda_ = std::move(ayuda); }
  void Ayuda(const QString& ancla) const {
    if (ayuda_) ayuda_(ancla);
  }

 private:
  const Catalogo& textos_;
  Preferencias& preferencias_;
  Impresoras impresoras_;
  std::function<void(const QString&)> ayuda_;

  bool ImprimeEn(QWidget* padre, const QString& impresora, const QString& nombre,
                 const Documento& documento);
};

}  // namespace zorbin
