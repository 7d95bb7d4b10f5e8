// What this program is: version, form of its files, standard, where its data lie.
#pragma once

#include <QDialog>
#include <filesystem>

#include "shell/piezas/mdEntorno.h"

namespace zorbin {

class frAcercaDe : public QDialog {
  Q_OBJECT

 public:
  /// @param figura  the title picture; an empty path, or one that is no picture, shows none
  /// @param datos   folder of the program's data
  frAcercaDe(const Entorno& entorno, const std::filesystem::path& figura,
             const std::filesystem::path& datos, QWidget* padre);
};

}  // namespace zorbin
