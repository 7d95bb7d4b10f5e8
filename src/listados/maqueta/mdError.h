// A fault in the sources of the report.
#pragma once

#include <QString>
#include <stdexcept>

namespace zorbin::memoria {

/// Names the line; whoever reads the file adds its name.
class ErrorFuente : public std::runtime_error {
 public:
  ErrorFuente(int linea, const QString& texto)
      : std::runtime_error(texto.toStdString()), linea_(linea) {}
  int linea() const { return linea_; }

 private:
  int linea_;
};

}  // namespace zorbin::memoria
